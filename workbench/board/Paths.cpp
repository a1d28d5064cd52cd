#include "board/Paths.h"

#include <QtMath>

#include <polyclipping/clipper.hpp>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Pcb {
namespace {

QRectF squareAround(const QPointF& centre, double radius)
{
    return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

/// Qt measures its angles in a plane whose y points down.
void appendArc(QPainterPath& path, const QPointF& centre, double radius, double start, double sweep)
{
    path.arcTo(squareAround(centre, radius), -start, -sweep);
}

double cross(const QPointF& origin, const QPointF& a, const QPointF& b)
{
    return (a.x() - origin.x()) * (b.y() - origin.y()) -
           (a.y() - origin.y()) * (b.x() - origin.x());
}

void appendCapsule(QPainterPath& path, const QPointF& from, const QPointF& to, double radius)
{
    if (from == to) {
        path.addPath(circlePath(from, radius));
        return;
    }
    const double direction = angleOf(from, to);
    path.moveTo(polar(from, radius, direction - 90));
    appendArc(path, to, radius, direction - 90, 180);
    appendArc(path, from, radius, direction + 90, 180);
    path.closeSubpath();
}

QPolygonF opened(QPolygonF polygon)
{
    while (polygon.size() > 1 && polygon.first() == polygon.last()) {
        polygon.removeLast();
    }
    return polygon;
}

constexpr double unitsOfMicrometre = 1000;  // whole nanometres, as Gerber files have them
constexpr double farthestUnit = 1e15;

ClipperLib::Path toUnits(const QPolygonF& polygon)
{
    const auto unit = [](double micrometres) {
        return qRound64(qBound(-farthestUnit, micrometres * unitsOfMicrometre, farthestUnit));
    };
    ClipperLib::Path path;
    path.reserve(static_cast<size_t>(polygon.size()));
    for (const QPointF& point : polygon) {
        path.emplace_back(unit(point.x()), unit(point.y()));
    }
    return path;
}

QPolygonF fromUnits(const ClipperLib::Path& path)
{
    QPolygonF polygon;
    polygon.reserve(static_cast<int>(path.size()));
    for (const ClipperLib::IntPoint& point : path) {
        polygon.append(QPointF(static_cast<double>(point.X), static_cast<double>(point.Y)) /
                       unitsOfMicrometre);
    }
    return polygon;
}

void add(ClipperLib::Clipper& clipper, const QPainterPath& path, ClipperLib::PolyType role)
{
    for (const QPolygonF& outline : flattened(path)) {
        clipper.AddPath(toUnits(outline), role, true);
    }
}

ClipperLib::PolyFillType ruleOf(const QPainterPath& path)
{
    return path.fillRule() == Qt::WindingFill ? ClipperLib::pftNonZero : ClipperLib::pftEvenOdd;
}

bool isSliver(const ClipperLib::PolyNode& node)
{
    constexpr double smallestArea = 0.01;
    return std::abs(ClipperLib::Area(node.Contour)) <=
           smallestArea * unitsOfMicrometre * unitsOfMicrometre;
}

QVector<Island> islandsOf(const ClipperLib::PolyTree& tree)
{
    QVector<Island> found;
    for (const ClipperLib::PolyNode* node = tree.GetFirst(); node; node = node->GetNext()) {
        if (node->IsHole() || isSliver(*node)) {
            continue;
        }
        Island island{fromUnits(node->Contour), {}};
        for (const ClipperLib::PolyNode* const hole : node->Childs) {
            if (!isSliver(*hole)) {
                island.holes.append(fromUnits(hole->Contour));
            }
        }
        found.append(island);
    }
    return found;
}

QPainterPath windingPath(const QVector<Island>& all)
{
    QPainterPath winding;
    winding.setFillRule(Qt::WindingFill);
    const auto append = [&winding](const QPolygonF& polygon) {
        winding.addPolygon(polygon);
        winding.closeSubpath();
    };
    for (const Island& island : all) {
        append(island.outline);
        std::for_each(island.holes.begin(), island.holes.end(), append);
    }
    return winding;
}

QPainterPath combined(const QPainterPath& area, const QPainterPath& shape, ClipperLib::ClipType how)
{
    ClipperLib::Clipper clipper;
    add(clipper, area, ClipperLib::ptSubject);
    add(clipper, shape, ClipperLib::ptClip);
    ClipperLib::PolyTree tree;
    clipper.Execute(how, tree, ruleOf(area), ruleOf(shape));
    return windingPath(islandsOf(tree));
}

/// Where the outline is met first on the way from `point` to the left: the edge's index and place.
std::pair<int, QPointF> firstToTheLeft(const QPolygonF& polygon, const QPointF& point)
{
    int found = 0;
    double x = -qInf();
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF a = polygon.at(i);
        const QPointF b = polygon.at((i + 1) % polygon.size());
        if ((a.y() - point.y()) * (b.y() - point.y()) > 0) {
            continue;
        }
        const double here = a.y() == b.y()
                                ? std::max(a.x(), b.x())
                                : a.x() + (b.x() - a.x()) * (point.y() - a.y()) / (b.y() - a.y());
        if (here <= point.x() && here > x) {
            x = here;
            found = i;
        }
    }
    return {found, {x, point.y()}};
}

void joinHole(QPolygonF& outline, const QPolygonF& hole, int leftmost)
{
    const auto [edge, place] = firstToTheLeft(outline, hole.at(leftmost));
    if (!std::isfinite(place.x())) {
        return;
    }
    QPolygonF cut;
    cut.append(place);
    for (int i = 0; i <= hole.size(); ++i) {
        cut.append(hole.at((leftmost + i) % hole.size()));
    }
    cut.append(place);
    outline = outline.mid(0, edge + 1) + cut + outline.mid(edge + 1);
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
    QPainterPath path;
    path.arcMoveTo(squareAround(centre, radius), -start);
    appendArc(path, centre, radius, start, sweep);
    return path;
}

QPainterPath circlePath(const QPointF& centre, double radius)
{
    QPainterPath path;
    path.moveTo(centre + QPointF(radius, 0));
    appendArc(path, centre, radius, 0, 360);
    path.closeSubpath();
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

double coveredArea(const QPainterPath& path)
{
    double area = 0;
    for (const Island& island : islands(path)) {
        area += signedArea(island.outline);
        for (const QPolygonF& hole : island.holes) {
            area += signedArea(hole);
        }
    }
    return area;
}

QVector<QPolygonF> flattened(const QPainterPath& path)
{
    QVector<QPolygonF> all;
    for (const QPolygonF& polygon : path.toSubpathPolygons()) {
        all.append(opened(polygon));
    }
    return all;
}

QVector<Island> islands(const QPainterPath& path)
{
    ClipperLib::Clipper clipper;
    add(clipper, path, ClipperLib::ptSubject);
    ClipperLib::PolyTree tree;
    clipper.Execute(ClipperLib::ctUnion, tree, ruleOf(path), ruleOf(path));
    return islandsOf(tree);
}

QPainterPath united(const QPainterPath& area, const QPainterPath& shape)
{
    return combined(area, shape, ClipperLib::ctUnion);
}

QPainterPath subtracted(const QPainterPath& area, const QPainterPath& shape)
{
    return combined(area, shape, ClipperLib::ctDifference);
}

QPolygonF cutOpen(const Island& island)
{
    struct Hole {
        const QPolygonF* polygon;
        int leftmost;
        double x() const { return polygon->at(leftmost).x(); }
    };
    std::vector<Hole> holes;
    for (const QPolygonF& hole : island.holes) {
        const auto least =
            std::min_element(hole.begin(), hole.end(),
                             [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); });
        holes.push_back({&hole, static_cast<int>(least - hole.begin())});
    }
    // What a cut to the left meets is the outline or a hole that was joined before.
    std::sort(holes.begin(), holes.end(),
              [](const Hole& a, const Hole& b) { return a.x() < b.x(); });
    QPolygonF outline = island.outline;
    for (const Hole& hole : holes) {
        joinHole(outline, *hole.polygon, hole.leftmost);
    }
    return outline;
}

QPainterPath byWinding(const QPainterPath& path)
{
    return windingPath(islands(path));
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
