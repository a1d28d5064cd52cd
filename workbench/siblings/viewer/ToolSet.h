#pragma once

#include "viewer/CanvasTool.h"

#include <memory>

/// What the messages of the tool strip mean to the canvas.
namespace ToolSet {

enum class Meaning {
    Nothing,  ///< to the tool at work
    Begins,   ///< a tool is at work from now on
    Ends,     ///< none is
};

Meaning meaningOf(int code);

/// Null for a tool that this canvas does not perform. `mode` is the message's extra word.
std::unique_ptr<CanvasTool> create(int code, qint64 mode, Canvas& canvas);

}  // namespace ToolSet
