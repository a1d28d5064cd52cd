#pragma once

#include <QtGlobal>

/// Marks what the module exports: exported while the module itself is built, imported by a host
/// that links against it, on Windows as elsewhere.
#ifdef CANVAS_TOOL_STRIP_BUILD
#define CANVAS_TOOL_STRIP_EXPORT Q_DECL_EXPORT
#else
#define CANVAS_TOOL_STRIP_EXPORT Q_DECL_IMPORT
#endif
