#pragma once

#include <QPainterPath>
#include <QPolygonF>
#include <QVector>

/// Areas as their outlines. Lengths are micrometres, y points up.
namespace Pcb {

/// An outline with the holes that lie directly in it; none of them crosses another.
struct Island {
    QPolygonF outline;         ///< counterclockwise
    QVector<QPolygonF> holes;  ///< clockwise
};

/// A path split into islands, with corners on whole nanometres. Islands within holes are separate
/// islands.
QVector<Island> islands(const QPainterPath& path);

/// One closed outline for an island: each hole is joined by a horizontal cut, as a Gerber region
/// has no holes.
QPolygonF cutOpen(const Island& island);

/// The same area by the winding rule: outlines counterclockwise, holes clockwise, none crossing.
QPainterPath byWinding(const QPainterPath& path);

}  // namespace Pcb
