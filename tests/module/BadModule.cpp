// Libraries that lack an entry point or another library, or that create no instance.

#include <PluginMetaData.h>

#include <QWidget>

#ifndef NOFACTORY
extern "C" Q_DECL_EXPORT void* GetPluginInstance(QWidget* /*parent*/)
{
    return nullptr;
}
#endif

#ifndef NODELIVERY
extern "C" Q_DECL_EXPORT void recMsgFromManager(void* /*instance*/, PluginMetaData /*message*/) {}
#endif

#ifdef ABSENT
Q_DECL_EXPORT void inAbsentLibrary() {}
#endif

#ifdef LACKSLIBRARY
Q_DECL_IMPORT void inAbsentLibrary();

Q_DECL_EXPORT void callAbsentLibrary()
{
    inAbsentLibrary();
}
#endif
