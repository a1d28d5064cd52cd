#pragma once

#include "board/Board.h"
#include "board/Progress.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QString>

namespace Pcb {

struct PictureColours {
    QColor background = Qt::white;
    QColor positive = QColor(0x1f, 0x4e, 0x79);
    QColor outline = QColor(0x80, 0x80, 0x80);  ///< transparent: the outline is not drawn
};

/// Paints the part `area` (micrometres) of the board over the whole of `target`. Negative features
/// are painted in the background's colour.
void paintBoard(QPainter& painter, const Board& board, const QRectF& area, const QRectF& target,
                const PictureColours& colours = {}, const Progress& progress = {});

/// The board, with a margin of a twentieth, its longer side `pixels` long.
QImage toImage(const Board& board, int pixels, const PictureColours& colours = {},
               const Progress& progress = {});

/// All or nothing, as writeBoardFile(). An SVG is as large as the board and has no margin.
void writePng(const Board& board, const QString& file, int pixels, const Progress& progress = {});
void writeSvg(const Board& board, const QString& file, const Progress& progress = {});

}  // namespace Pcb
