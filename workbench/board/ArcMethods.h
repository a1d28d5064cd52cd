#pragma once

#include "board/Brush.h"

#include <QPointF>
#include <QVector>

#include <optional>

/// The ways to define an arc or a circle by clicks; Placement.h says what each click means.
namespace Pcb {

constexpr int clicksOfArc = 3;
int clicksOf(CircleMethod method);

/// The centre of the circle through three points; nothing for points on one line.
std::optional<QPointF> circumcentre(const QPointF& a, const QPointF& b, const QPointF& c);

/// From clicksOfArc clicks; nothing where they make no arc.
std::optional<Geometry> arcOf(const Brush& brush, const QVector<QPointF>& clicks);

/// From clicksOf() clicks; nothing where they make no circle.
std::optional<Geometry> circleOf(const Brush& brush, const QVector<QPointF>& clicks);

}  // namespace Pcb
