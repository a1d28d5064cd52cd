#pragma once

#include "viewer/CanvasTool.h"

class QPainter;
class QTransform;

/// Draws what a tool shows over the board, and the marks, by a painter in board coordinates.
/// `toView` maps these to pixels, the unit of line widths and text heights;
/// `room` is what can be seen of them.
void paintOverlay(QPainter& painter, const QTransform& toView, const Overlay& overlay,
                  const std::vector<Mark>& marks, const QRectF& room);
