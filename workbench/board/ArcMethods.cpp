#include "board/ArcMethods.h"

#include "board/Paths.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace Pcb {
namespace {

using Clicks = QVector<QPointF>;
using Arc = std::optional<Geometry>;

Geometry made(const Brush& brush, const QPointF& from, const QPointF& to, const QPointF& centre)
{
    return arcGeometry(brush.symbol, from, to, centre, brush.clockwise);
}

/// From `start` around `centre`, `way` degrees in the brush's direction.
Arc turning(const Brush& brush, const QPointF& start, const QPointF& centre, double way)
{
    if (start == centre || way <= 0) {
        return std::nullopt;
    }
    const QPointF end = way >= 360 ? start : turned(start, centre, brush.clockwise ? -way : way);
    return made(brush, start, end, centre);
}

/// From `start` to `end` over `way` degrees in the brush's direction.
Arc spanning(const Brush& brush, const QPointF& start, const QPointF& end, double way)
{
    const double half = distance(start, end) / 2;
    if (half <= 0 || way <= 0 || way >= 360) {
        return std::nullopt;
    }
    const double depth = half / std::tan(qDegreesToRadians(way / 2));
    const double side = angleOf(start, end) + (brush.clockwise ? -90 : 90);
    return made(brush, start, end, polar((start + end) / 2, depth, side));
}

Arc startCenterEnd(const Brush& brush, const Clicks& clicks)
{
    const QPointF centre = clicks.at(1);
    const double radius = distance(centre, clicks.at(0));
    if (radius <= 0 || clicks.at(2) == centre) {
        return std::nullopt;
    }
    const double way =
        sweepBetween(angleOf(centre, clicks.at(0)), angleOf(centre, clicks.at(2)), brush.clockwise);
    return turning(brush, clicks.at(0), centre, way);
}

Arc startEndEdge(const Brush& brush, const Clicks& clicks)
{
    const std::optional<QPointF> centre = circumcentre(clicks.at(0), clicks.at(1), clicks.at(2));
    if (!centre) {
        return std::nullopt;
    }
    const double start = angleOf(*centre, clicks.at(0));
    const double toEnd = sweepBetween(start, angleOf(*centre, clicks.at(1)), false);
    const double toEdge = sweepBetween(start, angleOf(*centre, clicks.at(2)), false);
    Geometry arc = made(brush, clicks.at(0), clicks.at(1), *centre);
    arc.clockwise = toEdge > toEnd;
    return arc;
}

Arc startEndCenter(const Brush& brush, const Clicks& clicks)
{
    const QPointF chord = clicks.at(1) - clicks.at(0);
    const double length2 = QPointF::dotProduct(chord, chord);
    if (length2 <= 0) {
        return std::nullopt;
    }
    const QPointF across(-chord.y(), chord.x());
    const QPointF middle = (clicks.at(0) + clicks.at(1)) / 2;
    const double depth = QPointF::dotProduct(clicks.at(2) - middle, across) / length2;
    return made(brush, clicks.at(0), clicks.at(1), middle + across * depth);
}

Arc startCenterAngle(const Brush& brush, const Clicks& clicks)
{
    const QPointF centre = clicks.at(1);
    const double way =
        sweepBetween(angleOf(centre, clicks.at(0)), angleOf(centre, clicks.at(2)), brush.clockwise);
    return turning(brush, clicks.at(0), centre, std::round(way));
}

Arc startCenterLength(const Brush& brush, const Clicks& clicks)
{
    const double radius = distance(clicks.at(0), clicks.at(1));
    if (radius <= 0) {
        return std::nullopt;
    }
    const double way = qRadiansToDegrees(distance(clicks.at(0), clicks.at(2)) / radius);
    return turning(brush, clicks.at(0), clicks.at(1), std::min(way, 360.0));
}

Arc startEndAngle(const Brush& brush, const Clicks& clicks)
{
    const double between = std::abs(std::remainder(
        angleOf(clicks.at(0), clicks.at(2)) - angleOf(clicks.at(0), clicks.at(1)), 360));
    return spanning(brush, clicks.at(0), clicks.at(1), std::round(2 * between));
}

Arc startEndRadius(const Brush& brush, const Clicks& clicks)
{
    const double half = distance(clicks.at(0), clicks.at(1)) / 2;
    const double radius = std::max(distance(clicks.at(1), clicks.at(2)), half);
    if (half <= 0) {
        return std::nullopt;
    }
    return spanning(brush, clicks.at(0), clicks.at(1),
                    2 * qRadiansToDegrees(std::asin(half / radius)));
}

struct MethodOfArc {
    ArcMethod method;
    Arc (*make)(const Brush&, const Clicks&);
};

constexpr MethodOfArc arcMethods[] = {
    {ArcMethod::StartCenterEnd, startCenterEnd},
    {ArcMethod::StartEndEdge, startEndEdge},
    {ArcMethod::StartEndCenter, startEndCenter},
    {ArcMethod::StartCenterAngle, startCenterAngle},
    {ArcMethod::StartCenterLength, startCenterLength},
    {ArcMethod::StartEndAngle, startEndAngle},
    {ArcMethod::StartEndRadius, startEndRadius},
};

Arc centerRadius(const Brush& brush, const Clicks& clicks)
{
    const QPointF start = clicks.at(0) + QPointF(distance(clicks.at(0), clicks.at(1)), 0);
    return made(brush, start, start, clicks.at(0));
}

Arc centerPoint(const Brush& brush, const Clicks& clicks)
{
    return made(brush, clicks.at(1), clicks.at(1), clicks.at(0));
}

Arc pointCenter(const Brush& brush, const Clicks& clicks)
{
    return made(brush, clicks.at(0), clicks.at(0), clicks.at(1));
}

Arc threePoints(const Brush& brush, const Clicks& clicks)
{
    const std::optional<QPointF> centre = circumcentre(clicks.at(0), clicks.at(1), clicks.at(2));
    return centre ? Arc(made(brush, clicks.at(0), clicks.at(0), *centre)) : std::nullopt;
}

struct MethodOfCircle {
    CircleMethod method;
    int clicks;
    Arc (*make)(const Brush&, const Clicks&);
};

constexpr MethodOfCircle circleMethods[] = {
    {CircleMethod::CenterRadius, 2, centerRadius},
    {CircleMethod::CenterPoint, 2, centerPoint},
    {CircleMethod::PointCenter, 2, pointCenter},
    {CircleMethod::ThreePoints, 3, threePoints},
};

const MethodOfCircle& rowOf(CircleMethod method)
{
    return circleMethods[static_cast<int>(method) - 1];
}

}  // namespace

int clicksOf(CircleMethod method)
{
    return rowOf(method).clicks;
}

std::optional<QPointF> circumcentre(const QPointF& a, const QPointF& b, const QPointF& c)
{
    const QPointF toB = b - a;
    const QPointF toC = c - a;
    const double twice = 2 * (toB.x() * toC.y() - toB.y() * toC.x());
    const double b2 = QPointF::dotProduct(toB, toB);
    const double c2 = QPointF::dotProduct(toC, toC);
    if (std::abs(twice) <= 1e-9 * std::max(b2, c2)) {
        return std::nullopt;
    }
    return a + QPointF(toC.y() * b2 - toB.y() * c2, toB.x() * c2 - toC.x() * b2) / twice;
}

Arc arcOf(const Brush& brush, const Clicks& clicks)
{
    return arcMethods[static_cast<int>(brush.arcMethod) - 1].make(brush, clicks);
}

Arc circleOf(const Brush& brush, const Clicks& clicks)
{
    const Arc circle = rowOf(brush.circleMethod).make(brush, clicks);
    return circle && circle->points.at(0) != circle->points.at(2) ? circle : std::nullopt;
}

}  // namespace Pcb
