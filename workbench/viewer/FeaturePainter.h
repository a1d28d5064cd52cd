#pragma once

#include <QRectF>

class Document;
class QPainter;

/// Draws the features in `area` of a document's board by a painter in board coordinates. On boards
/// of many features, anything of only a few pixels is drawn as a rectangle or a line.
void paintFeatures(QPainter& painter, const Document& document, const QRectF& area);
