#pragma once

#include "viewer/CanvasTool.h"

#include <memory>

/// Which tool of the canvas stands behind a message of the tool strip.
namespace ToolSet {

/// Null for a tool that this canvas does not perform. `mode` is the message's extra word.
std::unique_ptr<CanvasTool> create(int code, qint64 mode, Canvas& canvas);

}  // namespace ToolSet
