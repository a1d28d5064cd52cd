#include "MissingLibrary.h"
#include "PluginManagerStandIn.h"
#include "QTpluginsManger4CAM.h"

#include <FileError.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QLoggingCategory>
#include <QPointer>
#include <QSet>
#include <QWidget>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace CanvasHost {
namespace {

Q_LOGGING_CATEGORY(log, "canvashost.pluginmanager")

struct Instance {
    QString module;
    void* object;
    DeliverMessage entry;
    QPointer<QWidget> parent;
};

struct State {
    std::vector<Instance> instances;
    QMap<QString, std::shared_ptr<QLibrary>> libraries;
    QSet<QString> reportedMissing;
    Observer observer;
};

State& state()
{
    static State theState;
    return theState;
}

/// The instance whose parent is the sender pointer; null if there is none.
const Instance* sentBy(void* sender)
{
    // The sender pointer is only compared: what it points at may be gone.
    for (const Instance& instance : state().instances) {
        if (instance.parent && instance.parent.data() == sender) {
            return &instance;
        }
    }
    return nullptr;
}

const Instance* receiverOf(const Instance* sending, const QString& module)
{
    const QWidget* const window = sending ? sending->parent->window() : nullptr;
    const Instance* first = nullptr;
    for (const Instance& instance : state().instances) {
        if (instance.module != module) {
            continue;
        }
        if (window && instance.parent && instance.parent->window() == window) {
            return &instance;
        }
        first = first ? first : &instance;
    }
    return first;
}

QString libraryFile(const QString& moduleName, const QString& directory)
{
    return QDir(directory).filePath(QFileInfo(moduleName).completeBaseName() +
                                    QStringLiteral(MODULE_SUFFIX));
}

void fail(QString* error, const QString& text)
{
    if (error) {
        *error = text;
    }
}

/// The library with both entry points found, loaded.
std::shared_ptr<QLibrary> openLibrary(const QString& file, CreateInstance* create,
                                      DeliverMessage* deliver)
{
    if (!QFileInfo::exists(file)) {
        throw FileError{file, 0, QCoreApplication::translate("FileErrors", "no such file")};
    }
    auto library = std::make_shared<QLibrary>(file);
    if (!library->load()) {
        const QString missing = missingLibrary(file);
        throw FileError{
            file, 0,
            missing.isEmpty()
                ? library->errorString()
                : QCoreApplication::translate("FileErrors", "%1 is missing").arg(missing)};
    }
    *create = reinterpret_cast<CreateInstance>(library->resolve("GetPluginInstance"));
    *deliver = reinterpret_cast<DeliverMessage>(library->resolve("recMsgFromManager"));
    if (!*create || !*deliver) {
        const auto missing = *create ? "recMsgFromManager" : "GetPluginInstance";
        library->unload();
        throw FileError{file, 0,
                        QCoreApplication::translate("FileErrors", "no entry point %1")
                            .arg(QLatin1String(missing))};
    }
    return library;
}

}  // namespace

void setObserver(Observer observer)
{
    state().observer = std::move(observer);
}

void addInstance(const QString& moduleName, void* instance, DeliverMessage entry, QWidget* parent)
{
    state().instances.push_back({moduleName, instance, entry, parent});
    state().reportedMissing.remove(moduleName);
}

void removeInstance(void* instance)
{
    auto& all = state().instances;
    all.erase(std::remove_if(all.begin(), all.end(),
                             [=](const Instance& known) { return known.object == instance; }),
              all.end());
}

void* loadModule(const QString& moduleName, const QString& directory, QWidget* parent)
{
    const QString file = libraryFile(moduleName, directory);
    CreateInstance create = nullptr;
    DeliverMessage deliver = nullptr;
    const auto library = openLibrary(file, &create, &deliver);
    void* const instance = create(parent);
    if (!instance) {
        library->unload();
        throw FileError{file, 0, QCoreApplication::translate("FileErrors", "gave no instance")};
    }
    const auto known = state().libraries.value(moduleName);
    if (known && known->fileName() == library->fileName()) {
        library->unload();  // QLibrary counts references: one is kept for each module
    } else {
        state().libraries.insert(moduleName, library);
    }
    addInstance(moduleName, instance, deliver, parent);
    return instance;
}

bool unloadModule(const QString& moduleName, QString* error)
{
    const auto library = state().libraries.value(moduleName);
    if (!library) {
        fail(error, QStringLiteral("%1: not loaded").arg(moduleName));
        return false;
    }
    for (const Instance& instance : state().instances) {
        if (instance.module == moduleName) {
            fail(error, QStringLiteral("%1: has instances").arg(moduleName));
            return false;
        }
    }
    if (!library->unload()) {
        fail(error, QStringLiteral("%1: %2").arg(moduleName, library->errorString()));
        return false;
    }
    state().libraries.remove(moduleName);
    return true;
}

namespace {

void route(void* sender, const PluginMetaData& message)
{
    const Instance* const sending = sentBy(sender);
    const Instance* const found = receiverOf(sending, message.receiver);
    const bool known = found != nullptr;
    // Copies: the observer or the receiver may add or remove instances.
    const Instance receiver = known ? *found : Instance{};
    const Observer observer = state().observer;
    if (observer) {
        observer({sender, message, known, sending ? sending->module : QString()});
    }
    if (known) {
        receiver.entry(receiver.object, message);
    } else if (!state().reportedMissing.contains(message.receiver)) {
        state().reportedMissing.insert(message.receiver);
        qCWarning(log).noquote() << "no module" << message.receiver << "for message" << message.code
                                 << "from" << message.sender;
    }
}

}  // namespace
}  // namespace CanvasHost

QTpluginsManger4CAM* QTpluginsManger4CAM::instance()
{
    static QTpluginsManger4CAM manager;
    return &manager;
}

void QTpluginsManger4CAM::recMegToPlugin(void* sender, PluginMetaData message)
{
    CanvasHost::route(sender, message);
}
