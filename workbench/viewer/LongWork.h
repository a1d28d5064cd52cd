#pragma once

#include "board/Progress.h"

#include <QString>

#include <functional>

class QWidget;

/// Work that may take long, on a thread of its own.
namespace LongWork {

using Work = std::function<void(const Pcb::Progress&)>;

/// Does the work, and returns when it has ended. If it takes long the pointer is busy meanwhile,
/// and after half a second a dialog with `text` shows the progress and can cancel it. False: it was
/// cancelled. What else the work throws is thrown here.
bool run(QWidget* parent, const QString& text, const Work& work);

}  // namespace LongWork
