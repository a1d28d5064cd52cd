// A minimal host of the tool strip: it opens the module, shows its buttons in a window, answers it
// as a canvas does, and prints every message. With --quit it exits once all is sent.

#include <PluginManagerStandIn.h>
#include <PluginMetaData.h>
#include <QTpluginsManger4CAM.h>

#include <plugin/MessageCodes.h>
#include <plugin/ModuleNames.h>
#include <plugin/PayloadKeys.h>
#include <plugin/PluginEntry.h>

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLibrary>
#include <QLoggingCategory>
#include <QTextStream>
#include <QVBoxLayout>

#include <glog/logging.h>

namespace Accepted = MessageCodes::Accepted;
namespace Sent = MessageCodes::Sent;

namespace {

// In a module, which may be unloaded, this must not be a QStringLiteral: receivers keep the name.
const QString hostName = QString::fromLatin1("Minimal_Host.dll");

/// The two entry points of a module.
struct Module {
    decltype(&GetPluginInstance) create = nullptr;
    decltype(&recMsgFromManager) deliver = nullptr;
};

Module entryPointsOf(QLibrary& library)
{
    return {reinterpret_cast<decltype(&GetPluginInstance)>(library.resolve("GetPluginInstance")),
            reinterpret_cast<decltype(&recMsgFromManager)>(library.resolve("recMsgFromManager"))};
}

void sendToStrip(QWidget* sender, int code, const QMap<QString, QVariant>& payload = {})
{
    PluginMetaData message(hostName, ModuleNames::toolStrip);
    message.code = code;
    message.payload = payload;
    QTpluginsManger4CAM::instance()->recMegToPlugin(sender, message);
}

void print(const PluginMetaData& message)
{
    const char* const name = message.receiver == ModuleNames::toolStrip
                                 ? Accepted::nameOf(message.code)
                                 : Sent::nameOf(message.code);
    QTextStream(stdout) << message.sender << " -> " << message.receiver << ": " << message.code
                        << ' ' << (name ? name : "unknown") << '\n';
}

/// Acts as the canvas: what the strip sends it arrives here.
void receiveAsCanvas(void* canvas, PluginMetaData message)
{
    // The dialog takes lengths as mil until it is told: only the host knows the unit.
    if (message.code == Sent::AddFeature) {
        sendToStrip(static_cast<QWidget*>(canvas), Accepted::UnitChanged);
    }
}

/// Acts as the job tree, which is told that Add Feature was clicked.
void receiveAsJobTree(void*, PluginMetaData) {}

/// The window with the strip at the left of the canvas; the strip lives as long as it does.
int run(const Module& module, bool quit)
{
    QWidget window;
    window.setObjectName(QStringLiteral("window"));
    auto* const buttons = new QWidget(&window);
    buttons->setObjectName(QStringLiteral("buttons"));
    auto* const canvas = new QLabel(QStringLiteral("The canvas"), &window);
    canvas->setObjectName(QStringLiteral("canvas"));
    canvas->setMinimumSize(400, 300);
    canvas->setAlignment(Qt::AlignCenter);
    auto* const row = new QHBoxLayout(&window);
    row->addWidget(buttons);
    row->addWidget(canvas, 1);

    // The tool buttons become children of `buttons`, which is also the strip's sender pointer.
    void* const instance = module.create(buttons);
    if (!instance) {
        return EXIT_FAILURE;
    }
    // The address is that of a Canvas_Tool_Strip, whose first base class is a QGridLayout.
    buttons->setLayout(static_cast<QGridLayout*>(instance));

    // How a manager finds modules is up to it; this one, a stand-in, is told by hand.
    CanvasHost::setObserver([](const CanvasHost::Transfer& transfer) { print(transfer.message); });
    CanvasHost::addInstance(ModuleNames::toolStrip, instance, module.deliver, buttons);
    CanvasHost::addInstance(ModuleNames::viewer, canvas, receiveAsCanvas, canvas);
    CanvasHost::addInstance(ModuleNames::jobTree, &window, receiveAsJobTree, &window);

    window.show();
    sendToStrip(canvas, Accepted::JobOpened,
                {{PayloadKeys::jobName, "demo"}, {PayloadKeys::stepName, "pcb"}});
    sendToStrip(canvas, Accepted::AddFeature);
    const int result = quit ? EXIT_SUCCESS : QApplication::exec();

    // Nothing is delivered to what is about to be deleted.
    for (void* const receiver :
         {instance, static_cast<void*>(canvas), static_cast<void*>(&window)}) {
        CanvasHost::removeInstance(receiver);
    }
    return result;
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    // The module writes to both logs. Set them up before it is opened.
    google::InitGoogleLogging(argv[0]);
    QLoggingCategory::setFilterRules(QStringLiteral("canvastoolstrip.record=false"));

    QLibrary library(QStringLiteral(MODULE_DIR "/Canvas_Tool_Strip"));
    const Module module = entryPointsOf(library);
    if (!module.create || !module.deliver) {
        QTextStream(stderr) << library.errorString() << '\n';
        return EXIT_FAILURE;
    }
    const int result = run(module, application.arguments().contains(QStringLiteral("--quit")));
    // No strip, dialog or popup is left: they were deleted with the window.
    library.unload();
    return result;
}
