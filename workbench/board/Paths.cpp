#include "board/Paths.h"

#include <QLineF>
#include <QMap>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <numeric>
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

/// A point of the outline that is no corner, as outlines may share corners.
QPointF middleOfLongestEdge(const QPolygonF& polygon)
{
    QLineF longest;
    for (int i = 0; i < polygon.size(); ++i) {
        const QLineF edge(polygon.at(i), polygon.at((i + 1) % polygon.size()));
        if (edge.length() >= longest.length()) {
            longest = edge;
        }
    }
    return longest.center();
}

QPolygonF withTurn(QPolygonF polygon, bool counterclockwise)
{
    if ((signedArea(polygon) > 0) != counterclockwise) {
        std::reverse(polygon.begin(), polygon.end());
    }
    return polygon;
}

QVector<QPolygonF> simplified(const QVector<QPolygonF>& polygons, Qt::FillRule rule)
{
    QPainterPath straight;
    straight.setFillRule(rule);
    for (const QPolygonF& polygon : polygons) {
        straight.addPolygon(polygon);
        straight.closeSubpath();
    }
    return flattened(straight.simplified());
}

bool isConvex(const QPolygonF& polygon)
{
    const double hull = signedArea(convexHull(polygon));
    return std::abs(std::abs(signedArea(polygon)) - hull) <= 1e-9 * hull;
}

/// An outline with what tells quickly that it crosses no other one.
struct Outline {
    QPolygonF polygon;
    QRectF bounds;
    bool isBox = false;

    explicit Outline(const QPolygonF& corners)
        : polygon(corners), bounds(corners.boundingRect()), isBox(corners.size() == 4)
    {
        for (int i = 0; isBox && i < corners.size(); ++i) {
            const QPointF side = corners.at((i + 1) % 4) - corners.at(i);
            isBox = side.x() == 0 || side.y() == 0;
        }
    }

    bool isAround(const Outline& other) const
    {
        return isBox && bounds.adjusted(1, 1, -1, -1).contains(other.bounds);
    }
};

/// Sets of outlines that may cross each other; by the odd-even rule boxes may also stand around
/// others without having to do with them.
QVector<QVector<QPolygonF>> crossingSets(const std::vector<Outline>& outlines, Qt::FillRule rule)
{
    std::vector<size_t> leader(outlines.size());
    std::iota(leader.begin(), leader.end(), size_t(0));
    const auto leaderOf = [&leader](size_t i) {
        while (leader[i] != i) {
            i = leader[i] = leader[leader[i]];
        }
        return i;
    };
    for (size_t i = 0; i < outlines.size(); ++i) {
        for (size_t k = 0; k < i; ++k) {
            const Outline& a = outlines[i];
            const Outline& b = outlines[k];
            const bool isNested = rule == Qt::OddEvenFill && (a.isAround(b) || b.isAround(a));
            if (a.bounds.adjusted(-1, -1, 1, 1).intersects(b.bounds) && !isNested) {
                leader[leaderOf(i)] = leaderOf(k);
            }
        }
    }
    QMap<size_t, QVector<QPolygonF>> sets;
    for (size_t i = 0; i < outlines.size(); ++i) {
        sets[leaderOf(i)].append(outlines[i].polygon);
    }
    return sets.values().toVector();
}

/// The outlines of the area, none of which crosses another or itself. Simplifying takes long for
/// many outlines, so each set that may cross is done by itself.
QVector<QPolygonF> cleanOutlines(const QPainterPath& path)
{
    constexpr double smallestArea = 0.01;
    std::vector<Outline> outlines;
    for (const QPolygonF& polygon : flattened(path)) {
        outlines.emplace_back(polygon);
    }
    QVector<QPolygonF> clean;
    for (const QVector<QPolygonF>& set : crossingSets(outlines, path.fillRule())) {
        const bool isClean = set.size() == 1 && isConvex(set.first());
        for (const QPolygonF& polygon : isClean ? set : simplified(set, path.fillRule())) {
            if (polygon.size() > 2 && std::abs(signedArea(polygon)) > smallestArea) {
                clean.append(polygon);
            }
        }
    }
    return clean;
}

/// For each outline the indexes of those that it lies in.
QVector<QVector<int>> surroundings(const QVector<QPolygonF>& outlines)
{
    QVector<QRectF> bounds;
    for (const QPolygonF& outline : outlines) {
        bounds.append(outline.boundingRect());
    }
    QVector<QVector<int>> around(outlines.size());
    for (int inner = 0; inner < outlines.size(); ++inner) {
        const QPointF probe = middleOfLongestEdge(outlines.at(inner));
        for (int outer = 0; outer < outlines.size(); ++outer) {
            if (outer != inner && bounds.at(outer).contains(probe) &&
                outlines.at(outer).containsPoint(probe, Qt::OddEvenFill)) {
                around[inner].append(outer);
            }
        }
    }
    return around;
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
    const QVector<QPolygonF> outlines = cleanOutlines(path);
    const QVector<QVector<int>> around = surroundings(outlines);
    QVector<Island> found;
    QVector<int> islandOf(outlines.size(), -1);
    for (int i = 0; i < outlines.size(); ++i) {
        if (around.at(i).size() % 2 == 0) {
            islandOf[i] = found.size();
            found.append({withTurn(outlines.at(i), true), {}});
        }
    }
    for (int i = 0; i < outlines.size(); ++i) {
        for (const int outer : around.at(i)) {
            if (around.at(i).size() % 2 == 1 &&
                around.at(outer).size() + 1 == around.at(i).size()) {
                found[islandOf.at(outer)].holes.append(withTurn(outlines.at(i), false));
            }
        }
    }
    return found;
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
    if (path.fillRule() == Qt::WindingFill) {
        return path;
    }
    QPainterPath winding;
    winding.setFillRule(Qt::WindingFill);
    const auto add = [&winding](const QPolygonF& polygon) {
        winding.addPolygon(polygon);
        winding.closeSubpath();
    };
    for (const Island& island : islands(path)) {
        add(island.outline);
        std::for_each(island.holes.begin(), island.holes.end(), add);
    }
    return winding;
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
