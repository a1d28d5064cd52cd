#pragma once

#include <FileError.h>

#include <QByteArray>

namespace CanvasHost {

/// The whole content of a file; throws a FileError.
QByteArray readWhole(const QString& file);

/// Writes a whole file, or leaves the one that is there and throws a FileError.
void writeWhole(const QString& file, const QByteArray& content);

}  // namespace CanvasHost
