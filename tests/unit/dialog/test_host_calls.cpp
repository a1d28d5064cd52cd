// A change and its record ask each function of the host once at most.

#include "DialogFixture.h"
#include "Main.h"
#include "plugin/MessageCodes.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

namespace Sent = MessageCodes::Sent;

namespace {

/// Counts the calls of each function of the host, and answers that everything is right.
void countCalls(QMap<QString, int>& calls)
{
    auto& cam = CanvasHost::camApiOverrides();
    cam.identify_symbol = [&](auto&, auto&, int&, int&, bool) {
        return ++calls["identify_symbol"] > 0;
    };
    cam.get_special_symbol_names = [&](auto&, auto&) { ++calls["get_special_symbol_names"]; };
    cam.get_fonts = [&](auto&, auto&) { ++calls["get_fonts"]; };
    auto& ui = CanvasHost::uiApiOverrides();
    ui.getEQVisible = [&] { return ++calls["getEQVisible"] > 0; };
    ui.getUnitString = [&](void*) {
        ++calls["getUnitString"];
        return QString("MM");
    };
    ui.getUnit = [&](void*) {
        ++calls["getUnit"];
        return 1;
    };
    ui.getUnitData = [&](void*, double value) {
        ++calls["getUnitData"];
        return value;
    };
    ui.getUnitJudgeDouble = [&](void*, double mils) {
        ++calls["getUnitJudgeDouble"];
        return mils;
    };
    ui.isNumValueLegal = [&](auto...) { return ++calls["isNumValueLegal"] > 0; };
    ui.isSymbolValueLegal = [&](auto&&...) { return ++calls["isSymbolValueLegal"] > 0; };
    ui.setSymbolUIData = [&](const QString& name, int) {
        ++calls["setSymbolUIData"];
        return name;
    };
    ui.getShowPara = [&](auto&&...) { ++calls["getShowPara"]; };
}

using Change = void (*)(DialogFixture& fixture);

}  // namespace
Q_DECLARE_METATYPE(Change)

class TestHostCalls : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void onceForASend_data()
    {
        QTest::addColumn<Change>("change");
        const auto add = [](const char* name, Change change) { QTest::newRow(name) << change; };
        add("sent again", [](DialogFixture& f) { f.dialog->getChangeCurrentTool(); });
        add("choice", [](DialogFixture& f) { f.dialog->on_m_pPolarityCMB_ComboBox_Changed(); });
        add("rotation", [](DialogFixture& f) { f.dialog->on_m_pAngleValueSB_editingFinished(); });
        add("line", [](DialogFixture& f) { f.click("m_pLineTB"); });
        add("pad", [](DialogFixture& f) { f.click("m_pPadTB"); });
        add("surface", [](DialogFixture& f) { f.click("m_pSurfaceTB"); });
        add("arc", [](DialogFixture& f) { f.click("m_pArcTB"); });
        add("text", [](DialogFixture& f) { f.click("m_pTextTB"); });
        add("count", [](DialogFixture& f) { f.find<QLineEdit>("m_pDrilNxLE").setText("12"); });
        add("pitch", [](DialogFixture& f) { f.dialog->on_m_pDrilDxLE_editingFinished(); });
        add("symbol entered", [](DialogFixture& f) { f.dialog->Enter_Symbol_Text(); });
        add("symbol, Return",
            [](DialogFixture& f) { f.dialog->on_m_pSymbolTextLE_returnPressed(); });
        add("symbol, left",
            [](DialogFixture& f) { f.dialog->on_m_pSymbolTextLE_editingFinished(); });
    }

    void onceForASend()
    {
        QFETCH(Change, change);
        DialogFixture fixture;
        fixture.symbol().setText("r10");
        fixture.recorder.clear();
        QMap<QString, int> calls;
        countCalls(calls);
        change(fixture);
        CanvasHost::camApiOverrides() = {};
        CanvasHost::uiApiOverrides() = {};
        QCOMPARE(fixture.recorder.codes().count(Sent::Record), 1);
        for (auto call = calls.cbegin(); call != calls.cend(); ++call) {
            QVERIFY2(call.value() == 1, qPrintable(call.key()));
        }
    }
};

CTS_TEST(TestHostCalls);
#include "test_host_calls.moc"
