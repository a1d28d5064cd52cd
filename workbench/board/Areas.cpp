#include "board/Areas.h"

#include "board/Paths.h"

#include <polyclipping/clipper.hpp>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Pcb {
namespace {

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

}  // namespace Pcb
