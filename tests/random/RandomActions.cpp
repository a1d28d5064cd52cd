// What a random number makes the user or the host do.

#include "RandomUser.h"
#include "Refusals.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/PayloadKeys.h"

#include <QTpluginsManger4CAM.h>
#include <UiApiStandIn.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSpinBox>
#include <QTimer>
#include <QtTest>

namespace Accepted = MessageCodes::Accepted;

namespace {

const QVector<int> acceptedCodes = Accepted::all();

}  // namespace

void RandomUser::act()
{
    const int kind = below(20);
    if (kind < 2) {
        clickTool();
    } else if (kind == 2) {
        openMenu();
    } else if (kind < 5) {
        receive();
    } else if (kind == 5) {
        m_answer = message();
        m_story =
            QStringLiteral("let the canvas answer the next message with %1: ").arg(m_answer->code) +
            m_story;
    } else if (kind == 6) {
        callDirectly();
    } else if (kind == 7) {
        closeWindow();
    } else if (kind == 8) {
        switchLanguage();
    } else if (kind == 9) {
        useWindow(oneOf(QApplication::topLevelWidgets()));
    } else if (dialog()) {
        useWindow(dialog());
    } else {
        m_story = QStringLiteral("open the dialog");
        m_strip->On_AddFeature_Clicked();
    }
}

QString RandomUser::randomText()
{
    static const QStringList words = {
        "",         "0",    "1",     "5",         "51",      "-1",       "10",
        "12.5",     "1e3",  "50001", "400",       "r10_4x",  "360",      "r10",
        "s20",      "r",    "foo",   "r10_45",    "_",       "nan",      "inf",
        "abc",      " 7 ",  "1,5",   "$$JOB",     "10001",   "standard", "r6000",
        "99999999", "logo", "2e-9",  "rect20x40", "0.00001", "coupon",   "100001"};
    return oneOf(words);
}

void RandomUser::clickTool()
{
    QWidget* const tool = m_strip->itemAt(below(ToolTable::toolCount))->widget();
    m_story = "click " + tool->objectName();
    QTest::mouseClick(tool, Qt::LeftButton);
}

void RandomUser::openMenu()
{
    const int tools[] = {5, 23, 24};
    QWidget* const tool = m_strip->itemAt(oneOf(tools))->widget();
    const int choice = below(4);
    QTimer::singleShot(0, tool, [choice] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu && choice < menu->actions().size()) {
            QTest::mouseClick(menu, Qt::LeftButton, {},
                              menu->actionGeometry(menu->actions().at(choice)).center());
        } else if (menu) {
            menu->close();
        }
    });
    m_story = QStringLiteral("right-click %1, entry %2").arg(tool->objectName()).arg(choice);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3));
    QApplication::sendEvent(tool, &event);
}

/// A message to the module, known or not, with a payload that may be odd.
PluginMetaData RandomUser::message()
{
    PluginMetaData message("Sibling.dll", "Canvas_Tool_Strip.dll");
    message.code = below(4) > 0 ? oneOf(acceptedCodes) : int(m_random.generate());
    const QVariant values[] = {
        "job", "other", "", 7, QVariant(), 2.5, QStringList("a"), QString(5000, 'x')};
    for (const QString& key :
         {PayloadKeys::jobName, PayloadKeys::step, PayloadKeys::stepName, QString("Odd")}) {
        if (below(2)) {
            message.payload[key] = oneOf(values);
        }
    }
    prepareExtra(message);
    if (message.code == Accepted::UnitChanged) {
        const auto unit = CanvasHost::DisplayUnit(below(4));
        CanvasHost::setDisplayUnit(unit);
        m_story = QStringLiteral("unit %1 ").arg(int(unit));
    }
    return message;
}

void RandomUser::prepareExtra(PluginMetaData& message)
{
    const char* const names[] = {"r10", "s5", "Odd name", "r7.5", "rect20x40", "", "r99999999"};
    if (!m_answer) {  // an answer that still waits refers to them
        m_symbols.clear();
        m_attributes.clear();
        for (int i = below(4); i > 0; --i) {
            m_symbols[below(100)] = oneOf(names);
            m_attributes[below(2) ? ".net" : "Odd"] = oneOf(names);
        }
    }
    qint64 address = 0;
    if (message.code == Accepted::JobName) {
        address = ExtraWord::pointingAt(m_job);
    } else if (message.code == Accepted::SymbolsPicked) {
        address = ExtraWord::pointingAt(m_symbols);
    } else if (message.code == Accepted::AttributesPicked) {
        address = ExtraWord::pointingAt(m_attributes);
    }
    message.extra = below(4) ? address : 0;
}

void RandomUser::receive()
{
    const PluginMetaData sent = message();
    m_story += QStringLiteral("receive %1 with %2 entries").arg(sent.code).arg(sent.payload.size());
    // A picked symbol may be one that is refused.
    m_mayRefuse = m_mayRefuse || sent.code == Accepted::SymbolsPicked;
    QTpluginsManger4CAM::instance()->recMegToPlugin(nullptr, sent);
}

/// What a host that is linked against the class may call.
void RandomUser::callDirectly()
{
    const int which = below(6);
    m_story = QStringLiteral("call %1").arg(which);
    if (which == 0) {
        m_strip->get_right_click_zoom_area();
    } else if (which == 1) {
        m_strip->close_all_Dialogs();
    } else if (which == 2) {
        m_mayHaveAllTools = true;
        m_strip->SetAllButtonchecked(true, nullptr);
    } else if (which == 3) {
        m_strip->On_SelectPolyline_Clicked(int(m_random.generate()));
    } else if (which == 4) {
        m_strip->on_m_pAddfeature_Select_symbol();
    } else {
        m_strip->SetAllButtonchecked(false, nullptr);
    }
}

void RandomUser::switchLanguage()
{
    m_story = QStringLiteral("switch the language");
    if (m_translator) {
        m_translator.reset();
    } else {
        m_translator = std::make_unique<QuotingTranslator>("AddFeature");
    }
    PluginMetaData changed("Sibling.dll", "Canvas_Tool_Strip.dll");
    changed.code = Accepted::LanguageChanged;
    QTpluginsManger4CAM::instance()->recMegToPlugin(nullptr, changed);
}

void RandomUser::closeWindow()
{
    QWidget* const window = oneOf(QApplication::topLevelWidgets());
    if (window == m_window.get() || !window->isVisible()) {
        m_story = QStringLiteral("wait");
        return;
    }
    m_story = "close " + window->objectName();
    window->close();
}

void RandomUser::useWindow(QWidget* window)
{
    QList<QWidget*> controls;
    for (QWidget* const widget : window->findChildren<QWidget*>()) {
        if (widget->window() == window && !widget->objectName().startsWith("qt_")) {
            controls.append(widget);
        }
    }
    if (window == m_window.get() || controls.isEmpty()) {
        m_story = QStringLiteral("wait");
        return;
    }
    window->show();
    useControl(oneOf(controls));
}

void RandomUser::useControl(QWidget* control)
{
    m_story = "use " + control->objectName();
    if (auto* const combo = qobject_cast<QComboBox*>(control)) {
        const int item = below(combo->count() + 1) - 1;
        m_story += QStringLiteral(" item %1").arg(item);
        combo->setCurrentIndex(item);
    } else if (auto* const spin = qobject_cast<QSpinBox*>(control)) {
        spin->setValue(below(400));
        m_story += QStringLiteral(" value %1").arg(spin->value());
        QTest::keyClick(spin, Qt::Key_Return);
    } else if (auto* const edit = qobject_cast<QLineEdit*>(control)) {
        enterText(edit);
    } else {
        QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
    }
}

void RandomUser::enterText(QLineEdit* field)
{
    const QString text = randomText();
    const bool byKeys = below(2);
    const int key = below(2) ? Qt::Key_Return : Qt::Key_Tab;
    m_story += QStringLiteral(" %1 \"%2\" %3")
                   .arg(byKeys ? "type" : "paste", text, key == Qt::Key_Tab ? "Tab" : "Enter");
    const QString type = dialog() ? Refusals::chosenType(*dialog()) : QString();
    // A validator leaves out what it does not take: of "12.5" a count keeps "125".
    static const QRegularExpression kept("\\A[a-z0-9]*\\z");
    m_mayRefuse = m_mayRefuse || !kept.match(text).hasMatch() ||
                  !Refusals::isSurelyLegal(field->objectName(), text, type, m_isMetric);
    const QPointer<QLineEdit> left(field);
    field->selectAll();
    if (byKeys) {
        QTest::keyClicks(field, text);
    } else {
        field->insert(text);
    }
    if (left) {
        QTest::keyClick(field, Qt::Key(key));
    }
}
