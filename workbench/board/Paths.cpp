#include "board/Paths.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace Pcb {
namespace {

double cross(const QPointF& origin, const QPointF& a, const QPointF& b)
{
    return (a.x() - origin.x()) * (b.y() - origin.y()) -
           (a.y() - origin.y()) * (b.x() - origin.x());
}

void appendCapsule(QPainterPath& path, const QPointF& from, const QPointF& to, double radius)
{
    QPainterPath level;
    level.addRoundedRect(-radius, -radius, distance(from, to) + 2 * radius, 2 * radius, radius,
                         radius);
    path.addPath(
        QTransform::fromTranslate(from.x(), from.y()).rotate(angleOf(from, to)).map(level));
}

QPolygonF opened(QPolygonF polygon)
{
    while (polygon.size() > 1 && polygon.first() == polygon.last()) {
        polygon.removeLast();
    }
    return polygon;
}

}  // namespace

double distance(const QPointF& a, const QPointF& b)
{
    return std::hypot(b.x() - a.x(), b.y() - a.y());
}

double angleOf(const QPointF& a, const QPointF& b)
{
    const double degrees = qRadiansToDegrees(std::atan2(b.y() - a.y(), b.x() - a.x()));
    return degrees < 0 ? degrees + 360 : degrees;
}

QPointF polar(const QPointF& centre, double radius, double angle)
{
    const double radians = qDegreesToRadians(angle);
    return centre + QPointF(std::cos(radians), std::sin(radians)) * radius;
}

double sweepBetween(double start, double end, bool clockwise)
{
    const double way = std::fmod(clockwise ? start - end : end - start, 360);
    return way <= 1e-9 ? way + 360 : way;
}

QPointF turned(const QPointF& point, const QPointF& centre, double degrees)
{
    const double radians = qDegreesToRadians(degrees);
    const QPointF arm = point - centre;
    return centre + QPointF(arm.x() * std::cos(radians) - arm.y() * std::sin(radians),
                            arm.x() * std::sin(radians) + arm.y() * std::cos(radians));
}

QPainterPath arcPath(const QPointF& centre, double radius, double start, double sweep)
{
    // Qt measures its angles in a plane whose y points down.
    const QRectF square(centre - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
    QPainterPath path;
    path.arcMoveTo(square, -start);
    path.arcTo(square, -start, -sweep);
    return path;
}

QPainterPath circlePath(const QPointF& centre, double radius)
{
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

QPainterPath roundStroke(const QPainterPath& middle, double width)
{
    return roundStrokes(middle.toSubpathPolygons().toVector(), width);
}

QPainterPath roundStrokes(const QVector<QPolygonF>& strokes, double width)
{
    QPainterPath area;
    area.setFillRule(Qt::WindingFill);
    for (const QPolygonF& part : strokes) {
        if (part.size() == 1) {
            appendCapsule(area, part.first(), part.first(), width / 2);
        }
        for (int i = 1; i < part.size(); ++i) {
            appendCapsule(area, part.at(i - 1), part.at(i), width / 2);
        }
    }
    return area;
}

QPolygonF convexHull(QPolygonF points)
{
    std::sort(points.begin(), points.end(), [](const QPointF& a, const QPointF& b) {
        return a.x() < b.x() || (a.x() == b.x() && a.y() < b.y());
    });
    points.erase(std::unique(points.begin(), points.end()), points.end());
    if (points.size() < 3) {
        return points;
    }
    QPolygonF hull;
    const auto addChain = [&hull](auto begin, auto end) {
        const int first = hull.size();
        for (auto point = begin; point != end; ++point) {
            while (hull.size() >= first + 2 &&
                   cross(hull.at(hull.size() - 2), hull.last(), *point) <= 0) {
                hull.removeLast();
            }
            hull.append(*point);
        }
        hull.removeLast();
    };
    addChain(points.cbegin(), points.cend());
    addChain(points.crbegin(), points.crend());
    return hull;
}

double signedArea(const QPolygonF& polygon)
{
    double twice = 0;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF a = polygon.at(i);
        const QPointF b = polygon.at((i + 1) % polygon.size());
        twice += a.x() * b.y() - b.x() * a.y();
    }
    return twice / 2;
}

QVector<QPolygonF> flattened(const QPainterPath& path)
{
    QVector<QPolygonF> all;
    for (const QPolygonF& polygon : path.toSubpathPolygons()) {
        all.append(opened(polygon));
    }
    return all;
}

double distanceToSegment(const QPointF& point, const QPointF& a, const QPointF& b)
{
    const QPointF way = b - a;
    const double length2 = QPointF::dotProduct(way, way);
    const double part =
        length2 > 0 ? qBound(0.0, QPointF::dotProduct(point - a, way) / length2, 1.0) : 0;
    return distance(point, a + way * part);
}

bool isNear(const QPainterPath& path, const QPointF& point, double tolerance)
{
    const QRectF around =
        path.controlPointRect().adjusted(-tolerance, -tolerance, tolerance, tolerance);
    if (!around.contains(point)) {
        return false;
    }
    if (path.contains(point)) {
        return true;
    }
    for (const QPolygonF& polygon : flattened(path)) {
        for (int i = 0; i < polygon.size(); ++i) {
            const QPointF next = polygon.at((i + 1) % polygon.size());
            if (distanceToSegment(point, polygon.at(i), next) <= tolerance) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace Pcb
