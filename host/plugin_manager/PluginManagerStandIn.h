#pragma once

// What only the stand-in of the plug-in manager has: loading modules, and observing messages.

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
    QString module;  ///< whose instance has the sender pointer as its parent; empty: none's
};
using Observer = std::function<void(const Transfer&)>;

/// Calls `observer` with each message just before it is delivered, in the order of sending; an
/// empty function ends that.
CANVAS_HOST_EXPORT void setObserver(Observer observer);

/// Makes `instance` a receiver of the messages to `moduleName` ("Canvas_Viewer.dll"). Of several
/// instances of one module, the one whose `parent` is in the same window as the sender pointer
/// receives; if there is none, the first one added.
CANVAS_HOST_EXPORT void addInstance(const QString& moduleName, void* instance, DeliverMessage entry,
                                    QWidget* parent = nullptr);

/// Forgets `instance`; the caller deletes it.
CANVAS_HOST_EXPORT void removeInstance(void* instance);

/// Loads `moduleName` from `directory`, creates an instance in `parent` and adds it.
///
/// The file of "Canvas_Viewer.dll" is "Canvas_Viewer" with this platform's library suffix. On
/// failure (missing file, not a library, missing entry point, no instance) a FileError is thrown,
/// and the manager is unchanged. The caller owns the instance: a QObject, to be removed with
/// removeInstance() and deleted before its library is unloaded.
CANVAS_HOST_EXPORT void* loadModule(const QString& moduleName, const QString& directory,
                                    QWidget* parent);

/// Unloads the library of `moduleName`. False, with the reason in `error`, when it is not loaded,
/// still has instances or refuses.
CANVAS_HOST_EXPORT bool unloadModule(const QString& moduleName, QString* error = nullptr);

}  // namespace CanvasHost
