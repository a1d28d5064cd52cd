#pragma once

#include <QDateTime>

namespace CanvasHost {

/// The time that messages, boards and files are marked with: now, or that of SOURCE_DATE_EPOCH
/// (seconds since 1970, shown as UTC), so that what is written can be compared.
QDateTime timeToWrite();

}  // namespace CanvasHost
