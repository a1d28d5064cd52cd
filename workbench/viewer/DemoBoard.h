#pragma once

#include "board/Board.h"

/// The board that a step holds before anything is drawn or opened. Those of the two sample jobs
/// differ; a step called "array" or "panel" repeats the board of its job.
Pcb::Board demoBoard(const QString& job, const QString& step);
