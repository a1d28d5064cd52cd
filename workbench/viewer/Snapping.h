#pragma once

#include "board/Board.h"

#include <vector>

/// Places that a point snaps to. Lengths are micrometres.
namespace Snapping {

enum class Kind { Grid, End, Centre };

struct Place {
    QPointF point;
    Kind kind = Kind::Grid;
};

/// The ends and the centre of a feature; corners of surfaces and texts are ends.
std::vector<Place> placesOf(const Pcb::Feature& feature);

/// The nearest end or centre no farther away than `reach`, of the features whose bounds are not
/// farther away either; else the nearest point of the grid through 0, 0.
Place nearest(const Pcb::Board& board, const QPointF& point, double reach, double gridStep);

}  // namespace Snapping
