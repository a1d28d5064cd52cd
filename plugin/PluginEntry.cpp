#include "plugin/PluginEntry.h"

#include "toolbar/Canvas_Tool_Strip.h"

#include <new>
#include <utility>

void* GetPluginInstance(QWidget* parent)
{
    return new (std::nothrow) Canvas_Tool_Strip(parent);
}

void recMsgFromManager(void* instance, PluginMetaData message)
{
    static_cast<Canvas_Tool_Strip*>(instance)->recMsgFromManager(std::move(message));
}
