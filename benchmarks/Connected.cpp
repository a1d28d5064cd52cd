#include "Connected.h"

#include <QTpluginsManger4CAM.h>

namespace {

CanvasFloor* theCanvas = nullptr;

}  // namespace

Connected::Connected(CanvasFloor& canvas)
{
    theCanvas = &canvas;
}

Connected::~Connected()
{
    theCanvas = nullptr;
}

QTpluginsManger4CAM* QTpluginsManger4CAM::instance()
{
    static QTpluginsManger4CAM manager;
    return &manager;
}

void QTpluginsManger4CAM::recMegToPlugin(void* /*sender*/, PluginMetaData message)
{
    if (theCanvas) {
        theCanvas->take(message);
    }
}
