#include "viewer/DemoBoard.h"

#include <functional>

namespace {

using Pcb::Attributes;
using Pcb::Board;
using Pcb::Feature;
using Pcb::Features;
using Pcb::Geometry;
using Pcb::TextFormat;
using Pcb::TextSpec;

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

Board controlBoard()
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
    return {{}, {}, QPolygonF(outline), all};
}

void addPads(Features& features)
{
    const QStringList symbols{"r40",          "s40",          "rect30x60",    "oval30x60",
                              "diamond50x60", "octagon50x50", "hexagon60x50", "triangle60x50",
                              "ellipse60x40", "ring_r50x30",  "ring_s50x30"};
    for (int i = 0; i < symbols.size(); ++i) {
        Geometry pad = Pcb::padGeometry(symbols[i], {2000.0 + 2400 * i, 2200});
        pad.rotation = i % 2 == 0 ? 0 : 30;
        features.push_back(with(pad, {{".smd", ""}}));
    }
}

/// Lines, arcs and surfaces, and what is cut out of them.
void addAntenna(Features& features)
{
    features.push_back(
        with(Pcb::surfaceGeometry(
                 {{1500, 4000}, {13000, 4000}, {13000, 8000}, {9000, 10500}, {1500, 10500}}),
             {{".net", "GND"}}));
    features.push_back(Feature(Pcb::discGeometry({22000, 9000}, {23200, 9000})));
    for (int turn = 0; turn < 3; ++turn) {
        const double radius = 2200 + 800 * turn;
        features.push_back(with(Pcb::arcGeometry("r12", {22000 - radius, 9000},
                                                 {22000 + radius, 9000}, {22000, 9000}, true),
                                {{".net", "ANTENNA"}}));
    }
    features.push_back(
        Feature(Pcb::arcGeometry("r8", {6000, 7000}, {6000, 7000}, {4500, 7000}, false)));
    addTrace(features, "r10", {{2000, 2200}, {2000, 3200}, {3000, 4200}}, "GND");
    addTrace(features, "s12", {{26000, 2200}, {26000, 7400}, {25600, 9000}}, "ANTENNA");
    const auto cut = [&](Geometry geometry) {
        geometry.positive = false;
        features.push_back(Feature(geometry));
    };
    cut(Pcb::discGeometry({10500, 6500}, {11800, 6500}));
    cut(Pcb::lineGeometry("r20", {3000, 9500}, {8000, 9500}));
    features.push_back(with(Pcb::padGeometry("r60", {10500, 6500}),
                            {{".drill", "plated"}, {".pad_usage", "via"}}));
}

void addText(Features& features, const QPointF& corner, TextFormat format, const QString& content,
             const std::function<void(TextSpec&)>& change)
{
    TextSpec text;
    text.format = format;
    text.content = content;
    text.xSize = 1100;
    text.ySize = 1500;
    text.lineWidth = 200;
    change(text);
    features.push_back(Feature(Pcb::textGeometry(text, corner)));
}

void addTexts(Features& features)
{
    const auto code = [](Pcb::BarcodeType type, double height, bool isRead) {
        return [=](TextSpec& text) {
            text.barcode = type;
            text.barcodeHeight = height;
            text.addString = isRead;
            text.addMarkers = type == Pcb::BarcodeType::Matrix;
        };
    };
    addText(features, {1500, 18700}, TextFormat::String, "SENSOR", [](TextSpec&) {});
    addText(features, {1500, 13600}, TextFormat::Barcode, "SB-7",
            code(Pcb::BarcodeType::Code39, 3000, true));
    addText(features, {18500, 14500}, TextFormat::Barcode, "0815",
            code(Pcb::BarcodeType::Code128C, 2500, false));
    addText(features, {28000, 10500}, TextFormat::Barcode, "s7",
            code(Pcb::BarcodeType::Code39Ascii, 2000, false));
    addText(features, {29000, 6000}, TextFormat::Barcode, "b-7",
            code(Pcb::BarcodeType::Code128B, 2500, false));
    addText(features, {29500, 14000}, TextFormat::Barcode, "SENSOR 7",
            code(Pcb::BarcodeType::Matrix, 5500, false));
    addText(features, {12500, 18500}, TextFormat::PlotStamp, "TOP",
            [](TextSpec& text) { text.stampZoom = 2; });
    addText(features, {21000, 18600}, TextFormat::Canned, "REV2",
            [](TextSpec& text) { text.holeSize = 150; });
}

/// One feature of every kind, every symbol, text and code.
Board sensorBoard()
{
    Features all;
    addAntenna(all);
    addPads(all);
    addTexts(all);
    return {{}, {}, QPolygonF(QRectF(0, 0, 37000, 22000)), all};
}

void addEdge(Features& features, const QPolygonF& corners)
{
    for (int i = 0; i < corners.size(); ++i) {
        features.push_back(
            Feature(Pcb::lineGeometry("r6", corners[i], corners[(i + 1) % corners.size()])));
    }
}

/// The board, again and again within a frame that has holes, fiducials and a name.
struct Repetition {
    int columns;
    int rows;
    double gap;
    double rim;

    Board of(const Board& board, const QString& name) const;

private:
    void addRim(Features& features, const QSizeF& size, const QString& name) const;
};

Board Repetition::of(const Board& board, const QString& name) const
{
    const QSizeF one = board.outline.boundingRect().size();
    const QSizeF size(2 * rim + columns * one.width() + (columns - 1) * gap,
                      2 * rim + rows * one.height() + (rows - 1) * gap);
    Features all;
    for (int at = 0; at < columns * rows; ++at) {
        const QPointF place(rim + at % columns * (one.width() + gap),
                            rim + at / columns * (one.height() + gap));
        for (const Feature& feature : board.features) {
            Geometry copy = feature.geometry();
            for (QPointF& point : copy.points) {
                point += place;
            }
            all.push_back(Feature(copy));
        }
        addEdge(all, board.outline.translated(place));
    }
    addRim(all, size, name);
    return {{}, {}, QPolygonF(QRectF(QPointF(), size)), all};
}

void Repetition::addRim(Features& features, const QSizeF& size, const QString& name) const
{
    const double middle = rim / 2;
    for (const double x : {middle, size.width() - middle}) {
        for (const double y : {middle, size.height() - middle}) {
            features.push_back(with(Pcb::padGeometry("r120", {x, y}), {{".drill", "non_plated"}}));
        }
        features.push_back(
            with(Pcb::padGeometry("r40", {x, size.height() / 2}), {{".pad_usage", "g_fiducial"}}));
    }
    addText(features, {2 * rim, rim / 4}, TextFormat::String, name, [this](TextSpec& text) {
        text.xSize = rim / 3;
        text.ySize = rim / 2;
        text.lineWidth = rim / 16;
    });
}

}  // namespace

Pcb::Board demoBoard(const QString& job, const QString& step)
{
    constexpr Repetition array{3, 2, 2000, 5000};
    constexpr Repetition panelOfArrays{2, 3, 3000, 10000};
    constexpr Repetition panelOfBoards{3, 4, 2000, 8000};
    const bool isSensor = job == QLatin1String("sensor_board");
    Board board = isSensor ? sensorBoard() : controlBoard();
    if (step == QLatin1String("array")) {
        board = array.of(board, QStringLiteral("ARRAY"));
    } else if (step == QLatin1String("panel")) {
        const QString name = QStringLiteral("PANEL");
        board = isSensor ? panelOfBoards.of(board, name)
                         : panelOfArrays.of(array.of(board, QStringLiteral("ARRAY")), name);
    }
    board.job = job;
    board.step = step;
    return board;
}
