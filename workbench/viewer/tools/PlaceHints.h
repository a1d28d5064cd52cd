#pragma once

#include "board/Placement.h"

#include <QString>

/// What the tool that draws asks for next, and what there is to know about it.
namespace PlaceHints {

QString of(const Pcb::Placement& placement);

}  // namespace PlaceHints
