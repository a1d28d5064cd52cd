#pragma once

#include <QString>

namespace CanvasHost {

/// The library that `file` needs and that is not found; empty where the system's own message names
/// it.
QString missingLibrary(const QString& file);

}  // namespace CanvasHost
