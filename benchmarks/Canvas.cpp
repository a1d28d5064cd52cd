#include "Canvas.h"

#include <QTpluginsManger4CAM.h>

#include <utility>

namespace {

Receiver* theReceiver = nullptr;

}  // namespace

void Canvas::receive(PluginMetaData message)
{
    ++m_count;
    if (m_keeps) {
        m_last = std::move(message);
    }
}

Connected::Connected(Receiver& receiver)
{
    theReceiver = &receiver;
}

Connected::~Connected()
{
    theReceiver = nullptr;
}

QTpluginsManger4CAM* QTpluginsManger4CAM::instance()
{
    static QTpluginsManger4CAM manager;
    return &manager;
}

void QTpluginsManger4CAM::recMegToPlugin(void* /*sender*/, PluginMetaData message)
{
    if (theReceiver) {
        theReceiver->receive(std::move(message));
    }
}
