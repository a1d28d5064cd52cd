#pragma once

#include "board/Brush.h"

namespace Pcb {

/// The lines and arcs of a rectangle with the brush's corners, counterclockwise from the lower
/// left. A corner radius counts up to half the shorter side; oblong corners take just that. Empty
/// for a rectangle without width or height.
std::vector<Geometry> rectangleOutline(const Brush& brush, const QPointF& corner,
                                       const QPointF& opposite);

}  // namespace Pcb
