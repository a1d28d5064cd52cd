#include "board/Feature.h"

#include "board/Paths.h"
#include "board/Symbol.h"

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

namespace Pcb {
namespace {

auto tied(const Geometry& geometry)
{
    return std::tie(geometry.kind, geometry.positive, geometry.symbol, geometry.points,
                    geometry.round, geometry.clockwise, geometry.rotation, geometry.mirror,
                    geometry.xScale, geometry.yScale, geometry.attributes);
}

bool isFinite(const QPointF& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// The area swept by a shape that moves from one place to another, as if it were convex.
QPainterPath swept(const QPainterPath& shape, const QPointF& from, const QPointF& to)
{
    QPolygonF corners;
    for (const QPolygonF& outline : flattened(shape)) {
        for (const QPointF& corner : outline) {
            corners << corner + from << corner + to;
        }
    }
    QPainterPath path;
    path.addPolygon(convexHull(corners));
    path.closeSubpath();
    return path;
}

double penWidth(const Symbol& symbol)
{
    return std::min(symbol.width, symbol.height);
}

QPainterPath lineArea(const Geometry& line, const Symbol& symbol)
{
    if (symbol.shape == SymbolShape::Round) {
        return roundStroke(middleOf(line), symbol.width);
    }
    return swept(symbolShape(symbol), line.points.at(0), line.points.at(1));
}

/// A ring segment with two round ends. Where the pen reaches beyond the centre, the inner
/// radius is negative: the edge runs on the other side of it, within what the ends cover.
QPainterPath arcStrip(const ArcPlace& arc, double pen)
{
    const auto append = [](QPainterPath& path, const QPointF& centre, double radius, double start,
                           double sweep) {
        const QPointF corner(radius, radius);
        path.arcTo(QRectF(centre - corner, centre + corner), -start, -sweep);
    };
    const double end = arc.start + arc.sweep;
    const double turn = arc.sweep < 0 ? -180 : 180;
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.moveTo(polar(arc.centre, arc.radius + pen, arc.start));
    append(path, arc.centre, arc.radius + pen, arc.start, arc.sweep);
    append(path, polar(arc.centre, arc.radius, end), pen, end, turn);
    append(path, arc.centre, arc.radius - pen, end, -arc.sweep);
    append(path, polar(arc.centre, arc.radius, arc.start), pen, arc.start + 180, turn);
    path.closeSubpath();
    return path;
}

QPainterPath arcArea(const Geometry& geometry, const Symbol& symbol)
{
    const ArcPlace arc = arcPlace(geometry);
    const double pen = penWidth(symbol) / 2;
    const bool isCircle = std::abs(arc.sweep) >= 360;
    if (!isCircle) {
        return arcStrip(arc, pen);
    }
    if (arc.radius <= pen) {
        return circlePath(arc.centre, arc.radius + pen);
    }
    QPainterPath ring = circlePath(arc.centre, arc.radius + pen);
    ring.addPath(circlePath(arc.centre, arc.radius - pen));
    return ring;
}

QPainterPath surfaceArea(const Geometry& surface)
{
    if (surface.round) {
        return circlePath(surface.points.at(0),
                          distance(surface.points.at(0), surface.points.at(1)));
    }
    QPainterPath path;
    path.addPolygon(QPolygonF(surface.points));
    path.closeSubpath();
    return path;
}

/// What a feature is drawn as.
struct Drawn {
    QPainterPath area;
    QPainterPath unknown;
};

Drawn drawnWithSymbol(const Geometry& geometry)
{
    const Symbol symbol = parseSymbol(geometry.symbol);
    const QPainterPath path = geometry.kind == Kind::Line ? lineArea(geometry, symbol)
                              : geometry.kind == Kind::Arc
                                  ? arcArea(geometry, symbol)
                                  : placeOf(geometry).map(symbolShape(symbol));
    return symbol.shape == SymbolShape::Special ? Drawn{{}, path} : Drawn{path, {}};
}

Drawn drawn(const Geometry& geometry)
{
    if (geometry.points.size() < leastPoints(geometry) ||
        !std::all_of(geometry.points.begin(), geometry.points.end(), isFinite)) {
        return {};
    }
    if (geometry.kind == Kind::Surface) {
        return {surfaceArea(geometry), {}};
    }
    if (geometry.kind == Kind::Text) {
        const TextDrawing drawing = drawText(geometry.text);
        const QTransform place = placeOf(geometry);
        return {place.map(coveredBy(drawing)), place.map(drawing.unknown)};
    }
    return drawnWithSymbol(geometry);
}

}  // namespace

bool Geometry::operator==(const Geometry& other) const
{
    return tied(*this) == tied(other) && text == other.text;
}

int leastPoints(const Geometry& geometry)
{
    switch (geometry.kind) {
        case Kind::Line:
            return 2;
        case Kind::Arc:
            return 3;
        case Kind::Surface:
            return geometry.round ? 2 : 3;
        default:
            return 1;
    }
}

Feature::Feature()
{
    static const auto nothing = std::make_shared<const Data>();
    m_data = nothing;
}

Feature::Feature(Geometry geometry)
{
    const auto [area, unknown] = drawn(geometry);
    m_data = std::make_shared<const Data>(
        Data{area.boundingRect() | unknown.boundingRect(), std::move(geometry), area, unknown});
}

QString Feature::net() const
{
    return attributes().value(QStringLiteral(".net"));
}

double arcPenWidth(const QString& symbol)
{
    return penWidth(parseSymbol(symbol));
}

QPainterPath middleOf(const Geometry& geometry)
{
    QPainterPath path;
    if (geometry.points.size() < leastPoints(geometry)) {
        return path;
    }
    if (geometry.kind == Kind::Line) {
        path.moveTo(geometry.points.at(0));
        path.lineTo(geometry.points.at(1));
        if (path.elementCount() < 2) {
            path.addPolygon(QVector<QPointF>{geometry.points.at(0), geometry.points.at(1)});
        }
    } else if (geometry.kind == Kind::Arc) {
        const ArcPlace arc = arcPlace(geometry);
        path = arcPath(arc.centre, arc.radius, arc.start, arc.sweep);
    }
    return path;
}

ArcPlace arcPlace(const Geometry& arc)
{
    ArcPlace place;
    place.centre = arc.points.at(2);
    place.radius = distance(place.centre, arc.points.at(0));
    place.start = angleOf(place.centre, arc.points.at(0));
    const double end = angleOf(place.centre, arc.points.at(1));
    const double way =
        arc.points.at(0) == arc.points.at(1) ? 360 : sweepBetween(place.start, end, arc.clockwise);
    place.sweep = arc.clockwise ? -way : way;
    return place;
}

QTransform placeOf(const Geometry& geometry)
{
    const QPointF place = geometry.points.value(0);
    QTransform transform;
    transform.translate(place.x(), place.y());
    transform.rotate(geometry.rotation);
    transform.scale(geometry.mirror ? -1 : 1, 1);
    if (geometry.kind == Kind::Pad) {
        transform.scale(geometry.xScale, geometry.yScale);
    }
    return transform;
}

Geometry lineGeometry(const QString& symbol, const QPointF& from, const QPointF& to)
{
    Geometry line;
    line.symbol = symbol;
    line.points = {from, to};
    return line;
}

Geometry arcGeometry(const QString& symbol, const QPointF& from, const QPointF& to,
                     const QPointF& centre, bool clockwise)
{
    Geometry arc;
    arc.kind = Kind::Arc;
    arc.symbol = symbol;
    arc.points = {from, to, centre};
    arc.clockwise = clockwise;
    return arc;
}

Geometry padGeometry(const QString& symbol, const QPointF& centre)
{
    Geometry pad;
    pad.kind = Kind::Pad;
    pad.symbol = symbol;
    pad.points = {centre};
    return pad;
}

Geometry surfaceGeometry(const QVector<QPointF>& corners)
{
    Geometry surface;
    surface.kind = Kind::Surface;
    surface.points = corners;
    return surface;
}

Geometry discGeometry(const QPointF& centre, const QPointF& edge)
{
    Geometry disc = surfaceGeometry({centre, edge});
    disc.round = true;
    return disc;
}

Geometry textGeometry(const TextSpec& text, const QPointF& corner)
{
    Geometry geometry;
    geometry.kind = Kind::Text;
    geometry.text = text;
    geometry.points = {corner};
    return geometry;
}

}  // namespace Pcb
