// How messages find their receiver.

#include "Main.h"

#include <PluginManagerStandIn.h>
#include <QTpluginsManger4CAM.h>

#include <QRegularExpression>
#include <QWidget>

namespace {

/// A module instance that keeps the codes it receives.
struct Module {
    QWidget panel;
    QVector<int> codes;

    Module(const QString& name, QWidget* window) : panel(window)
    {
        CanvasHost::addInstance(name, this, receive, &panel);
    }
    ~Module() { CanvasHost::removeInstance(this); }

    static void receive(void* instance, PluginMetaData message)
    {
        static_cast<Module*>(instance)->codes.append(message.code);
    }
};

void send(void* sender, const QString& receiver, int code)
{
    PluginMetaData message(QStringLiteral("Test.dll"), receiver);
    message.code = code;
    QTpluginsManger4CAM::instance()->recMegToPlugin(sender, message);
}

}  // namespace

class TestPluginManager : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { CanvasHost::setObserver({}); }

    void envelope()
    {
        const PluginMetaData message("A.dll", "B.dll");
        QCOMPARE(message.sender, QString("A.dll"));
        QCOMPARE(message.receiver, QString("B.dll"));
        QCOMPARE(message.code, -1);
        QVERIFY(message.payload.isEmpty());
        QCOMPARE(message.extra, qint64(0));
    }

    void routesByReceiver()
    {
        QWidget window;
        Module one("One.dll", &window);
        Module two("Two.dll", &window);
        send(&one.panel, "Two.dll", 7);
        send(nullptr, "One.dll", 8);
        QCOMPARE(one.codes, QVector<int>{8});
        QCOMPARE(two.codes, QVector<int>{7});
    }

    void instanceOfTheSendersWindowReceives()
    {
        QWidget left;
        QWidget right;
        Module viewerLeft("Viewer.dll", &left);
        Module stripLeft("Strip.dll", &left);
        Module viewerRight("Viewer.dll", &right);
        Module stripRight("Strip.dll", &right);
        send(&stripRight.panel, "Viewer.dll", 1);
        send(&stripLeft.panel, "Viewer.dll", 2);
        int stranger = 0;
        send(&stranger, "Viewer.dll", 3);
        QCOMPARE(viewerRight.codes, QVector<int>{1});
        QCOMPARE(viewerLeft.codes, (QVector<int>{2, 3}));
    }

    void observerSeesEachMessageFirst()
    {
        QWidget window;
        Module module("One.dll", &window);
        QVector<bool> delivered;
        QVector<int> receivedBefore;
        void* sender = nullptr;
        QStringList modules;
        CanvasHost::setObserver([&](const CanvasHost::Transfer& transfer) {
            modules.append(transfer.module);
            delivered.append(transfer.delivered);
            receivedBefore.append(module.codes.size());
            sender = transfer.sender;
        });
        send(&module.panel, "One.dll", 1);
        QCOMPARE(sender, static_cast<void*>(&module.panel));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no module \"?Absent.dll"));
        send(nullptr, "Absent.dll", 2);
        QCOMPARE(modules, QStringList({"One.dll", ""}));
        QCOMPARE(delivered, (QVector<bool>{true, false}));
        QCOMPARE(receivedBefore, (QVector<int>{0, 1}));
        CanvasHost::setObserver({});
        send(&window, "One.dll", 3);
        QCOMPARE(delivered.size(), 2);
    }

    void anAbsentReceiverIsLoggedOnce()
    {
        int warnings = 0;
        static int* counter = nullptr;
        counter = &warnings;
        const QtMessageHandler previous = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext&, const QString& text) {
                *counter += type == QtWarningMsg && text.contains("no module");
            });
        for (const char* const receiver : {"Gone.dll", "Gone.dll", "Other.dll", "Gone.dll"}) {
            send(nullptr, receiver, 1);
        }
        {
            QWidget window;
            const Module module("Gone.dll", &window);
            send(nullptr, "Gone.dll", 1);
        }
        send(nullptr, "Gone.dll", 1);  // it was there in between: reported again
        qInstallMessageHandler(previous);
        QCOMPARE(warnings, 3);
    }

    void receiversMayComeAndGoWhileAMessageIsUnderway()
    {
        QWidget window;
        auto gone = std::make_unique<Module>("One.dll", &window);
        CanvasHost::setObserver([&](const CanvasHost::Transfer&) {
            for (int i = 0; i < 100; ++i) {
                CanvasHost::addInstance("More.dll", &window, Module::receive);
            }
            CanvasHost::removeInstance(&window);
        });
        send(nullptr, "One.dll", 5);
        QCOMPARE(gone->codes, QVector<int>{5});
    }
};

CTS_TEST(TestPluginManager);
#include "test_plugin_manager.moc"
