#pragma once

#include "board/Board.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// The board file: JSON, described in workbench/docs/files.md.
namespace Pcb {

QByteArray toJson(const Board& board);

/// Nothing, and an `error` "<line>: <reason>", where the text is not a board.
std::optional<Board> fromJson(const QByteArray& text, QString* error);

/// Nothing, and an `error` "<file>:<line>: <reason>". Line 0 stands for a file that cannot be read.
std::optional<Board> readBoardFile(const QString& file, QString* error);

/// Writes the whole file or leaves the one that is there. False, and an `error`
/// "<file>: <reason>", where it cannot be written.
bool writeBoardFile(const Board& board, const QString& file, QString* error);

}  // namespace Pcb
