#include "BoxCounter.h"
#include "Checks.h"
#include "Report.h"
#include "UserActions.h"

#include <cam_api.h>
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
    constexpr int typedToStored = 0;
    return (situation.isMetric ? ZENTRA::UIAPI::setSymbolUIData(name, typedToStored) : name)
        .toStdString();
}

struct Symbol {
    bool isKnown = false;
    symbol_type type = symbol_type::unknown;
    int a = -7;
    int b = -7;
};

Symbol identify(const std::string& name, bool arc)
{
    Symbol symbol;
    symbol.isKnown = ZENTRA::API::identify_symbol(name, symbol.type, symbol.a, symbol.b, arc);
    return symbol;
}

/// Chooses the first name of the list, then the last. `sent` is where the window's signals put
/// their names, each with the name that it carries.
void expectChosen(Report& report, const QString& signal, QWidget& window, QStringList& sent)
{
    const QString what = QStringLiteral("%1: signals of a choice").arg(signal);
    QAbstractItemView* const list = UserActions::listOf(window);
    if (!list) {
        report.untried(what, QStringLiteral("the window has no list with an entry"));
        return;
    }
    for (const int row : {0, list->model()->rowCount() - 1}) {
        const QModelIndex index = list->model()->index(row, 0);
        const QString name = index.data().toString();
        BoxCounter boxes;
        sent.clear();
        UserActions::choose(window, *list, index, sent);
        if (sent.isEmpty()) {
            report.untried(what,
                           QStringLiteral("neither Enter nor a double click nor a button chooses"));
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
        const std::string text = stored(name, situation);
        const Symbol symbol = identify(text, false);
        if (!symbol.isKnown || symbol.type != symbol_type::user) {
            continue;
        }
        ++count;
        const QString what = QStringLiteral("identify_symbol(\"%1\") of the job").arg(name);
        report.expect(what + QStringLiteral(": first size"), 0, symbol.a);
        report.expect(what + QStringLiteral(": second size"), 0, symbol.b);
        report.expect(what + QStringLiteral(": for an arc"), false, identify(text, true).isKnown);
    }
    if (count == 0) {
        report.untried(QStringLiteral("identify_symbol() of a symbol of the job's own"),
                       situation.job.isEmpty() ? QStringLiteral("no --job is given")
                                               : QStringLiteral("the chooser offers none"));
    }
}

void checkViews(Report& report, const Situation& situation, Widget_SymbolSelection& window)
{
    const QString name = QStringLiteral("Widget_SymbolSelection: ");
    window.changeAvailableItemView(RoundsAndSquares);
    const QStringList few = UserActions::namesIn(window);
    if (few.isEmpty()) {
        report.untried(name + QStringLiteral("its names"), QStringLiteral("it has no list"));
        return;
    }
    for (const QString& symbol : few) {
        const Symbol found = identify(stored(symbol, situation), false);
        report.expect(name + QStringLiteral("view 0 shows \"%1\", a round or a square").arg(symbol),
                      true, found.type == symbol_type::round || found.type == symbol_type::square);
    }
    window.changeAvailableItemView(All);
    const QStringList all = UserActions::namesIn(window);
    for (const QString& symbol : few) {
        report.expect(name + QStringLiteral("view 1 shows \"%1\" of view 0").arg(symbol), true,
                      all.contains(symbol));
    }
    report.expect(name + QStringLiteral("view 1 shows more than view 0"), true,
                  all.size() > few.size());
    window.read();
    report.expect(name + QStringLiteral("view 1 after read()"), all, UserActions::namesIn(window));
    window.change_unit();
    report.expect(name + QStringLiteral("view 1 after change_unit() to the same unit"), all,
                  UserActions::namesIn(window));
    checkOwnSymbols(report, situation, all);
    window.changeAvailableItemView(RoundsAndSquares);
    report.expect(name + QStringLiteral("view 0 again"), few, UserActions::namesIn(window));
}

void checkJobOfChooser(Report& report, const Situation& situation, Widget_SymbolSelection& window)
{
    const QString what = QStringLiteral("Widget_SymbolSelection::setJob()");
    window.changeAvailableItemView(All);
    const QStringList own = UserActions::namesIn(window);
    window.setJob("no such job of any host");
    const QStringList others = UserActions::namesIn(window);
    window.setJob(situation.job.toStdString());
    report.expect(what + QStringLiteral(" and back"), own, UserActions::namesIn(window));
    if (situation.job.isEmpty()) {
        report.untried(what + QStringLiteral(" of another job"),
                       QStringLiteral("no --job is given"));
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
    checkViews(report, situation, window);
    checkJobOfChooser(report, situation, window);
    report.expect(sendText + QStringLiteral(": signals before a choice"), QStringList(), sent);
    expectChosen(report, sendText, window, sent);
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
    std::vector<std::string> names;
    ZENTRA::API::get_fonts(situation.job.toStdString(), names);
    QStringList expected;
    for (const std::string& name : names) {
        expected.append(QString::fromStdString(name));
    }
    QStringList shown = UserActions::namesIn(popup);
    if (!shown.isEmpty()) {
        expected.sort();
        shown.sort();
        report.expect(QStringLiteral("Widget_listpopup: fonts"), expected, shown);
    }
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
