#pragma once

#include <QPoint>
#include <QString>

class QWidget;

/// A user's hands: the pointer and the keyboard of the display, moved from outside the process.
namespace Desktop {

/// Waits until `window` is the active one of the window manager.
void waitForWindow(QWidget* window);

/// Clicks into the middle of the widget (at `place` in it when given). Returns when the program has
/// had the click and is idle again, or is in a menu or box that the click has opened.
void click(const QWidget& widget, int button = 1, QPoint place = {-1, -1});
void clickAt(const QPoint& globalPlace, int button = 1);

/// Types into what has the focus. Names of keys as the display knows them: "Return", "Tab".
void type(const QString& text);
void key(const QString& name);

}  // namespace Desktop
