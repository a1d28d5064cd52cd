// The form as a separate module: nothing in the tool strip opens it yet; a host that wants to show
// it loads this one.

#include "dimensions/Dimensious.h"

#include <PluginMetaData.h>

extern "C" {

Q_DECL_EXPORT void* GetPluginInstance(QWidget* parent)
{
    auto* const popup = new Dimensious(parent);
    popup->setWindowFlag(Qt::Dialog);
    return static_cast<QObject*>(popup);
}

/// The form handles no messages.
Q_DECL_EXPORT void recMsgFromManager(void* /*instance*/, PluginMetaData /*message*/) {}
}
