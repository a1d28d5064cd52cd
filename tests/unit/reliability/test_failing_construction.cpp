// The host throws while strip or dialog are created: nothing half-made is left, and the next try
// works.

#include "DialogFixture.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "plugin/PluginEntry.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QToolButton>

namespace Sent = MessageCodes::Sent;

using CanvasHost::camApiOverrides;
using CanvasHost::uiApiOverrides;

class TestFailingConstruction : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dialog_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::newRow("get_fonts") << "get_fonts";
        QTest::newRow("getShowPara") << "getShowPara";
    }
    void dialog()
    {
        QFETCH(QString, operation);
        DialogFixture fixture;  // for its job and recorder
        QWidget window;
        auto* const strip = new Canvas_Tool_Strip(&window);
        window.setLayout(strip);
        if (operation == QLatin1String("get_fonts")) {
            camApiOverrides().get_fonts = [](const std::string&, std::vector<std::string>&) {
                throw 7;
            };
        } else {
            uiApiOverrides().getShowPara = [](void*, ZENTRA::API::show_param&) { throw 7; };
        }
        fixture.recorder.clear();
        QVERIFY_EXCEPTION_THROWN(strip->On_AddFeature_Clicked(), int);
        QVERIFY(!window.findChild<AddFeature*>());
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::AddFeatureStarted});

        camApiOverrides() = {};
        uiApiOverrides() = {};
        strip->On_AddFeature_Clicked();
        QVERIFY(window.findChild<AddFeature*>()->isVisible());
        QCOMPARE(
            fixture.recorder.codes(),
            (QVector<int>{Sent::AddFeatureStarted, Sent::AddFeatureStarted, Sent::AddFeature}));
    }

    void strip()
    {
        QWidget window;
        uiApiOverrides().getEQVisible = []() -> bool { throw 7; };
        QVERIFY_EXCEPTION_THROWN(GetPluginInstance(&window), int);
        QVERIFY(window.children().isEmpty());
        uiApiOverrides() = {};
        window.setLayout(static_cast<Canvas_Tool_Strip*>(GetPluginInstance(&window)));
        QCOMPARE(window.findChildren<QToolButton*>().size(), ToolTable::toolCount);
    }
};

CTS_TEST(TestFailingConstruction);
#include "test_failing_construction.moc"
