#pragma once

#include "board/Board.h"

#include <QString>
#include <QStringList>

namespace Pcb {

/// What of a board cannot be drawn as it is meant. An export leaves it out.
struct Unknowns {
    int features = 0;     ///< with such a symbol or letter
    QStringList symbols;  ///< each once, in their order
    QString letters;      ///< that the stroke font lacks, each once, as they can be printed

    bool isEmpty() const { return features == 0; }
};

Unknowns unknownsOf(const Board& board);

/// What an export says about them in the file, line by line; nothing where nothing is left out. In
/// English, whatever the user's language: a file goes to others.
QStringList wordsInFile(const Unknowns& unknowns);

/// As they can be printed, each in quotes, with commas.
QString quoted(const QStringList& names);

}  // namespace Pcb
