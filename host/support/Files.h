#pragma once

#include <FileError.h>

#include <QByteArray>

class QFileDevice;

namespace CanvasHost {

/// Why the last operation on the file failed, in the user's language.
FileError fileError(const QFileDevice& device);

/// The whole content of a file; throws a FileError.
QByteArray readWhole(const QString& file);

/// Writes a complete file, or leaves the existing one and throws a FileError.
void writeWhole(const QString& file, const QByteArray& content);

/// The same, without waiting for the disk, which may take seconds: what is written outlives this
/// program, but perhaps not the computer.
void writeUnsynced(const QString& file, const QByteArray& content);

}  // namespace CanvasHost
