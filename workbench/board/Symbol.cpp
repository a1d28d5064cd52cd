#include "board/Symbol.h"

#include "board/Paths.h"

#include <LengthUnits.h>

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace Pcb {
namespace {

using CanvasHost::micrometresOfMil;

constexpr double placeholderSize = 60 * micrometresOfMil;

QPainterPath closed(const QPolygonF& polygon)
{
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}

QRectF centred(double width, double height)
{
    return {-width / 2, -height / 2, width, height};
}

QPainterPath box(const Symbol& symbol)
{
    QPainterPath path;
    path.addRect(centred(symbol.width, symbol.height));
    return path;
}

QPainterPath ellipse(const Symbol& symbol)
{
    QPainterPath path;
    path.addEllipse(centred(symbol.width, symbol.height));
    return path;
}

QPainterPath oval(const Symbol& symbol)
{
    const double radius = std::min(symbol.width, symbol.height) / 2;
    QPainterPath path;
    path.addRoundedRect(centred(symbol.width, symbol.height), radius, radius);
    return path;
}

QPainterPath diamond(const Symbol& symbol)
{
    const double x = symbol.width / 2;
    const double y = symbol.height / 2;
    return closed(QVector<QPointF>{{x, 0}, {0, y}, {-x, 0}, {0, -y}});
}

QPainterPath octagon(const Symbol& symbol)
{
    const double x = symbol.width / 2;
    const double y = symbol.height / 2;
    const double cut = symbol.detail;
    return closed(QVector<QPointF>{{x, y - cut},
                                   {x - cut, y},
                                   {cut - x, y},
                                   {-x, y - cut},
                                   {-x, cut - y},
                                   {cut - x, -y},
                                   {x - cut, -y},
                                   {x, cut - y}});
}

QPainterPath hexagon(const Symbol& symbol)
{
    const double x = symbol.width / 2;
    const double y = symbol.height / 2;
    const double in = x - symbol.detail;
    return closed(QVector<QPointF>{{x, 0}, {in, y}, {-in, y}, {-x, 0}, {-in, -y}, {in, -y}});
}

QPainterPath triangle(const Symbol& symbol)
{
    const double x = symbol.width / 2;
    const double y = symbol.height / 2;
    return closed(QVector<QPointF>{{-x, -y}, {x, -y}, {0, y}});
}

QPainterPath roundRing(const Symbol& symbol)
{
    QPainterPath path = ellipse(symbol);
    path.addEllipse(centred(symbol.detail, symbol.detail));
    return path;
}

QPainterPath squareRing(const Symbol& symbol)
{
    QPainterPath path = box(symbol);
    path.addRect(centred(symbol.detail, symbol.detail));
    return path;
}

/// A cross in a ring.
QPainterPath placeholder(const Symbol& symbol)
{
    const double arm = symbol.width / 3;
    const double half = symbol.width / 24;
    QPainterPath path = ellipse(symbol);
    path.addEllipse(centred(symbol.width * 5 / 6, symbol.height * 5 / 6));
    path.addPath(closed(QVector<QPointF>{{half, half},
                                         {half, arm},
                                         {-half, arm},
                                         {-half, half},
                                         {-arm, half},
                                         {-arm, -half},
                                         {-half, -half},
                                         {-half, -arm},
                                         {half, -arm},
                                         {half, -half},
                                         {arm, -half},
                                         {arm, half}}));
    return path;
}

using Draw = QPainterPath (*)(const Symbol&);

/// In the order of SymbolShape.
constexpr Draw drawings[] = {
    ellipse, box,      box,     oval,      diamond,    octagon,
    hexagon, triangle, ellipse, roundRing, squareRing, placeholder,
};

Symbol special()
{
    Symbol symbol;
    symbol.width = symbol.height = placeholderSize;
    return symbol;
}

/// The cut of the corners where the name gives none: that of a regular polygon, if it is as wide
/// as it is high.
double regularCut(const Symbol& symbol)
{
    if (symbol.shape == SymbolShape::Octagon) {
        return std::min(symbol.width, symbol.height) / (2 + std::sqrt(2.0));
    }
    return symbol.shape == SymbolShape::Hexagon ? symbol.width / 4 : 0;
}

std::vector<double> micrometres(const QStringList& sizes)
{
    std::vector<double> read;
    for (const QString& size : sizes) {
        read.push_back(size.toDouble() * micrometresOfMil);
    }
    return read;
}

}  // namespace

Symbol parseSymbol(const QString& name)
{
    const auto parsed = CanvasHost::parseSymbolName(name);
    if (!parsed) {
        return special();
    }
    const std::vector<double> sizes = micrometres(parsed->sizes);
    const auto [least, most] = std::minmax_element(sizes.begin(), sizes.end());
    if (*least <= 0 || *most > largestSymbolSize * micrometresOfMil) {
        return special();
    }
    Symbol symbol;
    symbol.shape = parsed->shape;
    symbol.width = sizes.front();
    symbol.height =
        sizes.size() > 1 && !CanvasHost::isRing(symbol.shape) ? sizes[1] : sizes.front();
    if (CanvasHost::isRing(symbol.shape)) {
        symbol.detail = sizes[1];
        if (!(symbol.detail < symbol.width)) {
            return special();
        }
    } else {
        const double deepest = symbol.shape == SymbolShape::Hexagon
                                   ? symbol.width / 2
                                   : std::min(symbol.width, symbol.height) / 2;
        symbol.detail = std::min(sizes.size() > 2 ? sizes[2] : regularCut(symbol), deepest);
    }
    symbol.rotation = std::fmod(parsed->rotation.mid(1).toDouble(), 360);
    return symbol;
}

QPainterPath symbolShape(const Symbol& symbol)
{
    const Draw draw = drawings[static_cast<int>(symbol.shape)];
    return QTransform().rotate(symbol.rotation).map(draw(symbol));
}

QPainterPath symbolShape(const QString& name)
{
    return symbolShape(parseSymbol(name));
}

QString withoutRotation(const QString& name)
{
    const auto parsed = CanvasHost::parseSymbolName(name);
    return parsed ? name.left(name.size() - parsed->rotation.size()) : name;
}

}  // namespace Pcb
