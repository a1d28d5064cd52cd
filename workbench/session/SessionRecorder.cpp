#include "session/SessionRecorder.h"

#include "session/BoxAnswers.h"
#include "session/Reach.h"
#include "shared/TakesText.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QShortcutEvent>
#include <QTextEdit>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

namespace {

QWidget* widgetOf(const QObject* window)
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() == window) {
            return widget;
        }
    }
    return nullptr;
}

/// The widget under the mouse, or the window itself.
QWidget* hitBy(QWidget* window, const QPoint& global)
{
    QWidget* const child = window->childAt(window->mapFromGlobal(global));
    return child ? child : window;
}

/// The combo box whose list `popup` is; null if it is not a list.
QComboBox* comboOf(const QWidget* popup)
{
    return popup->inherits("QComboBoxPrivateContainer")
               ? qobject_cast<QComboBox*>(popup->parentWidget())
               : nullptr;
}

/// Whether a press on `hit` opens a list or a menu, in which the choice is the step.
bool onlyOpens(QWidget* hit)
{
    const auto* const combo = qobject_cast<const QComboBox*>(hit);
    return combo || qobject_cast<const QMenuBar*>(hit);
}

bool isInBox(const QWidget* widget)
{
    return qobject_cast<const QMessageBox*>(widget->window()) != nullptr;
}

QString buttonName(Qt::MouseButton button)
{
    return button == Qt::MiddleButton ? QStringLiteral("middle") : QString();
}

bool isModifier(int key)
{
    static const QVector<int> keys{Qt::Key_Shift,   Qt::Key_Control, Qt::Key_Alt,
                                   Qt::Key_AltGr,   Qt::Key_Meta,    Qt::Key_CapsLock,
                                   Qt::Key_NumLock, Qt::Key_unknown};
    return keys.contains(key);
}

/// Whether the key does more in a text than change it or move the cursor.
bool leavesText(int key)
{
    static const QVector<int> keys{Qt::Key_Return,  Qt::Key_Enter,  Qt::Key_Tab,
                                   Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Up,
                                   Qt::Key_Down,    Qt::Key_PageUp, Qt::Key_PageDown};
    return keys.contains(key);
}

bool isConfirmation(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

QString keyName(const QKeyEvent* event)
{
    int key = event->key();
    Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        // Qt calls the main Enter key "Return".
        const QString prefix = QKeySequence(static_cast<int>(modifiers)).toString();
        return prefix + QStringLiteral("Enter");
    }
    if (key == Qt::Key_Backtab) {
        key = Qt::Key_Tab;
        modifiers |= Qt::ShiftModifier;
    }
    return QKeySequence(key | static_cast<int>(modifiers)).toString(QKeySequence::PortableText);
}

}  // namespace

SessionRecorder::SessionRecorder(QWidget* window, QObject* parent)
    : QObject(parent), m_window(window)
{
}

void SessionRecorder::start(const QString& file, const QString& remark)
{
    m_file.open(file);
    m_file.comment(QStringLiteral("Recorded by hand."));
    if (!remark.isEmpty()) {
        m_file.comment(remark);
    }
    // What is done in the platform's own dialogs is not seen here.
    m_avoidedNativeDialogs = QApplication::testAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    qApp->installEventFilter(this);
    m_focus = connect(qApp, &QApplication::focusChanged, this,
                      [this](QWidget*, QWidget* focus) { watchText(focus); });
    watchText(QApplication::focusWidget());
}

void SessionRecorder::stop(const QStringList& last)
{
    qApp->removeEventFilter(this);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs, m_avoidedNativeDialogs);
    disconnect(m_focus);
    disconnect(m_text);
    if (m_file.last() == last) {
        m_file.drop();
    }
    m_file.close();
}

bool SessionRecorder::eventFilter(QObject* watched, QEvent* event)
{
    // Windows get each event once; widgets may pass theirs on to what holds them.
    if (event->type() == QEvent::Shortcut) {
        shortcut(watched, static_cast<const QShortcutEvent*>(event));
    } else if (watched->isWindowType()) {
        readWindowEvent(watched, event);
    } else if (watched->isWidgetType()) {
        readWidgetEvent(static_cast<QWidget*>(watched), event);
    }
    return false;
}

void SessionRecorder::readWindowEvent(QObject* watched, QEvent* event)
{
    const auto mouse = [&] { return static_cast<const QMouseEvent*>(event); };
    const auto hit = [&] { return locate(watched, mouse()->localPos(), mouse()->screenPos()); };
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            press(hit(), mouse());
            break;
        case QEvent::MouseButtonDblClick:
            doubleClick(hit());
            break;
        case QEvent::MouseMove:
            hit();
            move(mouse());
            break;
        case QEvent::MouseButtonRelease:
            hit();
            release(mouse());
            break;
        case QEvent::Wheel: {
            const auto* const turned = static_cast<const QWheelEvent*>(event);
            wheel(locate(watched, turned->position(), turned->globalPosition()), turned);
            break;
        }
        case QEvent::KeyPress:
            key(static_cast<const QKeyEvent*>(event));
            break;
        default:
            break;
    }
}

QWidget* SessionRecorder::locate(const QObject* watched, const QPointF& local,
                                 const QPointF& global)
{
    // Widgets get the window's whole pixels; those of the screen may start elsewhere.
    QWidget* const window = widgetOf(watched);
    m_mouse = window ? window->mapToGlobal(local.toPoint()) : global.toPoint();
    return window ? hitBy(window, m_mouse) : nullptr;
}

void SessionRecorder::readWidgetEvent(QWidget* widget, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        if (auto* const box = qobject_cast<QMessageBox*>(widget)) {
            watchBox(box);
        }
    } else if (event->type() == QEvent::ShortcutOverride) {
        // A list makes its choice on this event; the key itself goes to the combo box.
        QWidget* const popup = QApplication::activePopupWidget();
        if (popup && comboOf(popup)) {
            popupKey(popup, static_cast<const QKeyEvent*>(event));
        }
    } else if (event->type() == QEvent::Close && event->spontaneous() && widget->isWindow() &&
               widget != m_window && !isInBox(widget)) {
        if (const QWidget* const named = RecordedPlace::named(widget)) {
            m_file.append({QStringLiteral("close"), named->objectName()});
        }
    }
}

void SessionRecorder::press(QWidget* hit, const QMouseEvent* event)
{
    // The press before a double click is sent twice, the widget sees only the second.
    const bool doubled = event->flags() & Qt::MouseEventCreatedDoubleClick;
    m_held = false;
    m_dragged = false;
    if (!hit || doubled || QApplication::activePopupWidget() || isInBox(hit)) {
        return;
    }
    const bool right = event->button() == Qt::RightButton;
    if (onlyOpens(hit) && !right) {
        return;
    }
    const RecordedPlace place(hit, m_mouse);
    if (!place.isValid()) {
        m_file.comment(QStringLiteral("A click on something without a name was not recorded."));
    } else if (right) {
        m_rightClick = place;
        m_file.append(place.exact(QStringLiteral("rightclick")));
    } else {
        m_pressed = place;
        m_held = true;
        m_file.append(place.exact(QStringLiteral("press"), buttonName(event->button())));
    }
}

void SessionRecorder::doubleClick(QWidget* hit)
{
    m_held = false;
    if (!hit || QApplication::activePopupWidget() || isInBox(hit) || onlyOpens(hit)) {
        return;
    }
    const RecordedPlace place(hit, m_mouse);
    if (!place.isValid()) {
        return;
    }
    const QStringList words = place.click(QStringLiteral("doubleclick"));
    if (m_file.last() == place.click(QStringLiteral("click"))) {
        m_file.amend(words);
    } else {
        m_file.append(words);
    }
}

void SessionRecorder::move(const QMouseEvent* event)
{
    if (!m_held || !m_pressed.isValid() || event->buttons() == Qt::NoButton) {
        return;
    }
    const QPoint way = m_mouse - m_pressed.global();
    if (!m_dragged && way.manhattanLength() < QApplication::startDragDistance()) {
        return;
    }
    m_dragged = true;
    m_file.append(m_pressed.movedTo(m_mouse).exact(QStringLiteral("move")));
}

void SessionRecorder::release(const QMouseEvent* event)
{
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        popupRelease(popup);
        return;
    }
    if (!m_held || event->button() == Qt::RightButton) {
        return;
    }
    m_held = false;
    if (!m_pressed.isValid()) {
        return;  // gone since it was pressed
    }
    const QString button = buttonName(event->button());
    const bool still = m_file.last() == m_pressed.exact(QStringLiteral("press"), button);
    if (still && !m_dragged && event->button() == Qt::LeftButton) {
        m_file.amend(m_pressed.click(QStringLiteral("click")));
    } else {
        m_file.append(m_pressed.movedTo(m_mouse).exact(QStringLiteral("release"), button));
    }
}

void SessionRecorder::wheel(QWidget* hit, const QWheelEvent* event)
{
    constexpr double eighthsOfDegree = 120.0;  // of a notch
    if (!hit || event->angleDelta().y() == 0 || QApplication::activePopupWidget()) {
        return;
    }
    const RecordedPlace place(hit, m_mouse);
    if (place.isValid()) {
        m_file.append(place.wheel(event->angleDelta().y() / eighthsOfDegree));
    }
}

void SessionRecorder::key(const QKeyEvent* event)
{
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        popupKey(popup, event);
        return;
    }
    QWidget* const focus = QApplication::focusWidget();
    if (!focus || isInBox(focus) || isModifier(event->key()) ||
        (takesText(focus) && !leavesText(event->key()))) {
        return;
    }
    writeKey(focus, keyName(event));
}

void SessionRecorder::shortcut(const QObject* receiver, const QShortcutEvent* event)
{
    // If it opens a menu, the step is what is chosen there.
    QWidget* const focus = QApplication::focusWidget();
    if (focus && !isInBox(focus) && !qobject_cast<const QMenuBar*>(receiver)) {
        writeKey(focus, event->key().toString(QKeySequence::PortableText));
    }
}

void SessionRecorder::writeKey(QWidget* focus, const QString& key)
{
    QWidget* const named = RecordedPlace::named(focus);
    if (named && (named == focus || named->focusProxy() == focus)) {
        m_file.append({QStringLiteral("key"), named->objectName(), key});
    } else {
        m_file.comment(
            QStringLiteral("The key %1 to something without a name was not recorded.").arg(key));
    }
}

void SessionRecorder::popupRelease(QWidget* popup)
{
    if (auto* const menu = qobject_cast<QMenu*>(popup)) {
        chooseEntry(menu, menu->actionAt(menu->mapFromGlobal(m_mouse)));
    } else if (QComboBox* const combo = comboOf(popup)) {
        const QWidget* const view = combo->view()->viewport();
        const QPoint position = view->mapFromGlobal(m_mouse);
        if (view->rect().contains(position)) {
            chooseItem(combo, combo->view()->indexAt(position));
        }
    } else if (popup->rect().contains(popup->mapFromGlobal(m_mouse))) {
        m_file.comment(QStringLiteral("A choice in a list without a name was not recorded."));
    }
}

void SessionRecorder::popupKey(QWidget* popup, const QKeyEvent* event)
{
    if (auto* const menu = qobject_cast<QMenu*>(popup)) {
        const QAction* chosen = isConfirmation(event->key()) ? menu->activeAction() : nullptr;
        for (const QAction* const action : menu->actions()) {
            const QKeySequence mnemonic = QKeySequence::mnemonic(action->text());
            if (!mnemonic.isEmpty() &&
                mnemonic == QKeySequence(static_cast<int>(Qt::ALT) + event->key())) {
                chosen = action;
            }
        }
        chooseEntry(menu, chosen);
    } else if (QComboBox* const combo = comboOf(popup)) {
        if (isConfirmation(event->key())) {
            chooseItem(combo, combo->view()->currentIndex());
        }
    }
}

void SessionRecorder::chooseEntry(QMenu* menu, const QAction* action)
{
    if (!action || !action->isEnabled() || action->isSeparator() || action->menu()) {
        return;
    }
    const QString entry =
        action->objectName().isEmpty() ? Reach::textOf(action) : action->objectName();
    const QStringList before = m_file.last();
    if (Reach::barOf(menu) && !menu->objectName().isEmpty()) {
        m_file.append({QStringLiteral("menu"), menu->objectName(), entry});
        unlessClosed(menu, {});
    } else if (m_rightClick.isValid() &&
               before == m_rightClick.exact(QStringLiteral("rightclick"))) {
        m_file.amend(m_rightClick.click(QStringLiteral("rightclick")) + QStringList{entry});
        unlessClosed(menu, before);
    } else {
        m_file.comment(QStringLiteral("The choice of \"%1\" was not recorded.").arg(entry));
    }
}

void SessionRecorder::chooseItem(QComboBox* combo, const QModelIndex& index)
{
    if (!index.isValid() || !(index.flags() & Qt::ItemIsEnabled)) {
        return;
    }
    if (RecordedPlace::named(combo) != combo) {
        m_file.comment(QStringLiteral("A choice in a list without a name was not recorded."));
        return;
    }
    const QStringList words{QStringLiteral("choose"), combo->objectName(),
                            combo->itemText(index.row())};
    if (m_file.last() == words) {
        return;  // the same event, passed on
    }
    m_file.append(words);
    unlessClosed(combo->view(), {});
}

void SessionRecorder::unlessClosed(QWidget* popup, const QStringList& before)
{
    // The release that belongs to the press that opened a list or menu chooses nothing.
    const QPointer<QWidget> alive = popup;
    QTimer::singleShot(0, this, [this, alive, before, written = m_file.last()] {
        if (!alive || !alive->isVisible() || m_file.last() != written) {
            return;
        }
        if (before.isEmpty()) {
            m_file.drop();
        } else {
            m_file.amend(before);
        }
    });
}

void SessionRecorder::watchText(QWidget* focus)
{
    disconnect(m_text);
    if (!focus || !takesText(focus)) {
        return;
    }
    // Combo and spin boxes take the keys for the line edit in them.
    auto* const own = qobject_cast<QLineEdit*>(focus);
    QLineEdit* const edit = own ? own : focus->findChild<QLineEdit*>();
    if (edit) {
        m_text = connect(edit, &QLineEdit::textEdited, this,
                         [this, focus](const QString& text) { typed(focus, text); });
    } else if (auto* const plain = qobject_cast<QPlainTextEdit*>(focus)) {
        m_text = connect(plain, &QPlainTextEdit::textChanged, this,
                         [this, plain] { typed(plain, plain->toPlainText()); });
    } else if (auto* const rich = qobject_cast<QTextEdit*>(focus)) {
        m_text = connect(rich, &QTextEdit::textChanged, this,
                         [this, rich] { typed(rich, rich->toPlainText()); });
    }
}

void SessionRecorder::typed(QWidget* widget, const QString& text)
{
    const QWidget* const named = RecordedPlace::named(widget);
    if (!named || text.contains(QLatin1Char('\n'))) {
        m_file.comment(named ? QStringLiteral("A text of several lines was not recorded.")
                             : QStringLiteral("A text typed into something without a name was not "
                                              "recorded."));
        return;
    }
    const QStringList words{QStringLiteral("type"), named->objectName(), text};
    if (m_file.last().mid(0, 2) == words.mid(0, 2)) {
        m_file.amend(words);
    } else {
        m_file.append(words);
    }
}

void SessionRecorder::watchBox(QMessageBox* box)
{
    const auto finished = [this, box] {
        const BoxAnswer answer =
            BoxAnswers::meaning(box, box->clickedButton()).value_or(BoxAnswer::Accept);
        m_file.append({QStringLiteral("box"), BoxAnswers::words().at(static_cast<int>(answer)),
                       QStringLiteral("title=") + box->windowTitle().simplified(),
                       QStringLiteral("text=") + BoxAnswers::textOf(box)});
    };
    disconnect(box, &QDialog::finished, this, nullptr);  // shown before
    connect(box, &QDialog::finished, this, finished);
}
