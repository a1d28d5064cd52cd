#pragma once

#include "plugin/Export.h"

#include <PluginMetaData.h>

class QWidget;

/// The two entry points by which a host uses the module. Both are called on the GUI thread only.
extern "C" {

/// Creates a Canvas_Tool_Strip (a QGridLayout) whose buttons will live in `parent`.
///
/// The caller owns the result, and deletes it as a QObject or by giving it to a widget as its
/// layout. Null when there is no memory for it; what the constructor throws is passed on.
CANVAS_TOOL_STRIP_EXPORT void* GetPluginInstance(QWidget* parent);

/// Delivers `message` to the tool strip `instance` that GetPluginInstance returned.
CANVAS_TOOL_STRIP_EXPORT void recMsgFromManager(void* instance, PluginMetaData message);
}
