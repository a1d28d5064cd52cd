#pragma once

#include "board/Board.h"

#include <QString>

/// What the user is told of features whose shape is not known; empty where there are none.
namespace UnknownTexts {

QString drawn(const Pcb::Board& board);
QString leftOut(const Pcb::Board& board);

}  // namespace UnknownTexts
