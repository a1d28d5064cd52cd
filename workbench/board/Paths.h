#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>
#include <QVector>

/// Plane geometry of the board. Lengths are micrometres, y points up, angles are degrees
/// counterclockwise from the positive x axis.
namespace Pcb {

/// The farthest that a flattened curve may lie from the true one.
constexpr double flatness = 1.0;

double distance(const QPointF& a, const QPointF& b);

/// The angle of the direction from `a` to `b`, at least 0 and below 360; 0 for equal points.
double angleOf(const QPointF& a, const QPointF& b);

QPointF polar(const QPointF& centre, double radius, double angle);

/// The sweep from angle `start` to `end` in the given direction, above 0 and at most 360: equal
/// angles are a full turn.
double sweepBetween(double start, double end, bool clockwise);

/// `point` turned around `centre`.
QPointF turned(const QPointF& point, const QPointF& centre, double degrees);

/// An open path along a circle. A negative `sweep` runs clockwise.
QPainterPath arcPath(const QPointF& centre, double radius, double start, double sweep);

QPainterPath circlePath(const QPointF& centre, double radius);

/// The area that a round pen of `width` covers along `middle`; a single point gives a disc.
QPainterPath roundStroke(const QPainterPath& middle, double width);
/// The same for strokes; one of a single point is a dot, which a path would drop.
QPainterPath roundStrokes(const QVector<QPolygonF>& strokes, double width);

/// The convex hull, counterclockwise, without its first corner repeated. Fewer than three points
/// are returned as they are.
QPolygonF convexHull(QPolygonF points);

/// Positive for a counterclockwise polygon, in square micrometres.
double signedArea(const QPolygonF& polygon);

/// The outlines of a path, flattened to within `flatness` and closed implicitly.
QVector<QPolygonF> flattened(const QPainterPath& path);

/// How far `point` lies from the segment `a` to `b`.
double distanceToSegment(const QPointF& point, const QPointF& a, const QPointF& b);

/// Whether `point` lies in the path or no farther from it than `tolerance`.
bool isNear(const QPainterPath& path, const QPointF& point, double tolerance);

}  // namespace Pcb
