#pragma once

#include <HostExport.h>
#include <PluginMetaData.h>

/// The host's plug-in manager, through which modules exchange messages. GUI thread only.
///
/// The class and its member keep the host's spelling.
class CANVAS_HOST_EXPORT QTpluginsManger4CAM {
public:
    /// The one manager of the process; never null, owned by the library.
    static QTpluginsManger4CAM* instance();

    /// Routes `message` by its receiver's file name to that module's recMsgFromManager export and
    /// returns when the module has handled it. `sender` is the widget that holds the sending
    /// module; it is compared, never dereferenced. A message to a module that is not loaded is
    /// dropped.
    void recMegToPlugin(void* sender, PluginMetaData message);

private:
    QTpluginsManger4CAM() = default;
    Q_DISABLE_COPY(QTpluginsManger4CAM)
};
