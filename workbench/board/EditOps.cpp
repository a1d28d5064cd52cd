#include "board/EditOps.h"

#include "board/Paths.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace Pcb {
namespace {

constexpr double nothing = 1e-6;  // micrometres: anything shorter is not a line

bool hasEnds(const Feature& feature)
{
    return (feature.kind() == Kind::Line || feature.kind() == Kind::Arc) &&
           feature.geometry().points.size() >= leastPoints(feature.geometry());
}

bool isLine(const Feature& feature)
{
    return feature.kind() == Kind::Line && hasEnds(feature);
}

int indexOf(End end)
{
    return end == End::First ? 0 : 1;
}

template <typename Move>
Feature withPoints(const Feature& feature, Move move)
{
    Geometry geometry = feature.geometry();
    std::transform(geometry.points.begin(), geometry.points.end(), geometry.points.begin(), move);
    return Feature(geometry);
}

Feature withEnds(const Feature& feature, const QPointF& from, const QPointF& to)
{
    Geometry geometry = feature.geometry();
    geometry.points[0] = from;
    geometry.points[1] = to;
    return Feature(geometry);
}

Feature brokenCircle(const Feature& circle, const ArcPlace& arc, double angle)
{
    const QPointF place = polar(arc.centre, arc.radius, angle);
    return withEnds(circle, place, place);
}

Features brokenArc(const Feature& feature, const QPointF& point)
{
    const Geometry& geometry = feature.geometry();
    const ArcPlace arc = arcPlace(geometry);
    const double angle = angleOf(arc.centre, point);
    if (point == arc.centre) {
        return {};
    }
    if (std::abs(arc.sweep) >= 360) {
        return {brokenCircle(feature, arc, angle)};
    }
    const double way = sweepBetween(arc.start, angle, geometry.clockwise);
    const double lengthOfDegree = arc.radius * M_PI / 180;
    const double rest = std::abs(arc.sweep) - way;
    if (way * lengthOfDegree < nothing || rest * lengthOfDegree < nothing || way >= 360) {
        return {};
    }
    const QPointF place = polar(arc.centre, arc.radius, angle);
    return {withEnds(feature, geometry.points.at(0), place),
            withEnds(feature, place, geometry.points.at(1))};
}

/// The point's projection on the line: 0 at its first end, 1 at its second.
double partOfLine(const Geometry& line, const QPointF& point)
{
    const QPointF way = line.points.at(1) - line.points.at(0);
    const double length2 = QPointF::dotProduct(way, way);
    return length2 > 0 ? QPointF::dotProduct(point - line.points.at(0), way) / length2 : 0;
}

QPointF pointOfLine(const Geometry& line, double part)
{
    return line.points.at(0) + (line.points.at(1) - line.points.at(0)) * part;
}

using Parts = std::vector<double>;

void addCrossing(Parts& parts, const Geometry& line, const QPointF& a, const QPointF& b)
{
    const QPointF way = line.points.at(1) - line.points.at(0);
    const QPointF other = b - a;
    const double cross = way.x() * other.y() - way.y() * other.x();
    if (cross == 0) {
        return;
    }
    const QPointF between = a - line.points.at(0);
    const double part = (between.x() * other.y() - between.y() * other.x()) / cross;
    const double otherPart = (between.x() * way.y() - between.y() * way.x()) / cross;
    if (part >= 0 && part <= 1 && otherPart >= 0 && otherPart <= 1) {
        parts.push_back(part);
    }
}

void addCircleCrossings(Parts& parts, const Geometry& line, const Geometry& other)
{
    const ArcPlace arc = arcPlace(other);
    const QPointF foot = pointOfLine(line, partOfLine(line, arc.centre));
    const double away = distance(foot, arc.centre);
    const double length = distance(line.points.at(0), line.points.at(1));
    if (away > arc.radius || length < nothing) {
        return;
    }
    const double half = std::sqrt(arc.radius * arc.radius - away * away) / length;
    for (const double part : {partOfLine(line, foot) - half, partOfLine(line, foot) + half}) {
        const double angle = angleOf(arc.centre, pointOfLine(line, part));
        const double way = sweepBetween(arc.start, angle, other.clockwise);
        const bool isOnArc = way <= std::abs(arc.sweep) || way >= 360;
        if (part >= 0 && part <= 1 && isOnArc) {
            parts.push_back(part);
        }
    }
}

void addOutlineCrossings(Parts& parts, const Geometry& line, const QPainterPath& area)
{
    for (const QPolygonF& outline : flattened(area)) {
        for (int i = 0; i < outline.size(); ++i) {
            addCrossing(parts, line, outline.at(i), outline.at((i + 1) % outline.size()));
        }
    }
}

/// Where a line crosses the other positive features of its board.
Parts crossings(const Board& board, int index)
{
    const Feature& line = board.features[static_cast<size_t>(index)];
    Parts parts;
    for (size_t i = 0; i < board.features.size(); ++i) {
        const Feature& other = board.features[i];
        if (static_cast<int>(i) == index || !other.isPositive() || other.isEmpty() ||
            !other.bounds().intersects(line.bounds())) {
            continue;
        }
        const Geometry& geometry = other.geometry();
        if (other.kind() == Kind::Line) {
            addCrossing(parts, line.geometry(), geometry.points.at(0), geometry.points.at(1));
        } else if (other.kind() == Kind::Arc) {
            addCircleCrossings(parts, line.geometry(), geometry);
        } else if (other.kind() != Kind::Text) {
            addOutlineCrossings(parts, line.geometry(), other.area());
        }
    }
    return parts;
}

/// Replaces one more feature; neighbours share one splice.
void replace(Edit& edit, int index, const Features& by)
{
    if (edit.empty() || edit.back().index + edit.back().count != index) {
        edit.push_back({index, 0, {}});
    }
    ++edit.back().count;
    edit.back().entries.insert(edit.back().entries.end(), by.begin(), by.end());
}

}  // namespace

Feature moved(const Feature& feature, const QPointF& by)
{
    return withPoints(feature, [&by](const QPointF& point) { return point + by; });
}

Feature rotated(const Feature& feature, const QPointF& centre, double degrees)
{
    Geometry geometry = feature.geometry();
    for (QPointF& point : geometry.points) {
        point = turned(point, centre, degrees);
    }
    if (geometry.kind == Kind::Pad || geometry.kind == Kind::Text) {
        geometry.rotation = std::fmod(std::fmod(geometry.rotation + degrees, 360) + 360, 360);
    }
    return Feature(geometry);
}

Feature mirrored(const Feature& feature, double x)
{
    Geometry geometry = feature.geometry();
    for (QPointF& point : geometry.points) {
        point.setX(2 * x - point.x());
    }
    if (geometry.kind == Kind::Arc) {
        geometry.clockwise = !geometry.clockwise;
    } else if (geometry.kind == Kind::Pad || geometry.kind == Kind::Text) {
        geometry.mirror = !geometry.mirror;
        geometry.rotation = std::fmod(720 - std::fmod(geometry.rotation, 360), 360);
    }
    return Feature(geometry);
}

Feature inverted(const Feature& feature)
{
    Geometry geometry = feature.geometry();
    geometry.positive = !geometry.positive;
    return Feature(geometry);
}

End nearerEnd(const Feature& feature, const QPointF& point)
{
    const QVector<QPointF>& points = feature.geometry().points;
    const bool isSecond =
        hasEnds(feature) && distance(points.at(1), point) < distance(points.at(0), point);
    return isSecond ? End::Second : End::First;
}

std::optional<Feature> withAngle(const Feature& line, double degrees, End fixed)
{
    if (!isLine(line)) {
        return std::nullopt;
    }
    const QVector<QPointF>& points = line.geometry().points;
    const QPointF from = points.at(indexOf(fixed));
    const QPointF to = polar(from, distance(points.at(0), points.at(1)), degrees);
    return fixed == End::First ? withEnds(line, from, to) : withEnds(line, to, from);
}

std::optional<Feature> stretched(const Feature& feature, End end, const QPointF& to)
{
    if (!hasEnds(feature)) {
        return std::nullopt;
    }
    QVector<QPointF> points = feature.geometry().points;
    QPointF place = to;
    if (feature.kind() == Kind::Arc) {
        const ArcPlace arc = arcPlace(feature.geometry());
        place = polar(arc.centre, arc.radius, angleOf(arc.centre, to));
    }
    points[indexOf(end)] = place;
    if (distance(points.at(0), points.at(1)) < nothing) {
        return std::nullopt;
    }
    return withEnds(feature, points.at(0), points.at(1));
}

Features broken(const Feature& feature, const QPointF& point)
{
    if (!hasEnds(feature)) {
        return {};
    }
    if (feature.kind() == Kind::Arc) {
        return brokenArc(feature, point);
    }
    const Geometry& line = feature.geometry();
    const QPointF place = pointOfLine(line, qBound(0.0, partOfLine(line, point), 1.0));
    if (distance(place, line.points.at(0)) < nothing ||
        distance(place, line.points.at(1)) < nothing) {
        return {};
    }
    return {withEnds(feature, line.points.at(0), place),
            withEnds(feature, place, line.points.at(1))};
}

std::optional<Features> deletedToIntersection(const Board& board, int index, const QPointF& point)
{
    if (!exists(board, index) || !isLine(board.features[static_cast<size_t>(index)])) {
        return std::nullopt;
    }
    const Feature& line = board.features[static_cast<size_t>(index)];
    const Geometry& geometry = line.geometry();
    const double clicked = qBound(0.0, partOfLine(geometry, point), 1.0);
    double before = 0;
    double after = 1;
    for (const double part : crossings(board, index)) {
        if (part <= clicked) {
            before = std::max(before, part);
        } else {
            after = std::min(after, part);
        }
    }
    const double length = distance(geometry.points.at(0), geometry.points.at(1));
    Features left;
    if (before * length >= nothing) {
        left.push_back(withEnds(line, geometry.points.at(0), pointOfLine(geometry, before)));
    }
    if ((1 - after) * length >= nothing) {
        left.push_back(withEnds(line, pointOfLine(geometry, after), geometry.points.at(1)));
    }
    return left;
}

Edit withReplaced(const Board& board, int index, const Features& by)
{
    return exists(board, index) ? Edit{{index, 1, by}} : Edit();
}

Edit without(const Board& board, const Indexes& indexes)
{
    Edit edit;
    for (const int index : indexes) {
        if (exists(board, index)) {
            replace(edit, index, {});
        }
    }
    return edit;
}

Edit withAdded(const Board& board, const Features& features)
{
    return {{static_cast<int>(board.features.size()), 0, features}};
}

Edit withEach(const Board& board, const Indexes& indexes,
              const std::function<Feature(const Feature&)>& change)
{
    Edit edit;
    for (const int index : indexes) {
        if (exists(board, index)) {
            replace(edit, index, {change(board.features[static_cast<size_t>(index)])});
        }
    }
    return edit;
}

Edit withMoved(const Board& board, const Indexes& indexes, const QPointF& by)
{
    return withEach(board, indexes, [&by](const Feature& feature) { return moved(feature, by); });
}

Edit withCopied(const Board& board, const Indexes& indexes, const QPointF& by)
{
    Features copies;
    for (const int index : indexes) {
        if (exists(board, index)) {
            copies.push_back(moved(board.features[static_cast<size_t>(index)], by));
        }
    }
    return withAdded(board, copies);
}

Edit withInverted(const Board& board, const Indexes& indexes)
{
    return withEach(board, indexes, inverted);
}

}  // namespace Pcb
