// What a random number makes the user or the host do.

#include "FindChild.h"
#include "RandomUser.h"
#include "Refusals.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/PayloadKeys.h"

#include <QTpluginsManger4CAM.h>
#include <UiApiStandIn.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace Accepted = MessageCodes::Accepted;

namespace {

/// As a story tells it.
QString wordsOf(int code)
{
    const char* const name = Accepted::nameOf(code);
    return name ? QString(name) : QStringLiteral("unknown code %1").arg(code);
}

QString wordsOf(CanvasHost::DisplayUnit unit)
{
    switch (unit) {
        case CanvasHost::DisplayUnit::Mil:
            return QStringLiteral("mil");
        case CanvasHost::DisplayUnit::Inch:
            return QStringLiteral("inch");
        case CanvasHost::DisplayUnit::Micrometre:
            return QStringLiteral("micrometre");
        case CanvasHost::DisplayUnit::Millimetre:
            return QStringLiteral("millimetre");
    }
    Q_UNREACHABLE();
}

/// In the same order each time.
QList<QWidget*> windows()
{
    QList<QWidget*> all = QApplication::topLevelWidgets();
    const auto name = [](const QWidget* window) {
        return window->objectName() + window->metaObject()->className() + window->windowTitle();
    };
    std::sort(all.begin(), all.end(),
              [&](const QWidget* a, const QWidget* b) { return name(a) < name(b); });
    return all;
}

}  // namespace

/// What the user and the host do, each with its share.
struct RandomUser::Action {
    int often;
    const char* words;
    void (RandomUser::*perform)();
};

const QVector<RandomUser::Action>& RandomUser::actions()
{
    static const QVector<Action> all = {
        {2, "click a tool of the strip", &RandomUser::clickTool},
        {1, "right-click a tool and choose from its menu", &RandomUser::openMenu},
        {2, "receive a message of a sibling", &RandomUser::receive},
        {1, "have the canvas answer the next message", &RandomUser::prepareAnswer},
        {1, "call what a host may call itself", &RandomUser::callDirectly},
        {1, "close a window", &RandomUser::closeWindow},
        {1, "switch the language", &RandomUser::switchLanguage},
        {1, "use a control of any window", &RandomUser::useAnyWindow},
        {10, "use a control of the dialog", &RandomUser::useDialog},
        {1, "choose a feature type, whatever is being typed", &RandomUser::chooseType},
        {3, "type into a field of the dialog and stay there", &RandomUser::typeAndStay},
        {2, "move the focus in the dialog", &RandomUser::moveFocus},
    };
    return all;
}

void RandomUser::act()
{
    int whole = 0;
    for (const Action& action : actions()) {
        whole += action.often;
    }
    int chosen = below(whole);
    for (const Action& action : actions()) {
        chosen -= action.often;
        if (chosen < 0) {
            (this->*action.perform)();
            m_story = QLatin1String(action.words) + (": " + m_story);
            return;
        }
    }
}

void RandomUser::prepareAnswer()
{
    m_answer = message();
    m_story = QStringLiteral("with %1").arg(wordsOf(m_answer->code)) + m_story;
}

void RandomUser::useAnyWindow()
{
    useWindow(oneOf(windows()));
}

void RandomUser::useDialog()
{
    if (dialog()) {
        useWindow(dialog());
    } else {
        openDialog();
    }
}

void RandomUser::openDialog()
{
    m_story = QStringLiteral("open the dialog");
    m_strip->On_AddFeature_Clicked();
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
    m_story = tool->objectName();
    if (below(2)) {
        activate(m_window.get());
    }
    QTest::mouseClick(tool, Qt::LeftButton);
}

void RandomUser::openMenu()
{
    const ToolTable::Menu row = oneOf(ToolTable::menus());
    QWidget* const tool = m_strip->itemAt(int(row.owner))->widget();
    const int choice = below(4);
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [choice] {
        QWidget* const popup = QApplication::activePopupWidget();
        auto* const menu = qobject_cast<QMenu*>(popup);
        if (menu && choice < menu->actions().size()) {
            QTest::mouseClick(menu, Qt::LeftButton, {},
                              menu->actionGeometry(menu->actions().at(choice)).center());
        } else if (popup) {
            popup->close();
        }
    });
    watch.start(0);
    const bool isEntry = choice < int(row.entries.size());
    m_story = QStringLiteral("%1, %2").arg(
        tool->objectName(), QLatin1String(isEntry ? row.entries[choice].text : "nothing"));
    activate(m_window.get());  // a menu that a box closes before it opens would never end
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3));
    QApplication::sendEvent(tool, &event);
}

/// A message to the module, known or not, with a payload that may be odd.
PluginMetaData RandomUser::message()
{
    PluginMetaData message("Sibling.dll", ModuleNames::toolStrip);
    message.code = below(4) > 0 ? oneOf(Accepted::all()) : int(m_random.generate());
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
        m_unitToCome = CanvasHost::DisplayUnit(below(4));
        m_story = QStringLiteral(", unit %1").arg(wordsOf(m_unitToCome));
    }
    return message;
}

void RandomUser::prepareExtra(PluginMetaData& message)
{
    const char* const names[] = {"r10", "s5", "Odd name", "r7.5", "rect20x40", "", "r99999999"};
    if (!m_answer) {  // a pending answer refers to them
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
    m_story =
        QStringLiteral("%1 with %2 entries").arg(wordsOf(sent.code)).arg(sent.payload.size()) +
        m_story;
    // A picked symbol may be refused.
    m_mayRefuse = m_mayRefuse || sent.code == Accepted::SymbolsPicked;
    deliver(sent);
}

/// A host reports at once which unit it uses now.
void RandomUser::deliver(const PluginMetaData& message)
{
    if (message.code == Accepted::UnitChanged) {
        CanvasHost::setDisplayUnit(m_unitToCome);
    }
    QTpluginsManger4CAM::instance()->recMegToPlugin(nullptr, message);
}

/// What a host that is linked against the class may call.
void RandomUser::callDirectly()
{
    const struct {
        const char* words;
        std::function<void()> call;
    } calls[] = {
        {"zoom by a right click", [this] { m_strip->get_right_click_zoom_area(); }},
        {"close all dialogs", [this] { m_strip->close_all_Dialogs(); }},
        {"check all tools",
         [this] {
             m_mayHaveAllTools = true;
             m_strip->SetAllButtonchecked(true, nullptr);
         }},
        {"select by net in any mode",
         [this] { m_strip->On_SelectPolyline_Clicked(int(m_random.generate())); }},
        {"ask for a symbol", [this] { m_strip->on_m_pAddfeature_Select_symbol(); }},
        {"release all tools", [this] { m_strip->SetAllButtonchecked(false, nullptr); }},
    };
    const auto& chosen = calls[below(int(std::size(calls)))];
    m_story = QLatin1String(chosen.words);
    chosen.call();
}

void RandomUser::switchLanguage()
{
    if (m_translator) {
        m_story = QStringLiteral("back");
        m_translator.reset();
    } else {
        m_story = QStringLiteral("to another one");
        m_translator = std::make_unique<QuotingTranslator>("AddFeature");
    }
    PluginMetaData changed("Sibling.dll", ModuleNames::toolStrip);
    changed.code = Accepted::LanguageChanged;
    QTpluginsManger4CAM::instance()->recMegToPlugin(nullptr, changed);
}

void RandomUser::closeWindow()
{
    QWidget* const window = oneOf(windows());
    if (window == m_window.get() || !window->isVisible()) {
        m_story = QStringLiteral("wait");
        return;
    }
    m_story = window->objectName();
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
    if (window == dialog() && !window->isVisible()) {
        return openDialog();
    }
    window->show();
    useControl(oneOf(controls));
}

void RandomUser::useControl(QWidget* control)
{
    m_story = control->objectName();
    if (auto* const combo = qobject_cast<QComboBox*>(control)) {
        constexpr int noItemOnceIn = 50;
        const int item = below(noItemOnceIn) > 0 && combo->count() > 0 ? below(combo->count()) : -1;
        m_story += item < 0 ? " no item" : QStringLiteral(" \"%1\"").arg(combo->itemText(item));
        combo->setCurrentIndex(item);
    } else if (auto* const spin = qobject_cast<QSpinBox*>(control)) {
        if (focus(spin)) {
            const QString value = QString::number(below(400));
            m_story += " value " + value;
            spin->selectAll();
            QTest::keyClicks(spin, value);
            leave(spin);
        }
    } else if (auto* const edit = qobject_cast<QLineEdit*>(control)) {
        if (enterText(edit)) {
            leave(edit);
        }
    } else {
        if (below(2)) {
            focus(control);
        }
        QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
    }
}

/// Types or pastes into the field, and stays there. False if the field cannot be reached or is
/// gone.
bool RandomUser::enterText(QLineEdit* field)
{
    const QString text = randomText();
    const bool byKeys = below(2);
    if (!focus(field)) {
        return false;
    }
    m_story += QStringLiteral(" %1 \"%2\"").arg(byKeys ? "type" : "paste", text);
    const QString type = dialog() ? Refusals::chosenType(*dialog()) : QString();
    // A validator drops what it does not take: of "12.5" a count keeps "125".
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
    return left;
}

void RandomUser::leave(QWidget* field)
{
    const int key = below(2) ? Qt::Key_Return : Qt::Key_Tab;
    m_story += key == Qt::Key_Tab ? " Tab" : " Enter";
    QTest::keyClick(field, Qt::Key(key));
}

void RandomUser::activate(QWidget* window)
{
    if (window->isVisible() && !window->isActiveWindow()) {
        QApplication::setActiveWindow(window);
    }
}

/// Moves the focus there as a click or Tab would. False if the control cannot have it.
bool RandomUser::focus(QWidget* control)
{
    const QPointer<QWidget> reached(control);
    activate(control->window());
    if (reached && control->isVisible()) {
        control->setFocus(below(2) ? Qt::MouseFocusReason : Qt::TabFocusReason);
    }
    return reached && control->isVisible() && control->hasFocus();
}

/// What follows happens while an entry is pending, or makes one pending. True: the dialog had to be
/// opened first.
bool RandomUser::hadToOpenDialog()
{
    if (dialog() && dialog()->isVisible()) {
        return false;
    }
    openDialog();
    return true;
}

void RandomUser::chooseType()
{
    if (hadToOpenDialog()) {
        return;
    }
    m_story = oneOf(QStringList{"m_pLineTB", "m_pPadTB", "m_pSurfaceTB", "m_pArcTB", "m_pTextTB"});
    QTest::mouseClick(&findNamed(*dialog(), m_story), Qt::LeftButton);
}

/// The dialog's controls that are wanted and can be reached.
QList<QWidget*> RandomUser::reachable(bool (*isWanted)(const QWidget& control)) const
{
    QList<QWidget*> found;
    for (QWidget* const control : dialog()->findChildren<QWidget*>()) {
        if (control->isVisible() && control->isEnabled() && control->window() == dialog() &&
            !control->objectName().startsWith("qt_") && isWanted(*control)) {
            found.append(control);
        }
    }
    return found;
}

void RandomUser::typeAndStay()
{
    if (hadToOpenDialog()) {
        return;
    }
    const QList<QWidget*> fields = reachable([](const QWidget& control) {
        return qobject_cast<const QLineEdit*>(&control) || qobject_cast<const QSpinBox*>(&control);
    });
    if (fields.isEmpty()) {
        m_story = QStringLiteral("wait");
        return;
    }
    QWidget* const field = oneOf(fields);
    m_story = field->objectName();
    if (auto* const edit = qobject_cast<QLineEdit*>(field)) {
        enterText(edit);
    } else if (focus(field)) {
        QTest::keyClicks(field, QString::number(below(10)));
    }
}

void RandomUser::moveFocus()
{
    if (hadToOpenDialog()) {
        return;
    }
    const QList<QWidget*> controls = reachable(
        [](const QWidget& control) { return bool(control.focusPolicy() & Qt::TabFocus); });
    if (controls.isEmpty()) {
        m_story = QStringLiteral("wait");
        return;
    }
    QWidget* const control = oneOf(controls);
    m_story = control->objectName();
    focus(control);
}
