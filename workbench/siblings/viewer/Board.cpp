#include "viewer/Board.h"

#include <cam_api.h>

#include <QPainterPathStroker>
#include <QPolygonF>

namespace Board {
namespace {

using Attributes = std::map<std::string, std::string>;
using Points = QVector<QPointF>;

constexpr double micrometresOfMil = 25.4;

/// Width and height of a standard symbol.
QSizeF sizeOf(const std::string& symbol, ZENTRA::API::symbol_type* type)
{
    int a = 0;
    int b = 0;
    ZENTRA::API::identify_symbol(symbol, *type, a, b, false);
    return QSizeF(a, b) / 100.0 * micrometresOfMil;
}

Feature pad(const std::string& symbol, const QPointF& centre, const Attributes& attributes = {})
{
    auto type = ZENTRA::API::unknown;
    const QSizeF size = sizeOf(symbol, &type);
    QRectF area(QPointF(), size);
    area.moveCenter(centre);
    QPainterPath shape;
    if (type == ZENTRA::API::round) {
        shape.addEllipse(area);
    } else if (type == ZENTRA::API::oval) {
        const double radius = qMin(size.width(), size.height()) / 2;
        shape.addRoundedRect(area, radius, radius);
    } else {
        shape.addRect(area);
    }
    return {shape, symbol, attributes};
}

Feature stroke(const std::string& symbol, const QPainterPath& middle, const Attributes& attributes)
{
    auto type = ZENTRA::API::unknown;
    QPainterPathStroker stroker;
    stroker.setWidth(sizeOf(symbol, &type).width());
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    return {stroker.createStroke(middle).simplified(), symbol, attributes};
}

Feature line(const std::string& symbol, const Points& points, const Attributes& attributes = {})
{
    QPainterPath middle;
    middle.addPolygon(QPolygonF(points));
    return stroke(symbol, middle, attributes);
}

Feature arc(const std::string& symbol, const QRectF& circle, double start, double sweep)
{
    QPainterPath middle;
    middle.arcMoveTo(circle, start);
    middle.arcTo(circle, start, sweep);
    return stroke(symbol, middle, {});
}

Feature surface(const Points& points, const Attributes& attributes)
{
    QPainterPath shape;
    shape.addPolygon(QPolygonF(points));
    shape.closeSubpath();
    return {shape, {}, attributes};
}

std::vector<Feature> build()
{
    std::vector<Feature> all;
    all.push_back(surface({{1500, 1500}, {9000, 1500}, {9000, 3800}, {6200, 5200}, {1500, 5200}},
                          {{".fill_dx", "0.1"}, {".net", "GND"}}));
    all.push_back(line("r10", {{3000, 11500}, {6500, 11500}, {8500, 9500}, {13000, 9500}},
                       {{".net", "CLK"}}));
    all.push_back(
        line("r10", {{3000, 9960}, {5900, 9960}, {7900, 7960}, {13000, 7960}}, {{".net", "DATA"}}));
    all.push_back(line("r20", {{3700, 3400}, {11500, 3400}, {13500, 5400}, {17500, 5400}},
                       {{".net", "GND"}}));
    all.push_back(arc("r12", {14200, 9200, 3600, 3600}, 200, -290));
    for (int pin = 0; pin < 4; ++pin) {
        all.push_back(pad("rect60x24", {2900.0, 11500.0 - 1540.0 * pin},
                          {{".smd", ""}, {".pad_usage", "toeprint"}}));
    }
    for (int pin = 0; pin < 3; ++pin) {
        all.push_back(pad("oval80x40", {13000.0, 9500.0 - 1540.0 * pin}, {{".smd", ""}}));
    }
    all.push_back(pad("r60", {17500, 5400}, {{".drill", "plated"}, {".pad_usage", "via"}}));
    all.push_back(pad("s50", {3700, 3400}, {{".fiducial_name", "F1"}}));
    all.push_back(pad("r100", {16000, 11000}, {{".drill", "non_plated"}}));
    return all;
}

}  // namespace

QRectF outline()
{
    return {0, 0, 20000, 14000};
}

const std::vector<Feature>& features()
{
    static const std::vector<Feature> all = build();
    return all;
}

int featureAt(const QPointF& point, double tolerance)
{
    const QRectF around(point - QPointF(tolerance, tolerance), QSizeF(2, 2) * tolerance);
    for (int index = static_cast<int>(features().size()) - 1; index >= 0; --index) {
        if (features()[static_cast<size_t>(index)].shape.intersects(around)) {
            return index;
        }
    }
    return -1;
}

}  // namespace Board
