#pragma once

#include "viewer/CanvasTool.h"

class QPainter;
class QTransform;

/// Draws what a tool shows over the board, and the marks, by a painter in board coordinates.
/// `toView` leads from there to pixels, in which lines are wide and texts are high.
void paintOverlay(QPainter& painter, const QTransform& toView, const Overlay& overlay,
                  const std::vector<Mark>& marks);
