// The built library, loaded as a host loads it.

#include "BoxCatcher.h"
#include "ErrorOf.h"
#include "LoadedStrip.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "toolbar/ToolTable.h"

#include <QTpluginsManger4CAM.h>
#include <UiApiStandIn.h>

#include <QFileInfo>
#include <QGridLayout>
#include <QRegularExpression>
#include <QToolButton>
#include <QWidget>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

namespace {

void sendTo(void* sender, int code)
{
    PluginMetaData message(QStringLiteral("Test.dll"), ModuleNames::toolStrip);
    message.code = code;
    QTpluginsManger4CAM::instance()->recMegToPlugin(sender, message);
}

}  // namespace

class TestModule : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        CanvasHost::setObserver({});
        CanvasHost::unloadModule(ModuleNames::toolStrip);
    }

    void makesA26ToolGrid()
    {
        LoadedStrip strip;
        QVERIFY(strip.instance);
        auto* const grid = qobject_cast<QGridLayout*>(static_cast<QObject*>(strip.instance));
        QVERIFY(grid);
        QCOMPARE(grid->count(), ToolTable::toolCount);
        QCOMPARE(strip.window.findChildren<QToolButton*>().size(), ToolTable::toolCount);
        QVERIFY(strip.isChecked("m_pAreaZoomTB"));
    }

    void instancesAreIndependent()
    {
        LoadedStrip one;
        LoadedStrip two;
        QVERIFY(one.instance && two.instance);
        QVERIFY(one.instance != two.instance);
        sendTo(&two.window, Accepted::ReleaseAll);
        QVERIFY(one.isChecked("m_pAreaZoomTB"));
        QVERIFY(!two.isChecked("m_pAreaZoomTB"));
    }

    void unknownCodesDoNothing()
    {
        LoadedStrip strip;
        QVERIFY(strip.instance);
        int sent = 0;
        CanvasHost::setObserver([&](const CanvasHost::Transfer& transfer) {
            sent += transfer.message.receiver != ModuleNames::toolStrip;
        });
        for (const int code : std::initializer_list<int>{
                 0, -1, Sent::Record - 1, Sent::Record, Accepted::AreaZoom - 1,
                 Accepted::SelectPolyline + 1, Sent::AddFeatureStarted, 2147483647}) {
            sendTo(&strip.window, code);
        }
        QCOMPARE(sent, 0);
        QVERIFY(strip.isChecked("m_pAreaZoomTB"));
    }

    void loadsAgainAfterItWasUnloaded()
    {
        for (int round = 0; round < 20; ++round) {
            {
                LoadedStrip strip;
                QVERIFY(strip.instance);
                QString error;
                QVERIFY2(!CanvasHost::unloadModule(ModuleNames::toolStrip, &error),
                         "unloaded under a living instance");
                QVERIFY(error.contains(QStringLiteral("has instances")));
                QVERIFY(QFileInfo::exists(
                    QStringLiteral(":/Canvas_Tool_Strip/Resources/Area zoom2.jpg")));
            }
            QString error;
            QVERIFY2(CanvasHost::unloadModule(ModuleNames::toolStrip, &error), qPrintable(error));
            QVERIFY2(!QFileInfo::exists(QStringLiteral(":/Canvas_Tool_Strip")),
                     "the resource tree outlived the library");
        }
    }

    void refusesWhatIsNoModule_data()
    {
        QTest::addColumn<QString>("directory");
        QTest::addColumn<QString>("module");
        QTest::addColumn<QString>("reason");
        const auto row = [](const char* name, const QString& module, const QString& reason) {
            QTest::newRow(name) << QStringLiteral(BAD_MODULE_DIR) << module + ".dll"
                                << module + MODULE_SUFFIX ": " + reason;
        };
        row("missing", "Missing", "no such file");
        row("no library", "NoLibrary", "");
        row("no factory", "NoFactory", "no entry point GetPluginInstance");
        row("no delivery", "NoDelivery", "no entry point recMsgFromManager");
        row("no instance", "NoInstance", "gave no instance");
    }
    void refusesWhatIsNoModule()
    {
        QFETCH(QString, directory);
        QFETCH(QString, module);
        QFETCH(QString, reason);
        QWidget panel;
        const QString error = errorOf([&] { CanvasHost::loadModule(module, directory, &panel); });
        QVERIFY2(error.startsWith(directory + "/" + reason), qPrintable(error));

        bool delivered = true;
        CanvasHost::setObserver(
            [&](const CanvasHost::Transfer& transfer) { delivered = transfer.delivered; });
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no module")));
        QTpluginsManger4CAM::instance()->recMegToPlugin(
            nullptr, PluginMetaData(QStringLiteral("Test.dll"), module));
        QVERIFY(!delivered);
        QVERIFY(!CanvasHost::unloadModule(module));
    }

    void namesTheLibraryThatAModuleLacks()
    {
        QWidget panel;
        const QString error = errorOf([&] {
            CanvasHost::loadModule("LacksLibrary.dll", QStringLiteral(BAD_MODULE_DIR), &panel);
        });
        QVERIFY2(error.contains(QStringLiteral(ABSENT_LIBRARY)), qPrintable(error));
        QVERIFY2(!error.contains('\n'), qPrintable(error));
    }

    void constructorFaultsPassOn()
    {
        CanvasHost::uiApiOverrides().getEQVisible = []() -> bool { throw 42; };
        QWidget panel;
        bool passed = false;
        try {
            CanvasHost::loadModule(ModuleNames::toolStrip, QStringLiteral(MODULE_DIR), &panel);
        } catch (int) {
            passed = true;
        }
        CanvasHost::uiApiOverrides() = {};
        QVERIFY(passed);
        LoadedStrip strip;
        QVERIFY(strip.instance);
    }
};

CTS_TEST(TestModule);
#include "test_module.moc"
