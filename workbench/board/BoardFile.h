#pragma once

#include "board/Board.h"
#include "board/Progress.h"

#include <QByteArray>
#include <QString>

/// The board file: JSON, described in workbench/docs/files.md.
namespace Pcb {

QByteArray toJson(const Board& board, const Progress& progress = {});

/// Throws a FileError for a text that is not a board; `file` is the name in the error.
Board fromJson(const QByteArray& text, const QString& file = {}, const Progress& progress = {});

/// Throw a FileError. A file is written completely, or the existing one stays.
Board readBoardFile(const QString& file, const Progress& progress = {});
void writeBoardFile(const Board& board, const QString& file, const Progress& progress = {});
/// The kind follows from the end of the name: ".gbr" Gerber, ".png" or ".svg" a picture, ".json"
/// the board itself.
void exportBoard(const Board& board, const QString& file, const Progress& progress = {});

}  // namespace Pcb
