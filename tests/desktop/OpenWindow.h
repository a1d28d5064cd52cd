#pragma once

#include "StartWorkbench.h"

/// The workbench with its sample jobs, shown and active on the display. `log` gets its messages
/// and starts empty; it must outlive the window.
std::unique_ptr<WorkbenchWindow> openWindow(MessageLog& log);
