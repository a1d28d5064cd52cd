#include "session/InputEvents.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

// As Qt's own tests send keys: a shortcut is tried before the key reaches a widget.
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* receiver, ulong timestamp, int key,
                                               Qt::KeyboardModifiers modifiers,
                                               const QString& text = QString(),
                                               bool repeated = false, ushort count = 1);
QT_END_NAMESPACE

namespace InputEvents {
namespace {

/// Sends mouse events at one place of one window; the window may go while they are handled.
class Mouse {
public:
    Mouse(QWidget* widget, const QPoint& position)
        : m_window(widget->window()->windowHandle()),
          m_local(widget->mapTo(widget->window(), position)),
          m_global(widget->mapToGlobal(position))
    {
    }

    void send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons pressed)
    {
        if (m_window) {
            QMouseEvent event(type, m_local, m_local, m_global, button, pressed, Qt::NoModifier);
            QCoreApplication::sendEvent(m_window, &event);
        }
    }

private:
    QPointer<QWindow> m_window;
    QPointF m_local;
    QPointF m_global;
};

Qt::MouseButtons withoutOne(Qt::MouseButton button)
{
    Qt::MouseButtons others = QGuiApplication::mouseButtons();
    others.setFlag(button, false);
    return others;
}

void sendKey(QWidget* window, int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    const QPointer<QWindow> handle = window->windowHandle();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (handle) {
            QKeyEvent event(type, key, modifiers, text);
            QCoreApplication::sendEvent(handle, &event);
        }
    }
}

QString textOf(int key)
{
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return QStringLiteral("\r");
        case Qt::Key_Tab:
            return QStringLiteral("\t");
        case Qt::Key_Escape:
            return QStringLiteral("\x1b");
        case Qt::Key_Backspace:
            return QStringLiteral("\b");
        default:
            return key < Qt::Key_Escape ? QString(QChar(key)).toLower() : QString();
    }
}

}  // namespace

void click(QWidget* widget, const QPoint& position, Qt::MouseButton button)
{
    Mouse mouse(widget, position);
    mouse.send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
    mouse.send(QEvent::MouseButtonPress, button, button);
    mouse.send(QEvent::MouseButtonRelease, button, Qt::NoButton);
}

void press(QWidget* widget, const QPoint& position, Qt::MouseButton button)
{
    Mouse mouse(widget, position);
    mouse.send(QEvent::MouseMove, Qt::NoButton, QGuiApplication::mouseButtons());
    mouse.send(QEvent::MouseButtonPress, button, QGuiApplication::mouseButtons() | button);
}

void move(QWidget* widget, const QPoint& position)
{
    Mouse(widget, position).send(QEvent::MouseMove, Qt::NoButton, QGuiApplication::mouseButtons());
}

void release(QWidget* widget, const QPoint& position, Qt::MouseButton button)
{
    Mouse(widget, position).send(QEvent::MouseButtonRelease, button, withoutOne(button));
}

void wheel(QWidget* widget, const QPoint& position, double notches)
{
    constexpr double eighthsOfDegree = 120.0;  // of a notch
    QWindow* const window = widget->window()->windowHandle();
    if (window) {
        QWheelEvent event(widget->mapTo(widget->window(), position), widget->mapToGlobal(position),
                          QPoint(), QPoint(0, qRound(notches * eighthsOfDegree)),
                          QGuiApplication::mouseButtons(), Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(window, &event);
    }
}

void doubleClick(QWidget* widget, const QPoint& position)
{
    Mouse mouse(widget, position);
    const QPoint inWindow = widget->mapTo(widget->window(), position);
    QWidget* const child = widget->window()->childAt(inWindow);
    const QPointer<QWidget> hit = child ? child : widget->window();
    mouse.send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
    mouse.send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    mouse.send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    mouse.send(QEvent::MouseButtonDblClick, Qt::LeftButton, Qt::LeftButton);
    if (hit) {
        // Qt passes a release on only after a press; of a double click it has seen none.
        QMouseEvent release(QEvent::MouseButtonRelease, hit->mapFrom(hit->window(), inWindow),
                            Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(hit, &release);
    }
}

void key(QWidget* window, const QKeySequence& combination)
{
    const int code = combination[0] & ~static_cast<int>(Qt::KeyboardModifierMask);
    const Qt::KeyboardModifiers modifiers(combination[0] &
                                          static_cast<int>(Qt::KeyboardModifierMask));
    const bool plain = !(modifiers & ~Qt::KeyboardModifiers(Qt::ShiftModifier));
    const QString text = plain ? textOf(code) : QString();
    QWidget* const focus = QApplication::focusWidget();
    if (focus && !QApplication::activePopupWidget() &&
        qt_sendShortcutOverrideEvent(focus, 0, code, modifiers, text)) {
        return;
    }
    sendKey(window, code, modifiers, text);
}

void type(QWidget* window, const QString& text)
{
    const QPointer<QWidget> alive = window;
    for (const QChar c : text) {
        if (!alive) {
            return;
        }
        const Qt::KeyboardModifiers modifiers = c.isUpper() ? Qt::ShiftModifier : Qt::NoModifier;
        sendKey(window, c.toUpper().unicode(), modifiers, QString(c));
    }
}

QKeySequence keyOfName(const QString& name)
{
    // To Qt, "Enter" is the key of the numeric keypad.
    QString known = name;
    if (known == QLatin1String("Enter") || known.endsWith(QLatin1String("+Enter"))) {
        known.replace(QLatin1String("Enter"), QLatin1String("Return"));
    }
    const QKeySequence sequence = QKeySequence::fromString(known, QKeySequence::PortableText);
    const bool one = sequence.count() == 1 && (sequence[0] & 0x01ffffff) != Qt::Key_unknown;
    return one ? sequence : QKeySequence();
}

}  // namespace InputEvents
