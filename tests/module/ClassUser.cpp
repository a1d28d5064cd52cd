// A part of a host that uses the class and the entry points of the module, and defines none of
// them: compiled for Windows by windows-compile.sh, and against the installed headers with the
// sibling.

#include "plugin/PluginEntry.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QWidget>

class HostStrip : public Canvas_Tool_Strip {
public:
    using Canvas_Tool_Strip::Canvas_Tool_Strip;
};

void* useEntryPoints(QWidget* parent, const PluginMetaData& message)
{
    void* const strip = GetPluginInstance(parent);
    recMsgFromManager(strip, message);
    return strip;
}

bool useClass(QWidget* parent)
{
    auto* const strip = new HostStrip(parent);
    parent->setLayout(strip);
    QObject::connect(strip, &Canvas_Tool_Strip::GetRulerinfo, parent, &QWidget::close);
    strip->close_all_Dialogs();
    return qobject_cast<Canvas_Tool_Strip*>(parent->layout()) == strip;
}
