#pragma once

#include <FileError.h>

/// What is wrong with a file by the error that `read` throws; empty when it throws none.
template <class Read>
QString errorOf(const Read& read)
{
    try {
        read();
        return {};
    } catch (const CanvasHost::FileError& error) {
        return error.text();
    }
}
