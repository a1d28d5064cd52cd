#include "BoxCounter.h"
#include "Checks.h"
#include "Report.h"
#include "Spy.h"
#include "UserActions.h"

#include <common_widgets.h>

#include <QAbstractButton>
#include <QPointer>

#include <map>
#include <memory>

namespace {

using Attributes = AttributeList;

struct Window {
    const char* name;
    std::function<QWidget*(const Situation&, QWidget* parent)> create;
    bool isDeleted = false;  ///< by the module
    bool needsStrip = false;
};

const Window windows[] = {
    {"Widget_Attributes",
     [](const Situation&, QWidget* parent) { return new Widget_Attributes(parent); }},
    {"Widget_SymbolSelection",
     [](const Situation& situation, QWidget* parent) {
         return new Widget_SymbolSelection(situation.job.toStdString(), situation.context, parent);
     }},
    {"Widget_listpopup of type 17",
     [](const Situation& situation, QWidget* parent) {
         return new Widget_listpopup(17, situation.job.toStdString(), parent);
     },
     true},
    {"Widget_listpopup of type 16",
     [](const Situation& situation, QWidget* parent) {
         return new Widget_listpopup(16, situation.job.toStdString(), situation.step.toStdString(),
                                     parent);
     },
     true},
    {"Grc_Tbe_measurepopup",
     [](const Situation& situation, QWidget* parent) {
         return new Grc_Tbe_measurepopup(situation.strip, parent);
     },
     false, true},
};

/// Two lives: a window that deletes itself when it is closed is made again.
void checkShowing(Report& report, const Situation& situation, const Window& row)
{
    QWidget parent;
    QPointer<QWidget> window;
    for (const char* const time : {"first", "second"}) {
        if (!window) {
            window = row.create(situation, &parent);
        }
        const QString name = QStringLiteral("%1, the %2 time").arg(row.name, time);
        report.step(name + QStringLiteral(": show()"));
        window->raise();
        window->show();
        report.expect(Row::WindowsShow, name + QStringLiteral(": visible after show()"), true,
                      window->isVisible());
        report.step(name + QStringLiteral(": close()"));
        UserActions::close(*window);
        report.expect(Row::WindowsShow, name + QStringLiteral(": visible after close()"), false,
                      window && window->isVisible());
    }
}

void checkBelonging(Report& report, const Situation& situation, const Window& row)
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<QWidget> window = row.create(situation, parent.get());
    report.step(QStringLiteral("%1: its parent is deleted").arg(row.name));
    parent.reset();
    report.expect(Row::WindowsBelong, QStringLiteral("%1: is there after its parent").arg(row.name),
                  false, !window.isNull());
}

void checkDeletion(Report& report, const Situation& situation, const Window& row)
{
    for (const bool isVisible : {false, true}) {
        const QString what = QStringLiteral("%1, %2, is deleted")
                                 .arg(row.name, isVisible ? "visible" : "never shown");
        report.expectReturn(Row::WindowsDelete, what, [&] {
            QWidget parent;
            QWidget* const window = row.create(situation, &parent);
            window->setVisible(isVisible);
            delete window;
        });
    }
}

void checkWindow(Report& report, const Situation& situation, const Window& row)
{
    const QString name = QLatin1String(row.name);
    report.run(Row::WindowsShow, name, [&] { checkShowing(report, situation, row); });
    report.run(Row::WindowsBelong, name, [&] { checkBelonging(report, situation, row); });
    if (row.isDeleted) {
        checkDeletion(report, situation, row);
    }
}

QString textOf(const Attributes& attributes)
{
    QStringList all;
    for (const auto& [name, value] : attributes) {
        all.append(QString::fromStdString(name + '=' + value));
    }
    all.sort();
    return all.join(QStringLiteral(", "));
}

/// What the map holds afterwards that the module would pass.
QString dataOf(Widget_Attributes& window)
{
    std::map<std::string, std::string> data{{"left over", "1"}};
    window.getAttributeData(data);
    return textOf(Attributes(data.begin(), data.end()));
}

void pick(Widget_Attributes& window, const Attributes& attributes)
{
    QMetaObject::invokeMethod(
        &window, "get_attributeinfo_list",
        QGenericArgument("std::vector<std::pair<std::string,std::string>>", &attributes));
}

void checkPicked(Report& report, const Situation& situation)
{
    const Attributes& picked = situation.attributes;
    QWidget parent;
    Widget_Attributes& window = *new Widget_Attributes(&parent);
    Spy coloured(window, SIGNAL(change_button_color()));
    Spy plain(window, SIGNAL(remove_button_color()));
    report.expect(Row::AttributesPicked, QStringLiteral("getAttributeData() keeps what was there"),
                  false, dataOf(window).contains(QStringLiteral("left over")));
    if (picked.empty()) {
        const QString why = QStringLiteral("two --attribute NAME=VALUE are not given");
        report.untried(Row::AttributesPicked, why);
        report.untried(Row::AttributesColour, why);
        return;
    }
    pick(window, picked);
    report.expect(Row::AttributesPicked, QStringLiteral("attributes are picked"), textOf(picked),
                  dataOf(window));
    report.expect(Row::AttributesColour, QStringLiteral("attributes are picked: coloured"), true,
                  coloured.count() > 0 && plain.count() == 0);
    pick(window, {picked.front()});
    report.expect(Row::AttributesPicked, QStringLiteral("one attribute is picked"),
                  textOf({picked.front()}), dataOf(window));
    pick(window, {});
    report.expect(Row::AttributesPicked, QStringLiteral("no attribute is picked"), QString(),
                  dataOf(window));
    report.expect(Row::AttributesColour, QStringLiteral("no attribute is picked: plain"), true,
                  plain.count() > 0);
}

/// What the buttons are for is not known: each is tried on a filled table of its own.
void checkButtons(Report& report, const Situation& situation)
{
    bool isApplied = false;
    for (int i = 0;; ++i) {
        QWidget parent;
        Widget_Attributes& window = *new Widget_Attributes(&parent);
        Spy asked(window, SIGNAL(send_attribute_signal()));
        Spy sent(window,
                 SIGNAL(send_attribute_list(std::vector<std::pair<std::string, std::string>>)));
        QAbstractButton* const button = window.findChildren<QAbstractButton*>().value(i);
        if (!button) {
            break;
        }
        const QString what = QStringLiteral("the button \"%1\"").arg(button->text());
        report.step(what);
        BoxCounter boxes;
        pick(window, situation.attributes);
        window.show();
        button->click();
        const QVariantList lists = sent.take();
        report.expect(Row::AttributesApplied, what + QStringLiteral(": more than one signal"),
                      false, lists.size() > 1 || asked.count() > 1);
        for (const QVariant& list : lists) {
            isApplied = true;
            report.expect(Row::AttributesApplied, what, textOf(situation.attributes),
                          textOf(list.value<Attributes>()));
        }
    }
    if (!isApplied) {
        report.untried(Row::AttributesApplied, QStringLiteral("no button of the window applies"));
    }
}

void checkAttributeSignals(Report& report)
{
    QWidget parent;
    Widget_Attributes& window = *new Widget_Attributes(&parent);
    expectMembers(report, Row::AttributesSignals, window,
                  {SIGNAL(change_button_color()), SIGNAL(remove_button_color()),
                   SIGNAL(send_attribute_signal()),
                   SIGNAL(send_attribute_list(std::vector<std::pair<std::string, std::string>>)),
                   SLOT(get_attributeinfo_list(std::vector<std::pair<std::string, std::string>>))});
}

void checkMeasurePopup(Report& report, const Situation& situation)
{
    QWidget parent;
    auto& popup = *new Grc_Tbe_measurepopup(situation.strip, &parent);
    expectMembers(report, Row::MeasureSlots, popup,
                  {SLOT(change_language()), SLOT(onMeasureButtonClicked())});
    popup.show();
    for (const char* const slot : {"change_language", "onMeasureButtonClicked"}) {
        report.step(QStringLiteral("Grc_Tbe_measurepopup::%1()").arg(slot));
        QMetaObject::invokeMethod(&popup, slot);
        report.expect(Row::MeasureSlots, QStringLiteral("%1(): is open afterwards").arg(slot), true,
                      popup.isVisible());
    }
}

}  // namespace

void checkWindows(Report& report, const Situation& situation)
{
    report.run(Row::AttributesSignals, QStringLiteral("Widget_Attributes"),
               [&] { checkAttributeSignals(report); });
    report.run(Row::AttributesPicked, QStringLiteral("Widget_Attributes: picked attributes"),
               [&] { checkPicked(report, situation); });
    report.run(Row::AttributesApplied, QStringLiteral("Widget_Attributes: buttons"),
               [&] { checkButtons(report, situation); });
    if (situation.strip) {
        report.run(Row::MeasureSlots, QStringLiteral("Grc_Tbe_measurepopup"),
                   [&] { checkMeasurePopup(report, situation); });
    } else {
        report.untried(Row::MeasureSlots, QStringLiteral("there is no strip that could open it"));
    }
    for (const Window& row : windows) {
        if (!row.needsStrip || situation.strip) {
            checkWindow(report, situation, row);
        }
    }
}
