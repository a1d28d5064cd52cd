#pragma once

#include "viewer/CanvasTool.h"

#include <memory>

/// What the messages about tools mean to the canvas.
namespace ToolSet {

/// Whether the message says that a tool is no longer active.
bool isEnd(int code);

/// The tool at work that the message announces. One that does nothing on this canvas says so in its
/// hint, and so does none at all (Unset). `mode` is the message's extra word.
std::unique_ptr<CanvasTool> create(int code, Canvas& canvas, qint64 mode);

/// What the tool with that code is called, in the user's language.
QString text(int code);

}  // namespace ToolSet
