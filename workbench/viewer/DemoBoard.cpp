#include "viewer/DemoBoard.h"

namespace {

using Pcb::Attributes;
using Pcb::Feature;
using Pcb::Features;
using Pcb::Geometry;

Feature with(Geometry geometry, const Attributes& attributes)
{
    geometry.attributes = attributes;
    return Feature(geometry);
}

void addTrace(Features& features, const QString& symbol, const QVector<QPointF>& points,
              const QString& net)
{
    for (int i = 1; i < points.size(); ++i) {
        features.push_back(
            with(Pcb::lineGeometry(symbol, points[i - 1], points[i]), {{".net", net}}));
    }
}

}  // namespace

Pcb::Board demoBoard(const QString& job, const QString& step)
{
    Features all;
    all.push_back(with(Pcb::surfaceGeometry(
                           {{1500, 1500}, {9000, 1500}, {9000, 3800}, {6200, 5200}, {1500, 5200}}),
                       {{".fill_dx", "0.1"}, {".net", "GND"}}));
    addTrace(all, "r10", {{3000, 11500}, {6500, 11500}, {8500, 9500}, {13000, 9500}}, "CLK");
    addTrace(all, "r10", {{3000, 9960}, {5900, 9960}, {7900, 7960}, {13000, 7960}}, "DATA");
    addTrace(all, "r20", {{3700, 3400}, {11500, 3400}, {13500, 5400}, {17500, 5400}}, "GND");
    all.push_back(
        Feature(Pcb::arcGeometry("r12", {14309, 11616}, {16000, 9200}, {16000, 11000}, true)));
    for (int pin = 0; pin < 4; ++pin) {
        all.push_back(with(Pcb::padGeometry("rect60x24", {2900.0, 11500.0 - 1540.0 * pin}),
                           {{".smd", ""}, {".pad_usage", "toeprint"}}));
    }
    for (int pin = 0; pin < 3; ++pin) {
        all.push_back(
            with(Pcb::padGeometry("oval80x40", {13000.0, 9500.0 - 1540.0 * pin}), {{".smd", ""}}));
    }
    all.push_back(with(Pcb::padGeometry("r60", {17500, 5400}),
                       {{".drill", "plated"}, {".pad_usage", "via"}}));
    all.push_back(with(Pcb::padGeometry("s50", {3700, 3400}), {{".fiducial_name", "F1"}}));
    all.push_back(with(Pcb::padGeometry("r100", {16000, 11000}), {{".drill", "non_plated"}}));
    const QVector<QPointF> outline{{0, 0}, {20000, 0}, {20000, 14000}, {0, 14000}};
    return {job, step, QPolygonF(outline), all};
}
