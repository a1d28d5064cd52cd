// The two entry points by which a host uses the module.

#include "viewer/ViewerPane.h"

extern "C" {

Q_DECL_EXPORT void* GetPluginInstance(QWidget* parent)
{
    return static_cast<QObject*>(new ViewerPane(parent));
}

Q_DECL_EXPORT void recMsgFromManager(void* instance, PluginMetaData message)
{
    static_cast<ViewerPane*>(static_cast<QObject*>(instance))->receive(message);
}
}
