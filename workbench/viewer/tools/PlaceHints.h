#pragma once

#include "board/Placement.h"

#include <QLineF>
#include <QString>

/// What the tool that draws asks for next, and what there is to know about it.
namespace PlaceHints {

QString of(const Pcb::Placement& placement);

/// The length of a line that is being drawn, its direction, and its way along both axes, in the
/// user's unit.
QString measured(const QLineF& line);

}  // namespace PlaceHints
