#pragma once

#include "board/Board.h"

#include <QByteArray>
#include <QString>

/// The board file: JSON, described in workbench/docs/files.md.
namespace Pcb {

QByteArray toJson(const Board& board);

/// Throws a FileError for a text that is no board; `file` is what it names.
Board fromJson(const QByteArray& text, const QString& file = {});

/// Throw a FileError. A file is written whole, or the one that is there stays.
Board readBoardFile(const QString& file);
void writeBoardFile(const Board& board, const QString& file);

}  // namespace Pcb
