#pragma once

#include "board/Unknowns.h"

#include <QString>

/// What the user is told of features whose shape is not known; empty where there are none.
namespace UnknownTexts {

QString drawn(const Pcb::Unknowns& unknowns);
QString leftOut(const Pcb::Unknowns& unknowns);

}  // namespace UnknownTexts
