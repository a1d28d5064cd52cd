#pragma once

#include "Canvas.h"

#include <HostExport.h>

/// While it lives, the plug-in manager that the module is linked with gives every message, which it
/// gets by value, straight to `canvas`. The manager of the stand-ins looks instances up and shows
/// messages to an observer, which is not the module's work.
class CANVAS_HOST_EXPORT Connected {
public:
    explicit Connected(CanvasFloor& canvas);
    ~Connected();
    Connected(const Connected&) = delete;
    Connected& operator=(const Connected&) = delete;
};
