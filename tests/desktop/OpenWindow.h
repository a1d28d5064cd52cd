#pragma once

#include "messages/MessageLog.h"
#include "window/WorkbenchWindow.h"

#include <memory>

/// The workbench with its sample jobs, shown and active on the display. `log` hears its messages
/// and begins empty; it must outlive the window.
std::unique_ptr<WorkbenchWindow> openWindow(MessageLog& log);
