#include "BoxCounter.h"
#include "Checks.h"
#include "Report.h"
#include "UserActions.h"

#include <common_widgets.h>

#include <QAbstractButton>
#include <QMetaMethod>
#include <QPointer>

#include <functional>
#include <memory>

namespace {

using Attributes = std::vector<std::pair<std::string, std::string>>;

const Attributes picked = {{"cts_first", "1"}, {"cts_second", "two"}};

/// The module connects these by their text: a different spelling of a type would fail at run time.
struct Signature {
    const QMetaObject* widget;
    QMetaMethod::MethodType kind;
    const char* text;
};

const Signature signatures[] = {
    {&Widget_Attributes::staticMetaObject, QMetaMethod::Signal, "change_button_color()"},
    {&Widget_Attributes::staticMetaObject, QMetaMethod::Signal, "remove_button_color()"},
    {&Widget_Attributes::staticMetaObject, QMetaMethod::Signal, "send_attribute_signal()"},
    {&Widget_Attributes::staticMetaObject, QMetaMethod::Signal,
     "send_attribute_list(std::vector<std::pair<std::string,std::string>>)"},
    {&Widget_Attributes::staticMetaObject, QMetaMethod::Slot,
     "get_attributeinfo_list(std::vector<std::pair<std::string,std::string>>)"},
    {&Widget_SymbolSelection::staticMetaObject, QMetaMethod::Signal, "sendText(QString)"},
    {&Widget_SymbolSelection::staticMetaObject, QMetaMethod::Slot, "change_unit()"},
    {&Widget_listpopup::staticMetaObject, QMetaMethod::Signal, "on_send_Font(QString)"},
    {&Widget_listpopup::staticMetaObject, QMetaMethod::Signal, "on_send_changeText(QString)"},
    {&Grc_Tbe_measurepopup::staticMetaObject, QMetaMethod::Slot, "change_language()"},
    {&Grc_Tbe_measurepopup::staticMetaObject, QMetaMethod::Slot, "onMeasureButtonClicked()"},
};

void checkSignatures(Report& report)
{
    for (const Signature& row : signatures) {
        const QString what = QStringLiteral("%1 has the %2 %3")
                                 .arg(QLatin1String(row.widget->className()),
                                      row.kind == QMetaMethod::Signal ? QStringLiteral("signal")
                                                                      : QStringLiteral("slot"),
                                      QLatin1String(row.text));
        report.step(what);
        const int index = row.widget->indexOfMethod(QMetaObject::normalizedSignature(row.text));
        report.expect(what, true, index >= 0 && row.widget->method(index).methodType() == row.kind);
    }
}

struct Window {
    const char* name;
    std::function<QWidget*(const Situation&, QWidget* parent)> create;
};

const Window windows[] = {
    {"Widget_Attributes",
     [](const Situation&, QWidget* parent) { return new Widget_Attributes(parent); }},
    {"Widget_SymbolSelection",
     [](const Situation& situation, QWidget* parent) {
         return new Widget_SymbolSelection(situation.job.toStdString(), situation.context, parent);
     }},
    {"Widget_listpopup of fonts",
     [](const Situation& situation, QWidget* parent) {
         return new Widget_listpopup(17, situation.job.toStdString(), parent);
     }},
    {"Widget_listpopup of special texts",
     [](const Situation& situation, QWidget* parent) {
         return new Widget_listpopup(16, situation.job.toStdString(), situation.step.toStdString(),
                                     parent);
     }},
};

const Window measureWindow = {"Grc_Tbe_measurepopup",
                              [](const Situation& situation, QWidget* parent) {
                                  return new Grc_Tbe_measurepopup(situation.strip, parent);
                              }};

/// Each is a separate window that is deleted with its parent, and that closing hides.
void checkWindow(Report& report, const Situation& situation, const Window& row)
{
    const QString name = QLatin1String(row.name);
    auto parent = std::make_unique<QWidget>();
    const QPointer<QWidget> window = row.create(situation, parent.get());
    report.expect(name + QStringLiteral(": its parent is the given one"), true,
                  window->parentWidget() == parent.get());
    report.expect(name + QStringLiteral(": is a window"), true, window->isWindow());
    report.step(name + QStringLiteral(": show()"));
    window->show();
    report.expect(name + QStringLiteral(": is visible when shown"), true, window->isVisible());
    report.step(name + QStringLiteral(": close()"));
    UserActions::close(*window);
    if (report.expect(name + QStringLiteral(": is there after closing"), true, !window.isNull())) {
        report.expect(name + QStringLiteral(": is visible after closing"), false,
                      window->isVisible());
        report.step(name + QStringLiteral(": show() again"));
        window->show();
        report.expect(name + QStringLiteral(": is visible when shown again"), true,
                      window->isVisible());
    }
    report.step(name + QStringLiteral(": its parent is deleted"));
    parent.reset();
    report.expect(name + QStringLiteral(": is there after its parent"), false, !window.isNull());
}

QStringList pairs(const Attributes& attributes)
{
    QStringList all;
    for (const auto& [name, value] : attributes) {
        all.append(QString::fromStdString(name + '=' + value));
    }
    all.sort();
    return all;
}

QStringList dataOf(Widget_Attributes& window)
{
    std::map<std::string, std::string> data{{"left over", ""}};
    window.getAttributeData(data);
    return pairs(Attributes(data.begin(), data.end()));
}

void checkAttributes(Report& report)
{
    QWidget parent;
    Widget_Attributes window(&parent);
    int coloured = 0;
    int plain = 0;
    QObject::connect(&window, &Widget_Attributes::change_button_color, &parent,
                     [&] { ++coloured; });
    QObject::connect(&window, &Widget_Attributes::remove_button_color, &parent, [&] { ++plain; });
    const auto fill = [&](const Attributes& attributes) {
        report.step(QStringLiteral("Widget_Attributes::get_attributeinfo_list() of %1")
                        .arg(attributes.size()));
        window.get_attributeinfo_list(attributes);
    };
    const QString data = QStringLiteral("Widget_Attributes::getAttributeData() ");
    report.expect(data + QStringLiteral("keeps what was in the map"), false,
                  dataOf(window).contains(QStringLiteral("left over=")));
    fill({});
    plain = 0;

    fill(picked);
    report.expect(data + QStringLiteral("after two were picked"), pairs(picked), dataOf(window));
    fill({picked.back()});
    report.expect(data + QStringLiteral("after one was picked"), pairs({picked.back()}),
                  dataOf(window));
    report.expect(QStringLiteral("Widget_Attributes::change_button_color() of a filled table"), 1,
                  coloured);
    report.expect(QStringLiteral("Widget_Attributes::remove_button_color() of a filled table"), 0,
                  plain);
    fill({});
    report.expect(data + QStringLiteral("after none was picked"), QStringList(), dataOf(window));
    report.expect(QStringLiteral("Widget_Attributes::change_button_color() of an empty table"), 1,
                  coloured);
    report.expect(QStringLiteral("Widget_Attributes::remove_button_color() of an empty table"), 1,
                  plain);
}

/// What the buttons are for is not known: each is tried on a filled table.
void checkAttributeButtons(Report& report)
{
    QWidget parent;
    Widget_Attributes window(&parent);
    int asked = 0;
    QVector<QStringList> sent;
    QObject::connect(&window, &Widget_Attributes::send_attribute_signal, &parent, [&] { ++asked; });
    QObject::connect(&window, &Widget_Attributes::send_attribute_list, &parent,
                     [&](const Attributes& attributes) { sent.append(pairs(attributes)); });
    BoxCounter boxes;
    for (auto* const button : window.findChildren<QAbstractButton*>()) {
        report.step(QStringLiteral("Widget_Attributes: the button \"%1\"").arg(button->text()));
        window.get_attributeinfo_list(picked);
        window.show();
        button->click();
    }
    const QString noButton = QStringLiteral("no button of the window does it");
    if (asked == 0) {
        report.untried(QStringLiteral("Widget_Attributes::send_attribute_signal()"), noButton);
    } else {
        report.expect(QStringLiteral("Widget_Attributes::send_attribute_signal()"), 1, asked);
    }
    if (sent.isEmpty()) {
        report.untried(QStringLiteral("Widget_Attributes::send_attribute_list()"), noButton);
        return;
    }
    for (const QStringList& list : sent) {
        report.expect(QStringLiteral("Widget_Attributes::send_attribute_list()"), pairs(picked),
                      list);
    }
}

void checkMeasurePopup(Report& report, const Situation& situation)
{
    QWidget parent;
    Grc_Tbe_measurepopup popup(situation.strip, &parent);
    popup.show();
    for (const char* const slot : {"change_language", "onMeasureButtonClicked"}) {
        const QString what = QStringLiteral("Grc_Tbe_measurepopup::%1() by its name").arg(slot);
        report.step(what);
        report.expect(what, true, QMetaObject::invokeMethod(&popup, slot));
    }
    report.expect(QStringLiteral("Grc_Tbe_measurepopup: is visible after its slots"), true,
                  popup.isVisible());
}

}  // namespace

void checkCommonWidgets(Report& report, const Situation& situation)
{
    checkSignatures(report);
    for (const Window& row : windows) {
        report.run(QLatin1String(row.name), [&] { checkWindow(report, situation, row); });
    }
    report.run(QStringLiteral("Widget_Attributes: picked attributes"),
               [&] { checkAttributes(report); });
    report.run(QStringLiteral("Widget_Attributes: buttons"),
               [&] { checkAttributeButtons(report); });
    if (!situation.strip) {
        report.untried(QLatin1String(measureWindow.name),
                       QStringLiteral("there is no tool strip that could open it"));
        return;
    }
    report.run(QLatin1String(measureWindow.name),
               [&] { checkWindow(report, situation, measureWindow); });
    report.run(QStringLiteral("Grc_Tbe_measurepopup: slots"),
               [&] { checkMeasurePopup(report, situation); });
}
