#pragma once

#include "board/Board.h"

#include <FileError.h>

/// A board of 60 mm x 60 mm with every kind of feature, every symbol family and every text format,
/// some of it turned, mirrored, scaled or cut out.
Pcb::Board sampleBoard();

/// The file error that `work` throws; "none" if it throws nothing.
template <class Work>
QString errorOf(Work work)
{
    try {
        work();
    } catch (const CanvasHost::FileError& error) {
        return error.text();
    }
    return QStringLiteral("none");
}
