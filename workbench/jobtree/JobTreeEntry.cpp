// The two entry points by which a host uses the module.

#include "jobtree/JobTreePane.h"

extern "C" {

Q_DECL_EXPORT void* GetPluginInstance(QWidget* parent)
{
    return static_cast<QObject*>(new JobTreePane(parent));
}

Q_DECL_EXPORT void recMsgFromManager(void* instance, PluginMetaData message)
{
    static_cast<JobTreePane*>(static_cast<QObject*>(instance))->receive(message);
}
}
