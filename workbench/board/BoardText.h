#pragma once

#include "board/Board.h"
#include "board/Progress.h"

#include <QByteArray>
#include <QHash>

namespace Pcb {

/// Writes the text of a board file again and again: only features that are new since the last time
/// cost their writing.
class BoardText {
public:
    QByteArray of(const Board& board, const Progress& progress = {});

private:
    Features m_features;  ///< of the last time; as long as they live, no other takes their places
    QHash<const void*, QByteArray> m_lines;  ///< by Feature::identity()
};

}  // namespace Pcb
