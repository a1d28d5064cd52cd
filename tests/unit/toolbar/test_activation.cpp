// What a click on each tool does, in which order.

#include "FindChild.h"
#include "Main.h"
#include "StripFixture.h"
#include "plugin/MessageCodes.h"

#include <CommonWidgetsStandIn.h>
#include <common_widgets.h>

#include <QSignalSpy>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

namespace {

const QString strip = QStringLiteral("Canvas_Tool_Strip.dll");
const QString viewer = QStringLiteral("Canvas_Viewer.dll");
const QString jobTree = QStringLiteral("Canvas_JobTree.dll");

struct Expected {
    int index;
    const char* slot;
    int onCode;
    int offCode;  // 0: the tool has one code
    const char* sender;
};

// Measure and Add Feature, whose clicks open windows, have tests of their own.
const Expected tools[] = {
    {0, "On_AreaZoom_Clicked", Sent::AreaZoom, 0, "Canvas_Tool_Strip.dll"},
    {1, "On_OpenPopView_Clicked", Sent::OpenPopView, 0, "Canvas_Tool_Strip.dll"},
    {3, "On_FeatHighLight_Clicked", Sent::FeatureHighLight, 0, "Canvas_Tool_Strip"},
    {5, "On_DeleteFeat_Clicked", Sent::DeleteFeature, 0, "Canvas_Tool_Strip.dll"},
    {6, "On_MoveFeature_Clicked", Sent::MoveFeature, 0, "Canvas_Tool_Strip.dll"},
    {7, "On_CopyFeature_Clicked", Sent::CopyFeature, 0, "Canvas_Tool_Strip.dll"},
    {8, "On_ChangeLAngle_Clicked", Sent::ChangeLineAngle, Sent::ChangeLineAngleOff,
     "Canvas_Tool_Strip.dll"},
    {9, "On_StretchLine_Clicked", Sent::StretchLine, Sent::StretchLineOff, "Canvas_Tool_Strip.dll"},
    {10, "On_RotateFeature_Clicked", Sent::RotateFeature, Sent::RotateFeatureOff,
     "Canvas_Tool_Strip.dll"},
    {11, "On_MirrorFeature_Clicked", Sent::MirrorFeature, 0, "Canvas_Tool_Strip.dll"},
    {12, "On_InvertFeature_Clicked", Sent::InvertFeature, Sent::InvertFeatureOff,
     "Canvas_Tool_Strip.dll"},
    {13, "On_BreakLine_Clicked", Sent::BreakLine, Sent::BreakLineOff, "Canvas_Tool_Strip.dll"},
    {14, "On_Dimension_Clicked", Sent::RoutDimension, 0, "Canvas_Tool_Strip.dll"},
    {15, "On_ContourEditor_Clicked", Sent::ContourEditor, 0, "Canvas_Tool_Strip.dll"},
    {16, "On_PullLine_Clicked", Sent::PullLine, 0, "Canvas_Tool_Strip.dll"},
    {17, "On_MoveJunction_Clicked", Sent::MoveJunction, 0, "Canvas_Tool_Strip.dll"},
    {18, "On_MoveTriplet_Clicked", Sent::MoveTriplet, Sent::MoveTripletOff,
     "Canvas_Tool_Strip.dll"},
    {19, "On_RerouteTrace_Clicked", Sent::RerouteTrace, Sent::RerouteTraceOff,
     "Canvas_Tool_Strip.dll"},
    {20, "On_FeatureSelection_Clicked", Sent::FeatureSelection, Sent::FeatureSelectionOff,
     "Canvas_Tool_Strip.dll"},
    {21, "On_RectSelection_Clicked", Sent::RectangleSelection, Sent::RectangleSelectionOff,
     "Canvas_Tool_Strip.dll"},
    {22, "On_PolygonSelection_Clicked", Sent::PolygonSelection, Sent::PolygonSelectionOff,
     "Canvas_Tool_Strip.dll"},
    {23, "On_SelectPolyline_Clicked", Sent::SelectLayerNet, 0, "Canvas_Tool_Strip.dll"},
    {24, "on_mark_clicked", Sent::Mark, 0, "Canvas_Tool_Strip.dll"},
    {25, "on_m_pEqTB_clecked", Sent::Eq, 0, "Canvas_Tool_Strip.dll"},
};

bool isGrey(int index)
{
    return QList<int>{10, 11, 14, 15, 16, 17}.contains(index);
}

QString netSheet(int image, int checkedImage, const QString& tail)
{
    return QStringLiteral(
               "QToolButton{background-image:url(:/Canvas_Tool_Strip/Resources/"
               "Net selection%1.jpg);}QToolButton::checked{background-image:url("
               ":/Canvas_Tool_Strip/Resources/Net selection%2.jpg);}%3")
        .arg(image)
        .arg(checkedImage)
        .arg(tail);
}

}  // namespace

class TestActivation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tool_data()
    {
        QTest::addColumn<int>("row");
        for (int row = 0; row < int(std::size(tools)); ++row) {
            QTest::newRow(tools[row].slot) << row;
        }
    }
    void tool()
    {
        QFETCH(int, row);
        const Expected& expected = tools[row];
        StripFixture fixture;
        fixture.panel.show();
        // The tool is the only checked one before its message goes out.
        QList<int> checkedWhileSending;
        fixture.recorder.setOnMessage(
            [&](const Recorder::Entry&) { checkedWhileSending = fixture.checked(); });

        for (int round = 1; round <= 2; ++round) {
            if (isGrey(expected.index)) {
                QTest::mouseClick(fixture.button(expected.index), Qt::LeftButton);
                QCOMPARE(fixture.recorder.messages().size(), round - 1);
                QVERIFY(QMetaObject::invokeMethod(fixture.strip, expected.slot));
            } else {
                QTest::mouseClick(fixture.button(expected.index), Qt::LeftButton);
            }
            QCOMPARE(fixture.recorder.messages().size(), round);
            const Recorder::Entry& sent = fixture.recorder.messages().last();
            QCOMPARE(sent.message.code, expected.onCode);
            QCOMPARE(sent.message.sender, QString(expected.sender));
            QCOMPARE(sent.message.receiver, viewer);
            QCOMPARE(sent.message.extra, qint64(0));
            QVERIFY(sent.message.payload.isEmpty());
            QCOMPARE(sent.sender, static_cast<void*>(&fixture.panel));
            QCOMPARE(checkedWhileSending, QList<int>{expected.index});
            QCOMPARE(fixture.checked(), QList<int>{expected.index});
        }
    }

    void offCode_data() { tool_data(); }
    void offCode()
    {
        QFETCH(int, row);
        const Expected& expected = tools[row];
        if (expected.index == 3 || expected.index == 23) {
            return;  // handlers of their own, with one code
        }
        StripFixture fixture;
        QToolButton* const button = fixture.button(expected.index);
        button->setChecked(false);
        connect(button, &QToolButton::toggled, button, [=] { button->setChecked(false); });
        QVERIFY(QMetaObject::invokeMethod(fixture.strip, expected.slot));
        QCOMPARE(fixture.recorder.codes(),
                 QVector<int>{expected.offCode ? expected.offCode : expected.onCode});
    }

    void everyClickLeavesOneToolChecked()
    {
        StripFixture fixture;
        fixture.panel.show();
        for (int index = 0; index < ToolTable::toolCount; ++index) {
            if (isGrey(index)) {
                continue;
            }
            QTest::mouseClick(fixture.button(index), Qt::LeftButton);
            QCOMPARE(fixture.checked(), QList<int>{index});
        }
    }

    void measureOpensOnePopupAndSendsNothing()
    {
        StripFixture fixture;
        fixture.panel.show();
        QSignalSpy started(fixture.strip, SIGNAL(GetRulerinfo()));
        // At the signal the popup is shown and the tool is checked already.
        QList<int> checkedAtSignal;
        bool shownAtSignal = false;
        int measured = 0;  // what the popup was told
        CanvasHost::setMeasureStarted([&] { ++measured; });
        connect(fixture.strip, &Canvas_Tool_Strip::GetRulerinfo, fixture.strip, [&] {
            checkedAtSignal = fixture.checked();
            shownAtSignal = fixture.panel.findChild<Grc_Tbe_measurepopup*>()->isVisible();
        });
        for (int round = 1; round <= 2; ++round) {
            QTest::mouseClick(fixture.button(2), Qt::LeftButton);
            QCOMPARE(fixture.panel.findChildren<Grc_Tbe_measurepopup*>().size(), 1);
            QCOMPARE(started.size(), round);
            QCOMPARE(measured, round);
            QCOMPARE(checkedAtSignal, QList<int>{2});
            QVERIFY(shownAtSignal);
            QCOMPARE(fixture.checked(), QList<int>{2});
        }
        CanvasHost::setMeasureStarted({});
        QVERIFY(fixture.recorder.messages().isEmpty());
    }

    void addFeatureAnnouncesItselfOnce()
    {
        StripFixture fixture;
        fixture.panel.show();
        QSignalSpy reselected(fixture.strip, SIGNAL(reselect_Add_feature()));
        QTest::mouseClick(fixture.button(4), Qt::LeftButton);
        QCOMPARE(fixture.recorder.codes(),
                 (QVector<int>{Sent::AddFeatureStarted, Sent::AddFeature}));
        const auto first = fixture.recorder.messages();
        QCOMPARE(first[0].message.receiver, jobTree);
        QCOMPARE(first[0].message.sender, strip);
        QCOMPARE(first[0].sender, static_cast<void*>(&fixture.panel));
        QCOMPARE(first[1].message.receiver, viewer);
        QCOMPARE(first[1].message.sender, strip);
        QCOMPARE(first[1].sender, static_cast<void*>(&fixture.panel));
        QCOMPARE(reselected.size(), 0);
        QCOMPARE(fixture.checked(), QList<int>{4});
        QWidget* const dialog = fixture.panel.findChild<QWidget*>("AddFeature");
        QVERIFY(dialog && dialog->isVisible() && dialog->isWindow());

        fixture.recorder.clear();
        QTest::mouseClick(fixture.button(4), Qt::LeftButton);
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::AddFeatureStarted, Sent::Record}));
        QCOMPARE(reselected.size(), 1);
        QCOMPARE(fixture.panel.findChildren<QWidget*>("AddFeature").size(), 1);

        // The dialog asks for a symbol on the board through the strip.
        fixture.recorder.clear();
        QTest::mouseClick(&findNamed(*dialog, "m_pSelectFromEditorPB"), Qt::LeftButton);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::SelectSymbol});
        QCOMPARE(fixture.recorder.last(Sent::SelectSymbol).sender,
                 static_cast<void*>(&fixture.panel));
    }

    void addFeatureTakesItsStepsInOrder()
    {
        StripFixture fixture;
        fixture.panel.show();
        QList<int> checkedAtJobTree;
        bool dialogAtJobTree = true;
        bool shownAtViewer = true;
        bool closingSwitchedTool = true;
        fixture.recorder.setOnMessage([&](const Recorder::Entry& entry) {
            QWidget* const dialog = fixture.panel.findChild<QWidget*>("AddFeature");
            if (entry.message.code == Sent::AddFeatureStarted) {
                checkedAtJobTree = fixture.checked();
                dialogAtJobTree = dialog != nullptr;
            } else if (entry.message.code == Sent::AddFeature) {
                shownAtViewer = dialog && dialog->isVisible();
                // Closing is not yet connected to the tools.
                QMetaObject::invokeMethod(dialog, "change_viewtool");
                closingSwitchedTool = fixture.strip->isToolButtonChecked(0);
                // The toolbar's signals are.
                fixture.receive(Accepted::UnitChanged);
            }
        });
        fixture.strip->On_AddFeature_Clicked();
        QCOMPARE(checkedAtJobTree, QList<int>{0});
        QVERIFY(!dialogAtJobTree);
        QVERIFY(!shownAtViewer);
        QVERIFY(!closingSwitchedTool);

        fixture.recorder.setOnMessage({});
        fixture.recorder.clear();
        fixture.panel.findChild<QWidget*>("AddFeature")->close();
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::AreaZoom});
        QCOMPARE(fixture.checked(), QList<int>{0});
    }

    void pickRequestLeavesTheButtons()
    {
        StripFixture fixture;
        fixture.button(9)->setChecked(true);
        fixture.strip->on_m_pAddfeature_Select_symbol();
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::SelectSymbol});
        QCOMPARE(fixture.checked(), (QList<int>{0, 9}));
    }

    void netMode_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("sheet");
        const QString start = netSheet(2, 1, {});
        QTest::newRow("polyline") << int(Sent::SelectPolyline) << int(Sent::SelectPolyline)
                                  << netSheet(2, 1, "border:2px solid red");
        QTest::newRow("layer net")
            << int(Sent::SelectLayerNet) << int(Sent::SelectLayerNet) << netSheet(6, 5, {});
        QTest::newRow("board net") << int(Sent::SelectBoardNet) << int(Sent::SelectBoardNet)
                                   << netSheet(4, 3, "border:2px solid green");
        QTest::newRow("zero") << 0 << -1 << start;
        QTest::newRow("unknown") << int(Sent::SelectPolyline) + 1 << int(Sent::Unset) << start;
        QTest::newRow("minus one") << -1 << -1 << start;
    }
    void netMode()
    {
        QFETCH(int, mode);
        QFETCH(int, code);
        QFETCH(QString, sheet);
        StripFixture fixture;
        fixture.panel.show();
        fixture.strip->On_SelectPolyline_Clicked(mode);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{code});
        QCOMPARE(fixture.button(23)->styleSheet(), sheet);
        QCOMPARE(fixture.checked(), QList<int>{23});
        // A later click stays in the mode, known or not.
        QTest::mouseClick(fixture.button(23), Qt::LeftButton);
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{code, code}));
        QCOMPARE(fixture.button(23)->styleSheet(), sheet);
    }

    void rightClickZoomReleasesEverything()
    {
        StripFixture fixture;
        fixture.button(12)->setChecked(true);
        QSignalSpy clicked(fixture.button(0), SIGNAL(clicked()));
        fixture.strip->get_right_click_zoom_area();
        QVERIFY(fixture.checked().isEmpty());
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::AreaZoom});
        QVERIFY(clicked.isEmpty());
    }

    void closeAllClosesAndKeeps()
    {
        StripFixture fixture;
        fixture.panel.show();
        fixture.strip->close_all_Dialogs();
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::DialogsClosed});

        QTest::mouseClick(fixture.button(4), Qt::LeftButton);
        QTest::mouseClick(fixture.button(2), Qt::LeftButton);
        QPointer<QWidget> dialog = fixture.panel.findChild<QWidget*>("AddFeature");
        QPointer<QWidget> popup = fixture.panel.findChild<Grc_Tbe_measurepopup*>();
        fixture.recorder.clear();
        fixture.strip->close_all_Dialogs();
        QVERIFY(dialog && !dialog->isVisible());
        QVERIFY(popup && !popup->isVisible());
        // Closing the dialog makes Area Zoom the tool, then the canvas is told.
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::AreaZoom, Sent::DialogsClosed}));

        QTest::mouseClick(fixture.button(2), Qt::LeftButton);
        QTest::mouseClick(fixture.button(4), Qt::LeftButton);
        QVERIFY(popup->isVisible());
        QVERIFY(dialog->isVisible());
    }
};

CTS_TEST(TestActivation);
#include "test_activation.moc"
