#pragma once

#include "board/Board.h"
#include "board/Progress.h"

#include <QByteArray>
#include <QString>

namespace Pcb {

/// The layer as an RS-274X file: millimetres, 4.6 digits. Round lines, arcs and pads are drawn and
/// flashed, other pads flashed as macros, the rest filled as regions; features in their order,
/// polarity by %LPD*% and %LPC*%. Comments name program, date (that
/// of SOURCE_DATE_EPOCH, where it is set), job and step. Throws a FileError that names `file` for
/// coordinates of ten metres and more.
QByteArray toGerber(const Board& board, const QString& file = {}, const Progress& progress = {});

/// As writeBoardFile(): all or nothing.
void writeGerber(const Board& board, const QString& file, const Progress& progress = {});

}  // namespace Pcb
