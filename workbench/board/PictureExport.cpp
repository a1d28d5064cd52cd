#include "board/PictureExport.h"

#include "board/Unknowns.h"

#include <Files.h>
#include <LengthUnits.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QScopeGuard>
#include <QSvgGenerator>

#include <algorithm>

namespace Pcb {
namespace {

constexpr int largestPicture = 20000;  // pixels of a side
constexpr double margin = 0.05;
constexpr double leastMargin = 5000;  // micrometres, around a board without extent

/// The board; without any extent, a little around where it is.
QRectF areaOf(const Board& board)
{
    const QRectF bounds = boundsOf(board);
    return bounds.isEmpty() ? bounds.adjusted(-leastMargin, -leastMargin, leastMargin, leastMargin)
                            : bounds;
}

QRectF withMargin(const QRectF& area)
{
    const double more = std::max(area.width(), area.height()) * margin;
    return area.adjusted(-more, -more, more, more);
}

QSize sizeOf(const QRectF& area, int longerSide)
{
    const double scale =
        qBound(1, longerSide, largestPicture) / std::max(area.width(), area.height());
    return {std::max(1, qRound(area.width() * scale)), std::max(1, qRound(area.height() * scale))};
}

/// Painting stores in a path what it has computed of it, and a canvas may be painted with the same
/// one at the same time.
QPainterPath copyOf(const QPainterPath& path)
{
    QPainterPath copy;
    copy.addPath(path);
    copy.setFillRule(path.fillRule());
    return copy;
}

/// What is left out of the picture; empty where nothing is.
QString comment(const Board& board)
{
    return wordsInFile(unknownsOf(board)).join(QLatin1Char('\n'));
}

}  // namespace

void paintBoard(QPainter& painter, const Board& board, const QRectF& area, const QRectF& target,
                const PictureColours& colours, const Progress& progress)
{
    painter.save();
    const auto restore = qScopeGuard([&painter] { painter.restore(); });
    painter.setClipRect(target);
    painter.fillRect(target, colours.background);
    painter.translate(target.left(), target.bottom());
    painter.scale(target.width() / area.width(), -target.height() / area.height());
    painter.translate(-area.left(), -area.top());
    size_t done = 0;
    for (const Feature& feature : board.features) {
        progress.at(done++, board.features.size());
        painter.fillPath(copyOf(feature.area()),
                         feature.isPositive() ? colours.positive : colours.background);
    }
    QPen pen(colours.outline);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    if (colours.outline.alpha() > 0) {
        painter.drawPolygon(board.outline);
    }
}

QImage toImage(const Board& board, int pixels, const PictureColours& colours,
               const Progress& progress)
{
    const QRectF area = withMargin(areaOf(board));
    QImage image(sizeOf(area, pixels), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintBoard(painter, board, area, QRectF(image.rect()), colours, progress);
    return image;
}

void writePng(const Board& board, const QString& file, int pixels, const Progress& progress)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImage image = toImage(board, pixels, {}, progress);
    image.setText(QStringLiteral("Comment"), comment(board));
    image.save(&buffer, "PNG");
    CanvasHost::writeWhole(file, buffer.data());
}

void writeSvg(const Board& board, const QString& file, const Progress& progress)
{
    const QRectF area = areaOf(board);
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    // Dots per inch: a dot is a micrometre, so that the drawing has the board's true size.
    generator.setResolution(qRound(1000 * CanvasHost::micrometresOfMil));
    generator.setSize(area.size().toSize().expandedTo({1, 1}));
    generator.setViewBox(QRectF(QPointF(), area.size()));
    // Qt writes both as they are.
    generator.setTitle((board.job + QLatin1Char(' ') + board.step).trimmed().toHtmlEscaped());
    generator.setDescription(comment(board).toHtmlEscaped());
    QPainter painter(&generator);
    paintBoard(painter, board, area, QRectF(QPointF(), area.size()), {}, progress);
    painter.end();
    CanvasHost::writeWhole(file, buffer.data());
}

}  // namespace Pcb
