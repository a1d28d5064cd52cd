#pragma once

#include "session/StepTable.h"

#include <QPoint>
#include <QPointF>

class QWidget;

/// How the actions of a session find their widgets, and the place on them.
namespace StepReach {

/// A place on a widget.
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

StepResult again(const QString& reason);
StepResult failed(const QString& reason);

/// The widget called `name`; null, with the reason, when there is none.
QWidget* find(const QString& name, StepResult* result);
/// The same when a user could work on it now. Its window is made active.
QWidget* reach(const QString& name, StepResult* result);
/// The same, with the place of `target` in its coordinates, where the mouse could reach it.
QWidget* reach(const Target& target, QPoint* position, StepResult* result);

}  // namespace StepReach
