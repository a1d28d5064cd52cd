// Siblings that do not wait: they answer within the call, close or delete the dialog while it
// sends, and the parent widget is deleted before the strip.

#include "DialogFixture.h"
#include "Invariants.h"
#include "Main.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/PluginEntry.h"

#include <PluginManagerStandIn.h>
#include <QTpluginsManger4CAM.h>

#include <common_widgets.h>

#include <QToolButton>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

namespace {

PluginMetaData messageToStrip(int code, qint64 extra = 0)
{
    PluginMetaData message(ModuleNames::viewer, ModuleNames::toolStrip);
    message.code = code;
    message.extra = extra;
    return message;
}

/// What makes the dialog send. Combo boxes and line edits are not used themselves: Qt does not
/// survive one being deleted inside its own signal; only what the dialog then does is tested.
struct Use {
    const char* name;
    const char* type;  ///< the type button that is chosen before
    std::function<void(DialogFixture&)> act;
};

const QList<Use>& uses()
{
    static const QList<Use> all = {
        {"type", "m_pLineTB", [](DialogFixture& f) { f.click("m_pPadTB"); }},
        {"line kind", "m_pLineTB", [](DialogFixture& f) { f.dialog->on_Line_ComboBox_Changed(); }},
        {"closed", "m_pLineTB",
         [](DialogFixture& f) { f.dialog->on_m_pClosedCB_CheckState_Changed(Qt::Checked); }},
        {"polarity", "m_pLineTB",
         [](DialogFixture& f) { f.dialog->on_m_pPolarityCMB_ComboBox_Changed(); }},
        {"attributes", "m_pLineTB", [](DialogFixture& f) { f.click("m_pAttributesCB"); }},
        {"fill", "m_pSurfaceTB", [](DialogFixture& f) { f.click("m_pFillPB"); }},
        {"pick", "m_pPadTB", [](DialogFixture& f) { f.click("m_pSelectFromEditorPB"); }},
        {"picked symbols", "m_pPadTB",
         [](DialogFixture& f) {
             f.dialog->get_ChangeSymbol_Info({{1, "r5"}, {2, "s5"}, {3, "r7"}});
         }},
        {"picked attributes", "m_pPadTB",
         [](DialogFixture& f) {
             f.click("m_pAttributesCB");
             if (f.dialog) {
                 f.dialog->get_attribute_list({{".net", "gnd"}});
             }
         }},
        {"symbol", "m_pPadTB", [](DialogFixture& f) { f.enter("m_pSymbolTextLE", "r10"); }},
        {"tool again", "m_pPadTB", [](DialogFixture& f) { f.dialog->getChangeCurrentTool(); }},
        {"close", "m_pPadTB", [](DialogFixture& f) { f.dialog->close(); }},
    };
    return all;
}

}  // namespace

class TestReentrancy : public QObject {
    Q_OBJECT

    static void addUses()
    {
        QTest::addColumn<int>("use");
        for (int i = 0; i < uses().size(); ++i) {
            QTest::newRow(uses()[i].name) << i;
        }
    }
    static void connectClosing(const DialogFixture& fixture)
    {
        connect(fixture.dialog, SIGNAL(change_viewtool()), fixture.strip,
                SLOT(On_AreaZoom_Clicked()));
        connect(fixture.dialog, SIGNAL(Select_symbol()), fixture.strip,
                SLOT(on_m_pAddfeature_Select_symbol()));
    }

private Q_SLOTS:
    void deletedWhileSending_data() { addUses(); }
    void deletedWhileSending()
    {
        QFETCH(int, use);
        DialogFixture fixture;
        connectClosing(fixture);
        fixture.chooseType(uses()[use].type);
        int count = 0;
        fixture.recorder.setOnMessage([&](const Recorder::Entry&) {
            ++count;
            delete fixture.dialog;
        });
        uses()[use].act(fixture);
        QVERIFY(!fixture.dialog);
        QCOMPARE(count, 1);
    }

    void closedWhileSending_data() { addUses(); }
    void closedWhileSending()
    {
        QFETCH(int, use);
        DialogFixture fixture;
        connectClosing(fixture);
        fixture.chooseType(uses()[use].type);
        fixture.recorder.setOnMessage([&](const Recorder::Entry&) { fixture.dialog->close(); });
        uses()[use].act(fixture);
        fixture.recorder.setOnMessage({});
        QVERIFY(!fixture.dialog->isVisible());
        QVERIFY(fixture.strip->isToolButtonChecked(int(Tool::AreaZoom)));
        QCOMPARE(Invariants::faultOf(fixture.record()), QString());
    }

    /// Each message is answered by one that the module answers in turn, once.
    void answeredWithinTheCall_data() { addUses(); }
    void answeredWithinTheCall()
    {
        QFETCH(int, use);
        const std::map<int, std::string> symbols{{1, "r5"}, {2, "s5"}};
        const std::string job = "other";
        const PluginMetaData answers[] = {
            messageToStrip(Accepted::SymbolsPicked, ExtraWord::pointingAt(symbols)),
            messageToStrip(Accepted::JobName, ExtraWord::pointingAt(job)),
            messageToStrip(Accepted::UnitChanged),
            messageToStrip(Accepted::LanguageChanged),
            messageToStrip(Accepted::CloseDialogs),
            messageToStrip(Accepted::AddFeature),
            messageToStrip(Accepted::ReleaseAll)};
        for (const PluginMetaData& answer : answers) {
            DialogFixture fixture;
            connectClosing(fixture);
            connect(fixture.strip, SIGNAL(send_Symbol_Info(std::map<int, std::string>)),
                    fixture.dialog, SLOT(get_ChangeSymbol_Info(std::map<int, std::string>)));
            CanvasHost::addInstance(ModuleNames::toolStrip, fixture.strip, recMsgFromManager);
            fixture.chooseType(uses()[use].type);
            int depth = 0;
            int answered = 0;
            fixture.recorder.setOnMessage([&](const Recorder::Entry& entry) {
                if (entry.message.receiver == ModuleNames::toolStrip || depth > 0) {
                    return;
                }
                ++depth;
                ++answered;
                QTpluginsManger4CAM::instance()->recMegToPlugin(nullptr, answer);
                --depth;
            });
            uses()[use].act(fixture);
            fixture.recorder.setOnMessage({});
            CanvasHost::removeInstance(fixture.strip);
            QVERIFY(answered > 0);
            QCOMPARE(Invariants::faultOf(fixture.record()), QString());
            fixture.window.findChild<AddFeature*>()->close();
        }
    }

    void dialogDeletedWhileItIsOpened()
    {
        for (const int code : {Sent::AddFeature, Sent::AddFeatureStarted, Sent::Record}) {
            DialogFixture fixture;
            QWidget window;
            auto* const strip = new Canvas_Tool_Strip(&window);
            window.setLayout(strip);
            fixture.recorder.setOnMessage([&](const Recorder::Entry& entry) {
                if (entry.message.code == code) {
                    delete window.findChild<AddFeature*>();
                }
            });
            for (int i = 0; i < 3; ++i) {
                strip->On_AddFeature_Clicked();
            }
            fixture.recorder.setOnMessage({});
            strip->On_AddFeature_Clicked();
            QVERIFY(window.findChild<AddFeature*>()->isVisible());
            QCOMPARE(window.findChildren<AddFeature*>().size(), 1);
        }
    }

    void popupDeletedBetweenUses()
    {
        QWidget window;
        auto* const strip = new Canvas_Tool_Strip(&window);
        window.setLayout(strip);
        const Recorder recorder;
        strip->On_Measure_Clicked();
        delete window.findChild<Grc_Tbe_measurepopup*>();
        strip->close_all_Dialogs();
        strip->On_Measure_Clicked();
        QCOMPARE(window.findChildren<Grc_Tbe_measurepopup*>().size(), 1);
    }

    /// A host that deletes the widget without having placed the strip in it still holds the strip.
    void usedAfterTheParentWent()
    {
        const Recorder recorder;
        auto window = std::make_unique<QWidget>();
        auto* const strip = static_cast<Canvas_Tool_Strip*>(GetPluginInstance(window.get()));
        QList<QPointer<QWidget>> tools;
        for (int i = 0; i < strip->count(); ++i) {
            tools.append(strip->itemAt(i)->widget());
        }
        strip->On_AddFeature_Clicked();
        strip->On_Measure_Clicked();
        window.reset();
        QVERIFY(!tools[0]);
        for (const int code :
             {Accepted::ReleaseAll,         Accepted::AreaZoom,         Accepted::FeatureSelection,
              Accepted::RectangleSelection, Accepted::PolygonSelection, Accepted::AddFeatureActive,
              Accepted::SelectPolyline,     Accepted::SelectLayerNet,   Accepted::SelectBoardNet,
              Accepted::JobAndStep,         Accepted::AttributesPicked, Accepted::SymbolsPicked,
              Accepted::UserSymbolsChanged, Accepted::JobName,          Accepted::UnitChanged,
              Accepted::LanguageChanged,    Accepted::JobOpened,        Accepted::CloseDialogs,
              Accepted::DeleteFeature,      Accepted::MoveFeature}) {
            recMsgFromManager(strip, messageToStrip(code));
        }
        strip->get_right_click_zoom_area();
        strip->SetAllButtonchecked(true, nullptr);
        QVERIFY(strip->isToolButtonChecked(int(Tool::OpenPopView)));
        QVERIFY(!strip->isToolButtonChecked(int(Tool::AreaZoom)));
        QCOMPARE(recorder.last(Sent::AreaZoom).sender, nullptr);
        delete strip;
        for (const QPointer<QWidget>& tool : tools) {
            delete tool;
        }
    }
};

CTS_TEST(TestReentrancy);
#include "test_reentrancy.moc"
