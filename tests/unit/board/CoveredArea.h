#pragma once

#include "board/Areas.h"
#include "board/Paths.h"

/// The area that `path` covers by its fill rule, in square micrometres, flattened.
inline double coveredArea(const QPainterPath& path)
{
    double area = 0;
    for (const Pcb::Island& island : Pcb::islands(path)) {
        area += Pcb::signedArea(island.outline);
        for (const QPolygonF& hole : island.holes) {
            area += Pcb::signedArea(hole);
        }
    }
    return area;
}
