#pragma once

#include <QChar>
#include <QPoint>
#include <QVector>

/// The one stroke font: each character is drawn with straight strokes on a grid of 5 x 7 points.
namespace Pcb {

constexpr int glyphColumns = 5;
constexpr int glyphRows = 7;

/// Whether the font has the character: it has those of printable ASCII.
bool hasGlyph(QChar character);

/// The strokes of a character: x 0 to 4, y 0 to 6 upwards; a stroke of one point is a dot. An empty
/// box stands for one that the font lacks.
QVector<QVector<QPoint>> glyphStrokes(QChar character);

/// The dots of a character on a matrix of `columns` by seven points, each once: the grid points
/// that its strokes run over.
QVector<QPoint> glyphDots(QChar character, int columns);

}  // namespace Pcb
