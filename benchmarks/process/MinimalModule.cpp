// Floor of the module's library: its pictures, and a plain strip behind the factory.

#include "Canvas.h"
#include "floors/PlainStrip.h"

extern "C" Q_DECL_EXPORT void* GetPluginInstance(QWidget* parent)
{
    static Canvas canvas;
    return new PlainStrip(parent, canvas);
}
