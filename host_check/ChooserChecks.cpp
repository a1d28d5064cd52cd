#include "BoxCounter.h"
#include "Checks.h"
#include "Report.h"
#include "Spy.h"
#include "UserActions.h"

#include <cam_api.h>
#include <common_widgets.h>

#include <QAbstractItemView>
#include <QPointer>
#include <QRegularExpression>

namespace {

enum View { RoundsAndSquares, All };

const QString noList = QStringLiteral("the window has no list with an entry");

/// Chooses the first name of the list, then the last, each in a new window of `create`.
void expectChosen(Report& report, Row row, const char* signal,
                  const std::function<QWidget*(QWidget* parent)>& create)
{
    for (const bool isFirst : {true, false}) {
        QWidget parent;
        const QPointer<QWidget> window = create(&parent);
        Spy sent(*window, signal);
        window->show();
        QAbstractItemView* const list = UserActions::listOf(*window);
        if (!list) {
            report.untried(row, noList);
            return;
        }
        const QModelIndex index =
            list->model()->index(isFirst ? 0 : list->model()->rowCount() - 1, 0);
        const QString name = index.data().toString();
        const QString what = QStringLiteral("\"%1\" is chosen").arg(name);
        report.step(what);
        BoxCounter boxes;
        report.expect(row, QStringLiteral("signals before a choice"), 0, sent.count());
        UserActions::choose(*window, *list, index, [&] { return !window || sent.count() > 0; });
        QStringList names;
        for (const QVariant& argument : sent.take()) {
            names.append(argument.toString());
        }
        if (names.isEmpty()) {
            report.untried(row, QStringLiteral("neither Enter nor a click nor a button chooses"));
            return;
        }
        report.expect(row, what, QStringList{name}, names);
    }
}

QStringList namesOfView(Report& report, Widget_SymbolSelection& window, View view)
{
    report.step(QStringLiteral("Widget_SymbolSelection::changeAvailableItemView(%1)").arg(view));
    window.changeAvailableItemView(view);
    return UserActions::namesIn(window);
}

void checkView(Report& report, Widget_SymbolSelection& window)
{
    static const QRegularExpression roundOrSquare(QStringLiteral("\\A[rs][0-9]+(\\.[0-9]+)?\\z"));
    const QStringList names = namesOfView(report, window, RoundsAndSquares);
    if (names.isEmpty()) {
        report.untried(Row::ChooserView, noList);
    }
    for (const QString& name : names) {
        report.expect(Row::ChooserView, QStringLiteral("\"%1\" is offered").arg(name), true,
                      roundOrSquare.match(name).hasMatch());
    }
}

void checkRefreshing(Report& report, const Situation& situation, Widget_SymbolSelection& window)
{
    const QStringList names = namesOfView(report, window, All);
    const auto expectSame = [&](const char* what) {
        report.expect(Row::ChooserRefreshes, QLatin1String(what), names,
                      UserActions::namesIn(window));
    };
    if (names.isEmpty()) {
        report.untried(Row::ChooserRefreshes, noList);
        return;
    }
    window.read();
    expectSame("names after read()");
    QMetaObject::invokeMethod(&window, "change_unit");
    expectSame("names after change_unit()");
    window.setJob(situation.job.toStdString());
    expectSame("names after setJob()");
}

void checkSymbolChooser(Report& report, const Situation& situation)
{
    const auto create = [&](QWidget* parent) {
        return new Widget_SymbolSelection(situation.job.toStdString(), situation.context, parent);
    };
    QWidget parent;
    Widget_SymbolSelection& window = *create(&parent);
    expectMembers(report, Row::ChooserSignals, window,
                  {SIGNAL(sendText(QString)), SLOT(change_unit())});
    report.run(Row::ChooserView, QStringLiteral("Widget_SymbolSelection: view 0"),
               [&] { checkView(report, window); });
    report.run(Row::ChooserRefreshes, QStringLiteral("Widget_SymbolSelection: its names"),
               [&] { checkRefreshing(report, situation, window); });
    report.run(Row::ChooserSends, QStringLiteral("Widget_SymbolSelection: a choice"),
               [&] { expectChosen(report, Row::ChooserSends, SIGNAL(sendText(QString)), create); });
}

QStringList fontsOf(const Situation& situation)
{
    std::vector<std::string> names;
    ZENTRA::API::get_fonts(situation.job.toStdString(), names);
    QStringList all;
    for (const std::string& name : names) {
        all.append(QString::fromStdString(name));
    }
    return all;
}

void checkFonts(Report& report, const Situation& situation)
{
    const auto create = [&](QWidget* parent) {
        return new Widget_listpopup(17, situation.job.toStdString(), parent);
    };
    QWidget parent;
    const QWidget& window = *create(&parent);
    expectMembers(report, Row::FontsSend, window, {SIGNAL(on_send_Font(QString))});
    const QStringList known = fontsOf(situation);
    const QStringList offered = UserActions::namesIn(window);
    if (offered.isEmpty()) {
        report.untried(Row::FontsKnown, noList);
    }
    for (const QString& name : offered) {
        report.expect(Row::FontsKnown, QStringLiteral("get_fonts() has \"%1\"").arg(name), true,
                      known.contains(name));
    }
    expectChosen(report, Row::FontsSend, SIGNAL(on_send_Font(QString)), create);
}

void checkSpecialTexts(Report& report, const Situation& situation)
{
    const auto create = [&](QWidget* parent) {
        return new Widget_listpopup(16, situation.job.toStdString(), situation.step.toStdString(),
                                    parent);
    };
    QWidget parent;
    const QWidget& window = *create(&parent);
    expectMembers(report, Row::TextsSend, window, {SIGNAL(on_send_changeText(QString))});
    for (const QString& name : UserActions::namesIn(window)) {
        report.expect(Row::TextsSend, QStringLiteral("\"%1\" begins with $$").arg(name), false,
                      name.startsWith(QLatin1String("$$")));
    }
    expectChosen(report, Row::TextsSend, SIGNAL(on_send_changeText(QString)), create);
}

}  // namespace

void checkChoosers(Report& report, const Situation& situation)
{
    report.run(Row::ChooserSignals, QStringLiteral("Widget_SymbolSelection"),
               [&] { checkSymbolChooser(report, situation); });
    report.run(Row::FontsSend, QStringLiteral("Widget_listpopup: fonts"),
               [&] { checkFonts(report, situation); });
    report.run(Row::TextsSend, QStringLiteral("Widget_listpopup: special texts"),
               [&] { checkSpecialTexts(report, situation); });
}
