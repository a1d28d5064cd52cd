#pragma once

#include "board/Board.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace Pcb {

/// The layer as an RS-274X file: millimetres, 4.6 digits. Round lines, arcs and pads are drawn and
/// flashed, other pads flashed as macros, the rest filled as regions; features in their order,
/// polarity by %LPD*% and %LPC*%. Nothing, and an `error`, for coordinates of ten metres and more.
std::optional<QByteArray> toGerber(const Board& board, QString* error);

/// As writeBoardFile(): all or nothing.
bool writeGerber(const Board& board, const QString& file, QString* error);

}  // namespace Pcb
