#pragma once

#include <FileError.h>

#include <QByteArray>

namespace CanvasHost {

/// The whole content of a file; throws a FileError.
QByteArray readWhole(const QString& file);

/// Writes a complete file, or leaves the existing one and throws a FileError.
void writeWhole(const QString& file, const QByteArray& content);

}  // namespace CanvasHost
