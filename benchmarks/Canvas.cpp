#include "Canvas.h"

#include <QTpluginsManger4CAM.h>

namespace {

Canvas* theCanvas = nullptr;

}  // namespace

Connected::Connected(Canvas& canvas)
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
