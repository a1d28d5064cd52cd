#include "board/Placement.h"

#include "board/ArcMethods.h"
#include "board/Paths.h"

#include <QtMath>

#include <cmath>

namespace Pcb {
namespace {

using Points = QVector<QPointF>;
using Geometries = std::vector<Geometry>;

constexpr int unlimited = 0;

int clicksOf(const Brush& brush)
{
    switch (brush.kind) {
        case Kind::Line:
            return brush.line == LineMode::Polyline ? unlimited
                   : brush.line == LineMode::Slot   ? 1
                                                    : 2;
        case Kind::Surface:
            return brush.surface == SurfaceShape::Polygon ? unlimited : 2;
        case Kind::Arc:
            return brush.circle ? clicksOf(brush.circleMethod) : clicksOfArc;
        default:
            return 1;
    }
}

bool hasDirection(const Brush& brush)
{
    return brush.kind == Kind::Line &&
           (brush.line == LineMode::Single || brush.line == LineMode::Polyline);
}

bool meansSameClicks(const Brush& a, const Brush& b)
{
    return a.kind == b.kind && a.line == b.line && a.surface == b.surface && a.circle == b.circle &&
           a.arcMethod == b.arcMethod && a.circleMethod == b.circleMethod;
}

QPointF projected(const QPointF& point, const QPointF& from, double angle)
{
    const QPointF direction = polar({}, 1, angle);
    return from + direction * QPointF::dotProduct(point - from, direction);
}

Geometries lines(const Brush& brush, const Points& corners, bool isClosed)
{
    Geometries all;
    for (int i = 1; i < corners.size(); ++i) {
        all.push_back(lineGeometry(brush.symbol, corners.at(i - 1), corners.at(i)));
    }
    if (isClosed && corners.size() > 2 && corners.first() != corners.last()) {
        all.push_back(lineGeometry(brush.symbol, corners.last(), corners.first()));
    }
    return all;
}

Geometry slot(const Brush& brush, const QPointF& centre)
{
    const QPointF half = polar({}, brush.slotLength / 2, brush.slotAngle);
    Geometry line = lineGeometry(brush.symbol, centre - half, centre + half);
    line.attributes.insert(QStringLiteral(".drill"), brush.slotPlated
                                                         ? QStringLiteral("plated")
                                                         : QStringLiteral("non_plated"));
    if (!brush.slotDecode.isEmpty() && brush.slotDecode != QLatin1String("0")) {
        line.attributes.insert(QStringLiteral(".slot_decode"), brush.slotDecode);
    }
    return line;
}

Geometries padArray(const Brush& brush, const QPointF& first)
{
    Geometries pads;
    for (int row = 0; row < brush.padNy; ++row) {
        for (int column = 0; column < brush.padNx; ++column) {
            const QPointF step(column * brush.padDx, row * brush.padDy);
            Geometry pad = padGeometry(brush.symbol, first + step);
            pad.rotation = brush.rotation;
            pad.mirror = brush.mirror;
            pad.xScale = brush.padXScale;
            pad.yScale = brush.padYScale;
            pads.push_back(pad);
        }
    }
    return pads;
}

double cornerSize(const Brush& brush, const QRectF& rectangle)
{
    const double most = std::min(rectangle.width(), rectangle.height()) / 2;
    switch (brush.corner) {
        case Corner::Oblong:
            return most;
        case Corner::Round:
        case Corner::Chamfer:
            return std::min(brush.cornerRadius, most);
        case Corner::Straight:
            break;
    }
    return 0;
}

/// The sides and corners of a rectangle as lines and arcs.
Geometries rectangleOutline(const Brush& brush, const QPointF& corner, const QPointF& opposite)
{
    const QRectF rectangle = QRectF(corner, opposite).normalized();
    Geometries outline;
    if (rectangle.width() <= 0 || rectangle.height() <= 0) {
        return outline;
    }
    const double size = cornerSize(brush, rectangle);
    const QPointF corners[] = {rectangle.topLeft(), rectangle.topRight(), rectangle.bottomRight(),
                               rectangle.bottomLeft()};
    const QPointF directions[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
    for (int side = 0; side < 4; ++side) {
        const int next = (side + 1) % 4;
        const QPointF from = corners[side] + directions[side] * size;
        const QPointF to = corners[next] - directions[side] * size;
        if (from != to) {
            outline.push_back(lineGeometry(brush.symbol, from, to));
        }
        const QPointF after = corners[next] + directions[next] * size;
        if (size > 0 && brush.corner == Corner::Chamfer) {
            outline.push_back(lineGeometry(brush.symbol, to, after));
        } else if (size > 0) {
            const QPointF centre = to + directions[next] * size;
            outline.push_back(arcGeometry(brush.symbol, to, after, centre, false));
        }
    }
    return outline;
}

Geometries ofLine(const Brush& brush, const Points& points, bool isEnd)
{
    switch (brush.line) {
        case LineMode::Slot:
            return {slot(brush, points.first())};
        case LineMode::Rectangle:
            return points.size() < 2 ? Geometries()
                                     : rectangleOutline(brush, points.at(0), points.at(1));
        case LineMode::Polyline:
            return lines(brush, points, isEnd && brush.closed);
        case LineMode::Single:
            break;
    }
    return lines(brush, points, false);
}

Geometries ofSurface(const Brush& brush, const Points& points)
{
    if (brush.surface == SurfaceShape::Polygon) {
        return points.size() < 3 ? Geometries() : Geometries{surfaceGeometry(points)};
    }
    if (points.size() < 2 || points.at(0) == points.at(1)) {
        return {};
    }
    if (brush.surface == SurfaceShape::Circle) {
        return {discGeometry(points.at(0), points.at(1))};
    }
    const QRectF box = QRectF(points.at(0), points.at(1)).normalized();
    if (box.width() <= 0 || box.height() <= 0) {
        return {};
    }
    return {surfaceGeometry({box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()})};
}

Geometries ofArc(const Brush& brush, const Points& points)
{
    if (points.size() < clicksOf(brush)) {
        return {};
    }
    const std::optional<Geometry> arc =
        brush.circle ? circleOf(brush, points) : arcOf(brush, points);
    return arc ? Geometries{*arc} : Geometries();
}

Geometry ofText(const Brush& brush, const QPointF& corner, const TextSpec& spec)
{
    Geometry text = textGeometry(spec, corner);
    text.rotation = brush.rotation;
    text.mirror = brush.mirror;
    return text;
}

}  // namespace

void Placement::setBrush(const Brush& brush)
{
    if (!meansSameClicks(m_brush, brush)) {
        cancel();
    }
    m_brush = brush;
    readText();
}

void Placement::setDirection(Direction direction, double fixedAngle)
{
    m_brush.direction = direction;
    m_brush.fixedAngle = fixedAngle;
}

TextSpec Placement::text() const
{
    TextSpec text = m_brush.text;
    text.content = resolveSpecialText(text.content, m_specialTexts);
    return text;
}

void Placement::readText()
{
    const bool isText = m_brush.kind == Kind::Text;
    const TextSpec spec = text();
    m_leftOut = isText ? Pcb::leftOut(spec) : QString();
    m_lacking = isText ? drawText(spec).lacking : QString();
    m_isNothing = isText && m_leftOut.size() >= spec.content.left(longestText).size();
}

void Placement::setSpecialTexts(const QMap<QString, QString>& values)
{
    m_specialTexts = values;
    readText();
}

std::optional<QLineF> Placement::begunLine() const
{
    const bool isBegun = isActive() && m_hasCursor && hasDirection(m_brush);
    return isBegun ? std::optional<QLineF>({m_points.last(), constrained(m_cursor)}) : std::nullopt;
}

QPointF Placement::constrained(const QPointF& point) const
{
    if (m_points.isEmpty() || !hasDirection(m_brush)) {
        return point;
    }
    const QPointF from = m_points.last();
    switch (m_brush.direction) {
        case Direction::Vertical:
            return {from.x(), point.y()};
        case Direction::Horizontal:
            return {point.x(), from.y()};
        case Direction::EightDirections:
            return projected(point, from, std::round(angleOf(from, point) / 45) * 45);
        case Direction::Fixed:
            return projected(point, from, m_brush.fixedAngle);
        case Direction::Free:
        case Direction::VerticalThenHorizontal:
            break;
    }
    return point;
}

/// The clicks so far and one more, with a corner between if the direction requires one.
QVector<QPointF> Placement::with(const QPointF& point) const
{
    QVector<QPointF> points = m_points;
    const QPointF next = constrained(point);
    if (!points.isEmpty() && hasDirection(m_brush) &&
        m_brush.direction == Direction::VerticalThenHorizontal) {
        const QPointF corner(points.last().x(), next.y());
        if (corner != points.last() && corner != next) {
            points.append(corner);
        }
    }
    if (points.isEmpty() || points.last() != next) {
        points.append(next);
    }
    return points;
}

Features Placement::build(const QVector<QPointF>& points, bool isEnd) const
{
    Geometries geometries;
    if (points.isEmpty()) {
        return {};
    }
    switch (m_brush.kind) {
        case Kind::Line:
            geometries = ofLine(m_brush, points, isEnd);
            break;
        case Kind::Pad:
            geometries = padArray(m_brush, points.first());
            break;
        case Kind::Surface:
            geometries = ofSurface(m_brush, points);
            break;
        case Kind::Arc:
            geometries = ofArc(m_brush, points);
            break;
        case Kind::Text:
            if (!isNothing()) {
                geometries = {ofText(m_brush, points.first(), text())};
            }
            break;
    }
    const bool isSlot = m_brush.kind == Kind::Line && m_brush.line == LineMode::Slot;
    Features features;
    for (Geometry& geometry : geometries) {
        geometry.positive = m_brush.positive;
        if (!isSlot) {
            geometry.attributes = m_brush.attributes;
        }
        features.emplace_back(geometry);
    }
    return features;
}

Features Placement::press(const QPointF& point)
{
    if (!std::isfinite(point.x()) || !std::isfinite(point.y())) {
        return {};
    }
    move(point);
    const int clicks = clicksOf(m_brush);
    const bool isComplete = clicks != unlimited && m_clicks + 1 >= clicks;
    const QVector<QPointF> points = with(point);
    if (points.size() == m_points.size()) {
        return {};
    }
    if (!isComplete) {
        m_points = points;
        ++m_clicks;
        return {};
    }
    Features features = build(points, true);
    if (!features.empty()) {
        cancel();
    }
    return features;
}

void Placement::move(const QPointF& point)
{
    m_cursor = point;
    m_hasCursor = true;
}

Features Placement::finish()
{
    Features features;
    if (clicksOf(m_brush) == unlimited) {
        features = build(m_points, true);
    }
    cancel();
    return features;
}

Features Placement::fill()
{
    if (m_brush.kind != Kind::Surface || m_points.isEmpty()) {
        return {};
    }
    Features features = build(m_points, true);
    if (features.empty() && m_hasCursor) {
        features = build(with(m_cursor), true);
    }
    if (!features.empty()) {
        cancel();
    }
    return features;
}

void Placement::cancel()
{
    m_points.clear();
    m_clicks = 0;
}

Features Placement::preview() const
{
    if (!m_hasCursor) {
        return build(m_points, false);
    }
    const QVector<QPointF> points = with(m_cursor);
    Features features = build(points, true);
    if (features.empty() && points.size() > 1) {
        for (const Geometry& line : lines(m_brush, points.mid(points.size() - 2), false)) {
            features.emplace_back(line);
        }
    }
    return features;
}

}  // namespace Pcb
