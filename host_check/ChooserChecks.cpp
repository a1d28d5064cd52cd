#include "BoxCounter.h"
#include "Checks.h"
#include "Names.h"
#include "Report.h"
#include "UserActions.h"

#include <common_widgets.h>
#include <ui_api.h>

#include <QAbstractItemView>
#include <QSet>

using ZENTRA::API::symbol_type;

namespace {

enum View { RoundsAndSquares, All };

/// The name, given in the user's unit, as it is stored.
std::string stored(const QString& name, const Situation& situation)
{
    return (situation.isMetric ? ZENTRA::UIAPI::setSymbolUIData(name, TypedToStored) : name)
        .toStdString();
}

/// Chooses the first name of the list, then the last. `sent` is where the window's signals put
/// their names, each with the name that it carries.
void expectChosen(Report& report, const QString& signal, QWidget& window, QStringList& sent)
{
    const QString what = QStringLiteral("%1: signals of a choice").arg(signal);
    const QString before = QStringLiteral("%1: signals before a choice").arg(signal);
    report.step(before);
    window.show();
    report.expect(before, QStringList(), sent);
    QAbstractItemView* const list = UserActions::listOf(window);
    if (!list) {
        report.untried(what, QStringLiteral("the window has no list with an entry"));
        return;
    }
    for (const int row : {0, list->model()->rowCount() - 1}) {
        const QModelIndex index = list->model()->index(row, 0);
        const QString name = index.data().toString();
        report.step(QStringLiteral("%1: a choice of \"%2\"").arg(signal, name));
        BoxCounter boxes;
        sent.clear();
        UserActions::choose(window, *list, index, sent);
        if (sent.isEmpty()) {
            report.untried(what, QStringLiteral("neither Enter nor a click nor a button chooses"));
            return;
        }
        report.expect(what, {QStringLiteral("%1(%2)").arg(signal, name)}, sent);
    }
}

/// The job's own symbols are read from the chooser: nothing else gives their names.
void checkOwnSymbols(Report& report, const Situation& situation, const QStringList& names)
{
    int count = 0;
    for (const QString& name : names) {
        const QString what = QStringLiteral("identify_symbol(\"%1\") of the chooser").arg(name);
        report.run(what, [&] {
            const std::string text = stored(name, situation);
            const Identified symbol = identify(text, false);
            if (!symbol.isKnown || symbol.type != symbol_type::user) {
                return;
            }
            ++count;
            report.expect(what + QStringLiteral(": first size"), 0, symbol.a);
            report.expect(what + QStringLiteral(": second size"), 0, symbol.b);
            report.expect(what + QStringLiteral(": for an arc"), false,
                          identify(text, true).isKnown);
        });
    }
    if (count == 0) {
        const QString what = QStringLiteral("identify_symbol() of a symbol of the job's own");
        if (situation.job.isEmpty()) {
            report.untriedWithoutJob(what);
        } else {
            report.untried(what, QStringLiteral("the chooser offers none"));
        }
    }
}

QStringList namesOfView(Report& report, Widget_SymbolSelection& window, View view)
{
    report.step(QStringLiteral("Widget_SymbolSelection::changeAvailableItemView(%1)").arg(view));
    window.changeAvailableItemView(view);
    return UserActions::namesIn(window);
}

void checkViews(Report& report, const Situation& situation, Widget_SymbolSelection& window)
{
    const QString name = QStringLiteral("Widget_SymbolSelection: ");
    const QStringList few = namesOfView(report, window, RoundsAndSquares);
    if (few.isEmpty()) {
        report.untried(name + QStringLiteral("its names"),
                       QStringLiteral("the window has no list with an entry"));
        return;
    }
    for (const QString& symbol : few) {
        const QString what =
            name + QStringLiteral("view 0 shows \"%1\", a round or a square").arg(symbol);
        report.run(what, [&] {
            const symbol_type type = identify(stored(symbol, situation), false).type;
            report.expect(what, true, type == symbol_type::round || type == symbol_type::square);
        });
    }
    const QStringList all = namesOfView(report, window, All);
    for (const QString& symbol : few) {
        report.expect(name + QStringLiteral("view 1 shows \"%1\" of view 0").arg(symbol), true,
                      all.contains(symbol));
    }
    report.expect(name + QStringLiteral("view 1 shows more than view 0"), true,
                  all.size() > few.size());
    report.step(name + QStringLiteral("read()"));
    window.read();
    report.expect(name + QStringLiteral("view 1 after read()"), all, UserActions::namesIn(window));
    report.step(name + QStringLiteral("change_unit()"));
    window.change_unit();
    report.expect(name + QStringLiteral("view 1 after change_unit() to the same unit"), all,
                  UserActions::namesIn(window));
    checkOwnSymbols(report, situation, all);
    report.expect(name + QStringLiteral("view 0 again"), few,
                  namesOfView(report, window, RoundsAndSquares));
}

void checkJobOfChooser(Report& report, const Situation& situation, Widget_SymbolSelection& window)
{
    const QString what = QStringLiteral("Widget_SymbolSelection::setJob()");
    const QStringList own = namesOfView(report, window, All);
    report.step(what + QStringLiteral(" of a job that is not known"));
    window.setJob("no such job of any host");
    const QStringList others = UserActions::namesIn(window);
    report.step(what + QStringLiteral(" and back"));
    window.setJob(situation.job.toStdString());
    report.expect(what + QStringLiteral(" and back"), own, UserActions::namesIn(window));
    if (situation.job.isEmpty()) {
        report.untriedWithoutJob(what + QStringLiteral(" of another job"));
    } else if (own == others) {
        report.untried(what + QStringLiteral(" of another job"),
                       QStringLiteral("the job shows no symbols of its own"));
    } else {
        const auto ownSet = QSet<QString>(own.begin(), own.end());
        report.expect(
            what + QStringLiteral(" of a job that is not known: symbols of the one before"), true,
            others.size() < ownSet.size());
    }
}

void checkSymbolChooser(Report& report, const Situation& situation)
{
    QWidget parent;
    Widget_SymbolSelection window(situation.job.toStdString(), situation.context, &parent);
    const QString sendText = QStringLiteral("Widget_SymbolSelection::sendText");
    QStringList sent;
    QObject::connect(&window, &Widget_SymbolSelection::sendText, &parent, [&](const QString& name) {
        sent.append(QStringLiteral("%1(%2)").arg(sendText, name));
    });
    report.run(QStringLiteral("Widget_SymbolSelection: views"),
               [&] { checkViews(report, situation, window); });
    report.run(QStringLiteral("Widget_SymbolSelection: jobs"),
               [&] { checkJobOfChooser(report, situation, window); });
    report.run(QStringLiteral("Widget_SymbolSelection: a choice"),
               [&] { expectChosen(report, sendText, window, sent); });
}

void checkListPopup(Report& report, Widget_listpopup& popup, bool isFonts)
{
    const QString sendFont = QStringLiteral("Widget_listpopup::on_send_Font");
    const QString sendText = QStringLiteral("Widget_listpopup::on_send_changeText");
    QStringList sent;
    QObject::connect(&popup, &Widget_listpopup::on_send_Font, &popup, [&](const QString& name) {
        sent.append(QStringLiteral("%1(%2)").arg(sendFont, name));
    });
    QObject::connect(
        &popup, &Widget_listpopup::on_send_changeText, &popup,
        [&](const QString& name) { sent.append(QStringLiteral("%1(%2)").arg(sendText, name)); });
    expectChosen(report, isFonts ? sendFont : sendText, popup, sent);
}

void checkFonts(Report& report, const Situation& situation)
{
    QWidget parent;
    Widget_listpopup popup(17, situation.job.toStdString(), &parent);
    const QString what = QStringLiteral("Widget_listpopup: fonts");
    report.run(what, [&] {
        std::vector<std::string> names;
        ZENTRA::API::get_fonts(situation.job.toStdString(), names);
        QStringList expected = texts(names);
        QStringList shown = UserActions::namesIn(popup);
        expected.sort();
        shown.sort();
        if (UserActions::hasList(popup)) {
            report.expect(what, expected, shown);
        } else {
            report.untried(what, QStringLiteral("the window has no list"));
        }
    });
    checkListPopup(report, popup, true);
}

void checkSpecialTexts(Report& report, const Situation& situation)
{
    QWidget parent;
    Widget_listpopup popup(16, situation.job.toStdString(), situation.step.toStdString(), &parent);
    checkListPopup(report, popup, false);
}

}  // namespace

void checkChoosers(Report& report, const Situation& situation)
{
    report.run(QStringLiteral("Widget_SymbolSelection: names"),
               [&] { checkSymbolChooser(report, situation); });
    report.run(QStringLiteral("Widget_listpopup: fonts of a job"),
               [&] { checkFonts(report, situation); });
    report.run(QStringLiteral("Widget_listpopup: special texts of a job"),
               [&] { checkSpecialTexts(report, situation); });
}
