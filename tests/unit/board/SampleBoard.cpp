#include "SampleBoard.h"

using namespace Pcb;

namespace {

void addPads(Board& board)
{
    const QStringList symbols = {
        QStringLiteral("r60"),          QStringLiteral("s60"),
        QStringLiteral("rect40x80"),    QStringLiteral("oval40x80"),
        QStringLiteral("diamond60x80"), QStringLiteral("octagon70x70"),
        QStringLiteral("hexagon80x60"), QStringLiteral("triangle80x60"),
        QStringLiteral("ellipse80x50"), QStringLiteral("ring_r80x50"),
        QStringLiteral("ring_s80x50"),  QStringLiteral("logo"),
        QStringLiteral("rect40x80_30"), QStringLiteral("octagon80x50x10"),
    };
    for (int i = 0; i < symbols.size(); ++i) {
        const double x = 3000 + 4000 * i;
        Geometry pad = padGeometry(symbols.at(i), {x, 3000});
        board.features.emplace_back(pad);
        pad.points = {{x, 6500}};
        pad.rotation = 90;
        board.features.emplace_back(pad);
        pad.points = {{x, 10000}};
        pad.rotation = 30;
        pad.mirror = true;
        pad.xScale = 1.25;
        pad.yScale = 0.75;
        board.features.emplace_back(pad);
    }
}

void addLinesAndArcs(Board& board)
{
    const auto add = [&board](const Geometry& geometry) { board.features.emplace_back(geometry); };
    add(lineGeometry(QStringLiteral("r20"), {3000, 14000}, {12000, 17000}));
    add(lineGeometry(QStringLiteral("s30"), {15000, 14000}, {24000, 17000}));
    add(lineGeometry(QStringLiteral("r40"), {27000, 15000}, {27000, 15000}));
    add(arcGeometry(QStringLiteral("r20"), {34000, 16000}, {31000, 19000}, {31000, 16000}, true));
    add(arcGeometry(QStringLiteral("r30"), {42000, 16000}, {39000, 19000}, {39000, 16000}, false));
    add(arcGeometry(QStringLiteral("r20"), {51000, 16000}, {51000, 16000}, {48500, 16000}, false));
    add(arcGeometry(QStringLiteral("r60"), {56000, 16000}, {55500, 16500}, {55500, 16000}, true));
}

void addSurfaces(Board& board)
{
    const auto cut = [&board](Geometry geometry) {
        geometry.positive = false;
        board.features.emplace_back(geometry);
    };
    board.features.emplace_back(surfaceGeometry({{3000, 21000},
                                                 {20000, 21000},
                                                 {20000, 30000},
                                                 {10000, 30000},
                                                 {10000, 26000},
                                                 {3000, 30000}}));
    cut(lineGeometry(QStringLiteral("r40"), {5000, 22500}, {18000, 28000}));
    cut(padGeometry(QStringLiteral("ring_r120x60"), {15000, 24000}));
    board.features.emplace_back(padGeometry(QStringLiteral("r30"), {15000, 24000}));
    board.features.emplace_back(discGeometry({27000, 26000}, {31500, 26000}));
    cut(surfaceGeometry({{25000, 24000}, {29000, 24000}, {27000, 28000}}));
    // A star that crosses itself: the middle is open.
    board.features.emplace_back(surfaceGeometry(
        {{37000, 30500}, {34500, 22500}, {41500, 27500}, {33000, 27500}, {39500, 22500}}));
}

void addText(Board& board, const QPointF& place, TextFormat format, const QString& content,
             void (*change)(TextSpec&))
{
    TextSpec text;
    text.format = format;
    text.content = content;
    text.xSize = 1500;
    text.ySize = 2500;
    text.lineWidth = 250;
    change(text);
    Geometry geometry = textGeometry(text, place);
    board.features.emplace_back(geometry);
}

void addTexts(Board& board)
{
    addText(board, {3000, 33000}, TextFormat::String, QStringLiteral("Net-Q7 (B)"),
            [](TextSpec&) {});
    TextSpec turned = board.features.back().geometry().text;
    Geometry mirrored = textGeometry(turned, {57500, 33000});
    mirrored.mirror = true;
    mirrored.rotation = 10;
    board.features.emplace_back(mirrored);
    addText(board, {3000, 38000}, TextFormat::Barcode, QStringLiteral("PCB-42"),
            [](TextSpec& text) {
                text.barcodeHeight = 4000;
                text.addString = true;
            });
    addText(board, {38000, 46000}, TextFormat::Barcode, QStringLiteral("board 8"),
            [](TextSpec& text) {
                text.barcode = BarcodeType::Code128B;
                text.barcodeHeight = 3000;
                text.addBackground = true;
            });
    addText(board, {48000, 22000}, TextFormat::Barcode, QStringLiteral("MODULE 0815"),
            [](TextSpec& text) {
                text.barcode = BarcodeType::Matrix;
                text.barcodeHeight = 8000;
                text.addMarkers = true;
            });
    addText(board, {3000, 47000}, TextFormat::PlotStamp, QStringLiteral("STAMP"),
            [](TextSpec& text) { text.stampZoom = 4; });
    addText(board, {3000, 53000}, TextFormat::Canned, QStringLiteral("CAN 5x7"),
            [](TextSpec& text) { text.holeSize = 400; });
}

}  // namespace

Board sampleBoard()
{
    Board board;
    board.job = QStringLiteral("demo");
    board.step = QStringLiteral("pcb");
    board.outline = QPolygonF(QRectF(0, 0, 60000, 60000));
    addPads(board);
    addLinesAndArcs(board);
    addSurfaces(board);
    addTexts(board);
    Geometry named = board.features.front().geometry();
    named.attributes = {{QStringLiteral(".net"), QStringLiteral("GND")},
                        {QStringLiteral(".smd"), QString()}};
    board.features.front() = Feature(named);
    return board;
}
