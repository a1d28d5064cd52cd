#pragma once

#include "board/Paths.h"

inline bool same(const QPointF& a, const QPointF& b)
{
    return Pcb::distance(a, b) < 1e-6;
}
