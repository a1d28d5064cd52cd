#pragma once

#include <FileError.h>

#include <QByteArray>

namespace CanvasHost {

/// What a file is, going by what it contains. Other: none of those that the workbench knows.
enum class FileKind { Board, Job, Trace, Session, Gerber, Picture, Other };
FileKind kindOf(const QByteArray& content);

/// What to report of a file that was to be `wanted`: what it is instead, if that is known,
/// otherwise `error`, which its reader found.
FileError wrongKind(const QByteArray& content, FileKind wanted, const FileError& error);

/// Reads `content` as `wanted` with `read`.
template <typename Read>
auto readAs(FileKind wanted, const QByteArray& content, Read read)
{
    try {
        return read();
    } catch (const FileError& error) {
        throw wrongKind(content, wanted, error);
    }
}

}  // namespace CanvasHost
