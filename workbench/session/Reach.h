#pragma once

#include "session/Step.h"

#include <QPoint>
#include <QPointF>

#include <optional>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

/// What the words of a session name: widgets, places on them and on the board, entries of menus.
/// What cannot be found or reached is a StepFault.
namespace Reach {

/// By object name in all windows. A visible widget is preferred to a hidden one, and one in the
/// active window to others. Null when there is none.
QWidget* findWidget(const QString& name);
/// The same; it must be there.
QWidget* widget(const QString& name);
/// Faults if a user could not work on it by mouse or keyboard now.
void requireFree(const QWidget* widget);
/// The widget called `name`, when a user can work on it. Its window is made active.
QWidget* reach(const QString& name);

/// Where the mouse should be.
struct Target {
    enum Kind {
        Centre,
        Pixels,  ///< in the coordinates of the widget
        Board    ///< in micrometres on the board that the widget shows, y up
    };
    QString name;
    Kind kind = Centre;
    QPointF place = {};
    bool mayLeave = false;  ///< the place may be outside the widget: a drag leaves it
};
/// Where that is now.
struct Place {
    QWidget* widget;
    QPoint position;  ///< in the coordinates of the widget
};
/// The mouse could reach it.
Place reach(const Target& target);

/// The object name of the canvas. It offers two methods that can be invoked by name:
/// "QPoint viewPoint(double x, double y)" from the board to its pixels, and
/// "QPointF boardPoint(QPoint)" back.
extern const QString canvasName;
/// Nothing for a widget without these methods.
std::optional<QPointF> boardPlace(QWidget* canvas, const QPoint& position);
/// "1000 -250.5", without a unit, as the steps of a session take it.
QString placeText(const QPointF& place);
/// A length with a unit (um, mm, mil, inch; um when absent) in micrometres. Throws a WordError.
double length(const QString& word);

/// The text of a menu's entry without mnemonic mark and shortcut.
QString textOf(const QAction* entry);
/// The entry of that text, or of that object name, that can be chosen.
QAction* entry(const QMenu* menu, const QString& name);
/// The menu bar that holds `menu`; null if none does.
QMenuBar* barOf(const QMenu* menu);

}  // namespace Reach
