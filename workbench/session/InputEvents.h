#pragma once

#include <QKeySequence>
#include <QPoint>
#include <QString>

class QWidget;

/// Mouse and key events as a window system sends them: they go to the window, and Qt finds the
/// widget. Each call returns when the events are handled. Not by Qt Test: its functions bypass
/// menus and boxes that would keep a user from the widget, and do not belong in a program.
namespace InputEvents {

/// `position` is in the coordinates of `widget`.
void click(QWidget* widget, const QPoint& position, Qt::MouseButton button = Qt::LeftButton);
void doubleClick(QWidget* widget, const QPoint& position);

/// The parts of a drag. What is held counts from press() to release(); a move may leave the widget.
void press(QWidget* widget, const QPoint& position, Qt::MouseButton button);
void move(QWidget* widget, const QPoint& position);
void release(QWidget* widget, const QPoint& position, Qt::MouseButton button);

/// `notches` away from the user are positive; a fine wheel reports fractions of one.
void wheel(QWidget* widget, const QPoint& position, double notches);

/// To the widget of `window` that has the focus, or to the shortcut that takes it. `combination` is
/// one key with its modifiers.
void key(QWidget* window, const QKeySequence& combination);
void type(QWidget* window, const QString& text);

/// "Enter", "Tab", "Ctrl+A"; empty for a name that is not a key.
QKeySequence keyOfName(const QString& name);

}  // namespace InputEvents
