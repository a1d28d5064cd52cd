#include "board/GerberExport.h"

#include "board/Areas.h"
#include "board/GerberWriter.h"
#include "board/Symbol.h"
#include "board/Unknowns.h"

#include <Files.h>
#include <TimeToWrite.h>

#include <QCoreApplication>
#include <QDateTime>

#include <cmath>

namespace Pcb {
namespace {

void writeLine(GerberWriter& writer, const Geometry& line, const QPainterPath& area)
{
    const Symbol symbol = parseSymbol(line.symbol);
    if (symbol.shape == SymbolShape::Round) {
        writer.draw(symbol.width, QPolygonF(line.points));
    } else {
        writer.region(area);
    }
}

bool isQuarterTurn(double degrees)
{
    return std::fmod(degrees, 90) == 0;
}

/// The pad as one of the round or straight apertures; empty for other shapes.
QByteArray plainAperture(const Geometry& pad, const Symbol& symbol)
{
    const double width = symbol.width * std::abs(pad.xScale);
    const double height = symbol.height * std::abs(pad.yScale);
    const bool isEvenlyScaled = std::abs(pad.xScale) == std::abs(pad.yScale);
    const bool isUpright = isQuarterTurn(pad.rotation) && symbol.rotation == 0;
    const bool isAside = std::fmod(std::abs(pad.rotation), 180) == 90;
    switch (symbol.shape) {
        case SymbolShape::Round:
            return isEvenlyScaled ? GerberWriter::aperture('C', width) : QByteArray();
        case SymbolShape::Oval:
            if (!isEvenlyScaled) {
                return {};
            }
            break;
        case SymbolShape::Square:
        case SymbolShape::Rectangle:
            break;
        default:
            return {};
    }
    if (!isUpright) {
        return {};
    }
    const char kind = symbol.shape == SymbolShape::Oval ? 'O' : 'R';
    return isAside ? GerberWriter::aperture(kind, height, width)
                   : GerberWriter::aperture(kind, width, height);
}

/// Readers of the format need not accept more corners than this in a macro.
constexpr int mostMacroCorners = 40;

void writePad(GerberWriter& writer, const Geometry& pad, const QPainterPath& area)
{
    const QByteArray plain = plainAperture(pad, parseSymbol(pad.symbol));
    if (!plain.isEmpty()) {
        writer.flash(plain, pad.points.first());
        return;
    }
    QVector<QPolygonF> outlines;
    int corners = 0;
    for (const Island& island : islands(area.translated(-pad.points.first()))) {
        outlines.append(cutOpen(island));
        corners = qMax(corners, outlines.last().size());
    }
    if (corners <= mostMacroCorners) {
        writer.flash(writer.macro(outlines), pad.points.first());
    } else {
        writer.region(area);
    }
}

void writeText(GerberWriter& writer, const Geometry& geometry)
{
    const TextDrawing drawing = drawText(geometry.text);
    const QTransform place = placeOf(geometry);
    for (const QPolygonF& stroke : drawing.strokes) {
        writer.draw(drawing.lineWidth, place.map(stroke));
    }
    writer.region(place.map(drawing.areas));
}

void writeFeature(GerberWriter& writer, const Feature& feature)
{
    const Geometry& geometry = feature.geometry();
    if (feature.area().isEmpty()) {
        return;
    }
    writer.setPolarity(feature.isPositive());
    switch (geometry.kind) {
        case Kind::Line:
            writeLine(writer, geometry, feature.area());
            break;
        case Kind::Arc:
            writer.drawArc(arcPenWidth(geometry.symbol), arcPlace(geometry));
            break;
        case Kind::Pad:
            writePad(writer, geometry, feature.area());
            break;
        case Kind::Surface:
            writer.region(feature.area());
            break;
        case Kind::Text:
            writeText(writer, geometry);
            break;
    }
}

/// "#@!" marks an attribute of Gerber X2 in a comment, which older readers skip.
void writeOrigin(GerberWriter& writer, const Board& board)
{
    writer.comment(QStringLiteral(
        "#@! TF.GenerationSoftware,Canvas Tool Strip,canvas-workbench," WORKBENCH_VERSION));
    writer.comment(QStringLiteral("#@! TF.CreationDate,") +
                   CanvasHost::timeToWrite().toUTC().toString(Qt::ISODate));
    if (!board.job.isEmpty()) {
        writer.comment(QStringLiteral("Job: ") + board.job);
    }
    if (!board.step.isEmpty()) {
        writer.comment(QStringLiteral("Step: ") + board.step);
    }
}

}  // namespace

QByteArray toGerber(const Board& board, const QString& file, const Progress& progress)
{
    GerberWriter writer;
    writeOrigin(writer, board);
    for (const QString& line : wordsInFile(unknownsOf(board))) {
        writer.comment(line);
    }
    size_t done = 0;
    for (const Feature& feature : board.features) {
        progress.at(done++, board.features.size());
        writeFeature(writer, feature);
    }
    if (!writer.isInRange()) {
        throw CanvasHost::FileError{
            file, 0,
            QCoreApplication::translate("FileErrors",
                                        "a coordinate is ten metres or farther from 0")};
    }
    return writer.file();
}

void writeGerber(const Board& board, const QString& file, const Progress& progress)
{
    CanvasHost::writeWhole(file, toGerber(board, file, progress));
}

}  // namespace Pcb
