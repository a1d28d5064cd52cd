#pragma once

#include "board/Board.h"

/// The board that a step holds before anything is drawn or opened: a few features of every kind.
Pcb::Board demoBoard(const QString& job, const QString& step);
