#include "board/Board.h"

#include "board/Paths.h"

#include <QSet>

#include <algorithm>
#include <iterator>

namespace Pcb {
namespace {

const Feature& at(const Board& board, int index)
{
    return board.features[static_cast<size_t>(index)];
}

/// Every feature that is reached from `seeds` through pairs that `isJoined` accepts; ascending.
template <typename IsJoined>
Indexes reached(const Board& board, const Indexes& seeds, IsJoined isJoined)
{
    const int count = static_cast<int>(board.features.size());
    std::vector<bool> isIn(board.features.size(), false);
    Indexes waiting = seeds;
    for (const int seed : seeds) {
        isIn[static_cast<size_t>(seed)] = true;
    }
    while (!waiting.empty()) {
        const int from = waiting.back();
        waiting.pop_back();
        for (int to = 0; to < count; ++to) {
            if (!isIn[static_cast<size_t>(to)] && isJoined(at(board, from), at(board, to))) {
                isIn[static_cast<size_t>(to)] = true;
                waiting.push_back(to);
            }
        }
    }
    Indexes found;
    for (int index = 0; index < count; ++index) {
        if (isIn[static_cast<size_t>(index)]) {
            found.push_back(index);
        }
    }
    return found;
}

bool conducts(const Feature& a, const Feature& b)
{
    return a.isPositive() && b.isPositive() && touch(a, b);
}

bool hasDrawnEnds(const Feature& feature)
{
    return (feature.kind() == Kind::Line || feature.kind() == Kind::Arc) && !feature.isEmpty();
}

bool shareAnEnd(const Feature& a, const Feature& b, double tolerance)
{
    if (!hasDrawnEnds(a) || !hasDrawnEnds(b)) {
        return false;
    }
    for (int end : {0, 1}) {
        for (int other : {0, 1}) {
            if (distance(a.geometry().points.at(end), b.geometry().points.at(other)) <= tolerance) {
                return true;
            }
        }
    }
    return false;
}

template <typename IsInside>
Indexes chosen(const Board& board, IsInside isInside)
{
    Indexes found;
    for (int index = 0; exists(board, index); ++index) {
        if (!at(board, index).isEmpty() && isInside(at(board, index))) {
            found.push_back(index);
        }
    }
    return found;
}

}  // namespace

bool contains(const Indexes& indexes, int index)
{
    return std::binary_search(indexes.begin(), indexes.end(), index);
}

Indexes toggled(const Indexes& before, const Indexes& picked)
{
    const bool hasAll = std::includes(before.begin(), before.end(), picked.begin(), picked.end());
    Indexes all;
    if (hasAll) {
        std::set_difference(before.begin(), before.end(), picked.begin(), picked.end(),
                            std::back_inserter(all));
    } else {
        std::set_union(before.begin(), before.end(), picked.begin(), picked.end(),
                       std::back_inserter(all));
    }
    return all;
}

bool exists(const Board& board, int index)
{
    return index >= 0 && index < static_cast<int>(board.features.size());
}

bool Board::operator==(const Board& other) const
{
    return job == other.job && step == other.step && outline == other.outline &&
           features == other.features;
}

QRectF boundsOf(const Board& board)
{
    QRectF bounds = board.outline.boundingRect();
    for (const Feature& feature : board.features) {
        bounds |= feature.bounds();
    }
    return bounds;
}

int featureAt(const Board& board, const Indexes& candidates, const QPointF& point, double tolerance)
{
    const auto found = std::find_if(candidates.rbegin(), candidates.rend(), [&](int index) {
        const Feature& feature = at(board, index);
        return isNear(feature.area(), point, tolerance) ||
               isNear(feature.unknown(), point, tolerance);
    });
    return found == candidates.rend() ? -1 : *found;
}

bool touch(const Feature& a, const Feature& b)
{
    return a.bounds().intersects(b.bounds()) && a.area().intersects(b.area());
}

Indexes touching(const Board& board, int index)
{
    return exists(board, index) ? reached(board, {index}, conducts) : Indexes();
}

Indexes netOf(const Board& board, int index)
{
    Indexes found = touching(board, index);
    QSet<QString> names;
    int known = -1;
    while (known != names.size()) {
        known = names.size();
        for (const int member : found) {
            const QString name = at(board, member).net();
            if (!name.isEmpty()) {
                names.insert(name);
            }
        }
        Indexes seeds = found;
        for (int other = 0; exists(board, other); ++other) {
            if (names.contains(at(board, other).net())) {
                seeds.push_back(other);
            }
        }
        found = reached(board, seeds, conducts);
    }
    return found;
}

Indexes polylineOf(const Board& board, int index, double tolerance)
{
    if (!exists(board, index)) {
        return {};
    }
    return reached(board, {index}, [tolerance](const Feature& a, const Feature& b) {
        return shareAnEnd(a, b, tolerance);
    });
}

Indexes insideRectangle(const Board& board, const QRectF& rectangle)
{
    const QRectF box = rectangle.normalized();
    return chosen(board, [&box](const Feature& feature) { return box.contains(feature.bounds()); });
}

Indexes insidePolygon(const Board& board, const QPolygonF& polygon)
{
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return chosen(board, [&](const Feature& feature) {
        return path.boundingRect().contains(feature.bounds()) &&
               (feature.area().isEmpty() || path.contains(feature.area())) &&
               (feature.unknown().isEmpty() || path.contains(feature.unknown()));
    });
}

}  // namespace Pcb
