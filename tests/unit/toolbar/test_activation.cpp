// What a click on each tool does, and in which order.

#include "FindChild.h"
#include "Main.h"
#include "StripFixture.h"
#include "ToolRows.h"
#include "plugin/MessageCodes.h"

#include <CommonWidgetsStandIn.h>
#include <common_widgets.h>

#include <QSignalSpy>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

namespace {

QString netSheet(const char* image, const char* checkedImage, const QString& tail = {})
{
    return QStringLiteral(
               "QToolButton{background-image:url(:/Canvas_Tool_Strip/Resources/"
               "%1);}QToolButton::checked{background-image:url("
               ":/Canvas_Tool_Strip/Resources/%2);}%3")
        .arg(QLatin1String(image), QLatin1String(checkedImage), tail);
}

}  // namespace

class TestActivation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tool_data()
    {
        // What opens a window has a test of its own.
        QTest::addColumn<Tool>("tool");
        for (const Tool tool : allTools()) {
            if (!toolRows()[int(tool)].opensWindow) {
                QTest::newRow(toolRows()[int(tool)].slot) << tool;
            }
        }
    }
    void tool()
    {
        QFETCH(Tool, tool);
        const ToolRow& expected = toolRows()[int(tool)];
        StripFixture fixture;
        fixture.window.show();
        // The tool is the only checked one before its message goes out.
        QList<Tool> checkedWhileSending;
        fixture.recorder.setOnMessage(
            [&](const Recorder::Entry&) { checkedWhileSending = fixture.checked(); });

        for (int round = 1; round <= 2; ++round) {
            if (!expected.isEnabled) {
                QTest::mouseClick(fixture.button(tool), Qt::LeftButton);
                QCOMPARE(fixture.recorder.messages().size(), round - 1);
                QVERIFY(QMetaObject::invokeMethod(fixture.strip, expected.slot));
            } else {
                QTest::mouseClick(fixture.button(tool), Qt::LeftButton);
            }
            QCOMPARE(fixture.recorder.messages().size(), round);
            const Recorder::Entry& sent = fixture.recorder.messages().last();
            QCOMPARE(sent.message.code, expected.code);
            QCOMPARE(sent.message.sender, expected.sender);
            QCOMPARE(sent.message.receiver, ModuleNames::viewer);
            QCOMPARE(sent.message.extra, qint64(0));
            QVERIFY(sent.message.payload.isEmpty());
            QCOMPARE(sent.sender, static_cast<void*>(&fixture.window));
            QCOMPARE(checkedWhileSending, QList<Tool>{tool});
            QCOMPARE(fixture.checked(), QList<Tool>{tool});
        }
    }

    void offCode_data() { tool_data(); }
    void offCode()
    {
        QFETCH(Tool, tool);
        const ToolRow& expected = toolRows()[int(tool)];
        if (tool == Tool::FeatureHighLight || tool == Tool::SelectByNet) {
            return;  // has its own handler, with one code
        }
        StripFixture fixture;
        QToolButton* const button = fixture.button(tool);
        button->setChecked(false);
        connect(button, &QToolButton::toggled, button, [=] { button->setChecked(false); });
        QVERIFY(QMetaObject::invokeMethod(fixture.strip, expected.slot));
        QCOMPARE(fixture.recorder.codes(), QVector<int>{expected.offCode});
    }

    void everyClickLeavesOneToolChecked()
    {
        StripFixture fixture;
        fixture.window.show();
        for (const Tool tool : allTools()) {
            if (!toolRows()[int(tool)].isEnabled) {
                continue;
            }
            QTest::mouseClick(fixture.button(tool), Qt::LeftButton);
            QCOMPARE(fixture.checked(), QList<Tool>{tool});
        }
    }

    void measureOpensOnePopupAndSendsNothing()
    {
        StripFixture fixture;
        fixture.window.show();
        QSignalSpy started(fixture.strip, SIGNAL(GetRulerinfo()));
        // At the signal the popup is shown and the tool is checked already.
        QList<Tool> checkedAtSignal;
        bool shownAtSignal = false;
        int measured = 0;  // what was passed to the popup
        CanvasHost::setMeasureStarted([&] { ++measured; });
        connect(fixture.strip, &Canvas_Tool_Strip::GetRulerinfo, fixture.strip, [&] {
            checkedAtSignal = fixture.checked();
            shownAtSignal = fixture.window.findChild<Grc_Tbe_measurepopup*>()->isVisible();
        });
        for (int round = 1; round <= 2; ++round) {
            QTest::mouseClick(fixture.button(Tool::Measure), Qt::LeftButton);
            QCOMPARE(fixture.window.findChildren<Grc_Tbe_measurepopup*>().size(), 1);
            QCOMPARE(started.size(), round);
            QCOMPARE(measured, round);
            QCOMPARE(checkedAtSignal, QList<Tool>{Tool::Measure});
            QVERIFY(shownAtSignal);
            QCOMPARE(fixture.checked(), QList<Tool>{Tool::Measure});
        }
        CanvasHost::setMeasureStarted({});
        QVERIFY(fixture.recorder.messages().isEmpty());
    }

    void addFeatureAnnouncesItselfOnce()
    {
        StripFixture fixture;
        fixture.window.show();
        QSignalSpy reselected(fixture.strip, SIGNAL(reselect_Add_feature()));
        QTest::mouseClick(fixture.button(Tool::AddFeature), Qt::LeftButton);
        QCOMPARE(fixture.recorder.codes(),
                 (QVector<int>{Sent::AddFeatureStarted, Sent::AddFeature}));
        const auto first = fixture.recorder.messages();
        QCOMPARE(first[0].message.receiver, ModuleNames::jobTree);
        QCOMPARE(first[0].message.sender, ModuleNames::toolStrip);
        QCOMPARE(first[0].sender, static_cast<void*>(&fixture.window));
        QCOMPARE(first[1].message.receiver, ModuleNames::viewer);
        QCOMPARE(first[1].message.sender, ModuleNames::toolStrip);
        QCOMPARE(first[1].sender, static_cast<void*>(&fixture.window));
        QCOMPARE(reselected.size(), 0);
        QCOMPARE(fixture.checked(), QList<Tool>{Tool::AddFeature});
        QWidget* const dialog = fixture.window.findChild<QWidget*>("AddFeature");
        QVERIFY(dialog && dialog->isVisible() && dialog->isWindow());

        fixture.recorder.clear();
        QTest::mouseClick(fixture.button(Tool::AddFeature), Qt::LeftButton);
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::AddFeatureStarted, Sent::Record}));
        QCOMPARE(reselected.size(), 1);
        QCOMPARE(fixture.window.findChildren<QWidget*>("AddFeature").size(), 1);

        // The dialog asks for a symbol on the board through the strip.
        fixture.recorder.clear();
        QTest::mouseClick(&findNamed(*dialog, "m_pSelectFromEditorPB"), Qt::LeftButton);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::SelectSymbol});
        QCOMPARE(fixture.recorder.last(Sent::SelectSymbol).sender,
                 static_cast<void*>(&fixture.window));
    }

    void addFeatureTakesItsStepsInOrder()
    {
        StripFixture fixture;
        fixture.window.show();
        QList<Tool> checkedAtJobTree;
        bool dialogAtJobTree = true;
        bool shownAtViewer = true;
        bool closingSwitchedTool = true;
        fixture.recorder.setOnMessage([&](const Recorder::Entry& entry) {
            QWidget* const dialog = fixture.window.findChild<QWidget*>("AddFeature");
            if (entry.message.code == Sent::AddFeatureStarted) {
                checkedAtJobTree = fixture.checked();
                dialogAtJobTree = dialog != nullptr;
            } else if (entry.message.code == Sent::AddFeature) {
                shownAtViewer = dialog && dialog->isVisible();
                // Closing is not yet connected to the tools.
                QMetaObject::invokeMethod(dialog, "change_viewtool");
                closingSwitchedTool = fixture.strip->isToolButtonChecked(int(Tool::AreaZoom));
                // The toolbar's signals are.
                fixture.receive(Accepted::UnitChanged);
            }
        });
        fixture.strip->On_AddFeature_Clicked();
        QCOMPARE(checkedAtJobTree, QList<Tool>{Tool::AreaZoom});
        QVERIFY(!dialogAtJobTree);
        QVERIFY(!shownAtViewer);
        QVERIFY(!closingSwitchedTool);

        fixture.recorder.setOnMessage({});
        fixture.recorder.clear();
        fixture.window.findChild<QWidget*>("AddFeature")->close();
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::AreaZoom});
        QCOMPARE(fixture.checked(), QList<Tool>{Tool::AreaZoom});
    }

    void pickRequestLeavesTheButtons()
    {
        StripFixture fixture;
        fixture.button(Tool::StretchLine)->setChecked(true);
        fixture.strip->on_m_pAddfeature_Select_symbol();
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::SelectSymbol});
        QCOMPARE(fixture.checked(), (QList<Tool>{Tool::AreaZoom, Tool::StretchLine}));
    }

    void netMode_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("sheet");
        const QString start = netSheet("Net selection2.jpg", "Net selection1.jpg");
        QTest::newRow("polyline") << int(Sent::SelectPolyline) << int(Sent::SelectPolyline)
                                  << netSheet("Net selection2.jpg", "Net selection1.jpg",
                                              "border:2px solid red");
        QTest::newRow("layer net") << int(Sent::SelectLayerNet) << int(Sent::SelectLayerNet)
                                   << netSheet("Net selection6.jpg", "Net selection5.jpg");
        QTest::newRow("board net")
            << int(Sent::SelectBoardNet) << int(Sent::SelectBoardNet)
            << netSheet("Net selection4.jpg", "Net selection3.jpg", "border:2px solid green");
        QTest::newRow("zero") << 0 << int(Sent::Unset) << start;
        QTest::newRow("unknown") << int(Sent::SelectPolyline) + 1 << int(Sent::Unset) << start;
        QTest::newRow("minus one") << -1 << int(Sent::Unset) << start;
    }
    void netMode()
    {
        QFETCH(int, mode);
        QFETCH(int, code);
        QFETCH(QString, sheet);
        StripFixture fixture;
        fixture.window.show();
        fixture.strip->On_SelectPolyline_Clicked(mode);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{code});
        QCOMPARE(fixture.button(Tool::SelectByNet)->styleSheet(), sheet);
        QCOMPARE(fixture.checked(), QList<Tool>{Tool::SelectByNet});
        // A later click keeps the mode, known or not.
        QTest::mouseClick(fixture.button(Tool::SelectByNet), Qt::LeftButton);
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{code, code}));
        QCOMPARE(fixture.button(Tool::SelectByNet)->styleSheet(), sheet);
    }

    void rightClickZoomReleasesEverything()
    {
        StripFixture fixture;
        fixture.button(Tool::InvertFeature)->setChecked(true);
        QSignalSpy clicked(fixture.button(Tool::AreaZoom), SIGNAL(clicked()));
        fixture.strip->get_right_click_zoom_area();
        QVERIFY(fixture.checked().isEmpty());
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::AreaZoom});
        QVERIFY(clicked.isEmpty());
    }

    void closeAllClosesAndKeeps()
    {
        StripFixture fixture;
        fixture.window.show();
        fixture.strip->close_all_Dialogs();
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::DialogsClosed});

        QTest::mouseClick(fixture.button(Tool::AddFeature), Qt::LeftButton);
        QTest::mouseClick(fixture.button(Tool::Measure), Qt::LeftButton);
        QPointer<QWidget> dialog = fixture.window.findChild<QWidget*>("AddFeature");
        QPointer<QWidget> popup = fixture.window.findChild<Grc_Tbe_measurepopup*>();
        fixture.recorder.clear();
        fixture.strip->close_all_Dialogs();
        QVERIFY(dialog && !dialog->isVisible());
        QVERIFY(popup && !popup->isVisible());
        // Closing the dialog makes Area Zoom the tool, then the canvas is told.
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::AreaZoom, Sent::DialogsClosed}));

        QTest::mouseClick(fixture.button(Tool::Measure), Qt::LeftButton);
        QTest::mouseClick(fixture.button(Tool::AddFeature), Qt::LeftButton);
        QVERIFY(popup->isVisible());
        QVERIFY(dialog->isVisible());
    }
};

CTS_TEST(TestActivation);
#include "test_activation.moc"
