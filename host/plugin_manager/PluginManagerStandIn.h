#pragma once

// What only the stand-in of the plug-in manager has: loading modules, and watching messages.

#include <HostExport.h>
#include <PluginMetaData.h>

#include <functional>

class QWidget;

namespace CanvasHost {

/// The name under which the host itself sends and is addressed. Not a QStringLiteral: a receiver
/// may keep it longer than the module that sent it is loaded.
inline const QString hostName = QString::fromLatin1("Canvas_Host.dll");

/// A module's exported entry points.
using CreateInstance = void* (*)(QWidget* parent);
using DeliverMessage = void (*)(void* instance, PluginMetaData message);

/// One message on its way, as an observer sees it.
struct Transfer {
    void* sender;                   ///< the sender pointer that was passed
    const PluginMetaData& message;  ///< valid during the call
    bool delivered;                 ///< false: no instance of the receiver is known
};
using Observer = std::function<void(const Transfer&)>;

/// Has each message shown to `observer` just before it is delivered, in the order of sending; an
/// empty function ends it.
CANVAS_HOST_EXPORT void setObserver(Observer observer);

/// Makes `instance` a receiver of the messages to `moduleName` ("Canvas_Viewer.dll"). Of several
/// instances of one module, the one whose `parent` stands in the same window as the sender pointer
/// receives; the first one added where that tells nothing.
CANVAS_HOST_EXPORT void addInstance(const QString& moduleName, void* instance, DeliverMessage entry,
                                    QWidget* parent = nullptr);

/// Forgets `instance`; the caller deletes it.
CANVAS_HOST_EXPORT void removeInstance(void* instance);

/// Loads `moduleName` from `directory`, makes an instance in `parent` and adds it.
///
/// "Canvas_Viewer.dll" is looked for as "Canvas_Viewer" with this platform's library suffix. On
/// failure (missing file, no library, an entry point absent, no instance) a FileError is thrown,
/// and the manager is as it was. The caller owns the instance: a QObject, to be removed with
/// removeInstance() and deleted before its library is unloaded.
CANVAS_HOST_EXPORT void* loadModule(const QString& moduleName, const QString& directory,
                                    QWidget* parent);

/// Unloads the library of `moduleName`. False, with the reason in `error`, when it is not loaded,
/// still has instances or refuses.
CANVAS_HOST_EXPORT bool unloadModule(const QString& moduleName, QString* error = nullptr);

}  // namespace CanvasHost
