// Floor of the module's library: its pictures, and a factory that makes a plain strip.

#include "Canvas.h"
#include "floors/PlainStrip.h"

extern "C" Q_DECL_EXPORT void* GetPluginInstance(QWidget* parent)
{
    static CanvasFloor canvas;
    return new PlainStrip(parent, canvas);
}
