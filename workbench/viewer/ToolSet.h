#pragma once

#include "viewer/CanvasTool.h"

#include <memory>

/// What the messages about tools mean to the canvas.
namespace ToolSet {

struct Row {
    int code;          ///< the tool is the active one now
    int offCode;       ///< ... and no longer; 0 when there is no such message
    const char* text;  ///< to be translated in the context "ToolSet"
    /// Null for a tool that is not used on the board. `mode` is the message's extra word.
    std::unique_ptr<CanvasTool> (*create)(Canvas& canvas, qint64 mode);
};

/// Null for a message that is about no tool.
const Row* find(int code);
/// Null unless `code` is a row's offCode.
const Row* ended(int code);
/// The tool of the host's measure window, which no message announces.
const Row& measuring();

/// In the user's language.
QString text(const Row& row);

}  // namespace ToolSet
