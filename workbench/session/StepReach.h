#pragma once

#include "session/Step.h"

#include <QPoint>
#include <QPointF>

class QWidget;

/// How the actions of a session find their widgets, and the place on them. What cannot be found or
/// reached is a StepFault.
namespace StepReach {

/// Where the mouse should be, as a session says it.
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

/// The widget called `name`.
QWidget* find(const QString& name);
/// The same when a user could work on it now. Its window is made active.
QWidget* reach(const QString& name);
/// The same, and the place where the mouse could reach it.
Place reach(const Target& target);

}  // namespace StepReach
