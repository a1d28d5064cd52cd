#pragma once

#include "board/Board.h"

/// A board of 60 mm x 60 mm with every kind of feature, every symbol family and every text format,
/// some of it turned, mirrored, scaled or cut out.
Pcb::Board sampleBoard();
