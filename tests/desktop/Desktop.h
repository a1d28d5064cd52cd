#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

class QWidget;

/// A user's hands: the pointer and the keyboard of the display, moved from outside the process.
namespace Desktop {

/// Waits until `window` is the window manager's active one.
void waitForWindow(QWidget* window);

/// Its place on the screen with its frame. A widget keeps what it was first told of its frame,
/// which a busy window manager may have been about to change; its window does not.
QRect frame(const QWidget& window);

/// Moves the window, and waits until it is there.
void move(QWidget& window, const QPoint& place);

/// Clicks the middle of the widget (or `place` in it, if given). Returns when the program has
/// handled the click and is idle again, or is in a menu or box that the click has opened.
void click(const QWidget& widget, int button = 1, QPoint place = {-1, -1});
void clickAt(const QPoint& globalPlace, int button = 1);

/// Whether nothing on the screen covers the window. A cursor in it may blink.
bool isSeen(const QWidget& window);

/// Types into what has the focus. Keys are named as the display names them: "Return", "Tab".
void type(const QString& text);
void key(const QString& name);

/// Closes the active window by the window manager's keys. Returns when it is closed, or asks first.
void closeByKeys(const QWidget& window);

}  // namespace Desktop
