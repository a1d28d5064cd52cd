#pragma once

#include <FileError.h>

/// What is wrong with a file according to the error that `read` throws; empty if none.
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
