// The pages of surfaces and of arcs and circles.

#include "Main.h"
#include "PageCases.h"
#include "PageSteps.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

namespace Sent = MessageCodes::Sent;

using namespace PageSteps;

class TestSurfaceAndArcPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void connections()
    {
        const char* const index = SIGNAL(currentIndexChanged(QString));
        PageCases::connected(
            {{"m_pSurfShapeCMB", index, SLOT(on_SurfShape_ComboBox_Changed())},
             {"m_pArcAndCircleCMB", index, SLOT(on_ArcAndCircle_ComboBox_Changed())},
             {"m_pArcCMB", index, SLOT(on_Arc_ComboBox_Changed())},
             {"m_pCircleCMB", index, SLOT(on_Circle_ComboBox_Changed())},
             {"m_pClockWiseCB", SIGNAL(stateChanged(int)),
              SLOT(on_ClockWise_CheckState_Changed(int))}});
    }

    /// A symbol that cannot be sent does not matter to surfaces, but holds back an arc.
    void withASymbolThatCannotBeSent_data()
    {
        addCases({Case("surface")
                      .given(surface + SetText("m_pSymbolTextLE", "r60000"))
                      .when(Choose("m_pSurfShapeCMB", "Polygon"))
                      .then(Expect::record(RecordKeys::surfaceShape, SurfaceKind::polygon),
                            Expect::sent(Sent::Record), Expect::text("m_pSymbolTextLE", "r60000")),
                  // It is kept all the same.
                  Case("arc")
                      .given(arc + SetText("m_pSymbolTextLE", "r60000"))
                      .when(Choose("m_pArcCMB", "Start, End, Edge"))
                      .then(Expect::record(RecordKeys::arcMode, ArcMode::startEndEdge),
                            Expect::hostBox(), Expect::text("m_pSymbolTextLE", ""))});
    }
    void withASymbolThatCannotBeSent() { runCase(); }

    void texts()
    {
        const DialogFixture fixture;
        QCOMPARE(PageCases::visibleTexts(fixture, "m_pSurfacePage"),
                 (QStringList{"Rectangle", "Polygon", "Circle"}));
        QCOMPARE(PageCases::visibleTexts(fixture, "m_pArcPage"),
                 (QStringList{"Arc", "Circle", "ClockWise", "Start, Center, End",
                              "Start, End, Edge", "Start, End, Center", "Start, Center, Angle",
                              "Start, Center, Length", "Start, End, Angle", "Start, End, Radius",
                              "Center, Radius", "Center, Point", "Point, Center", "Three Points"}));
    }

    void rowsOfTheArcPage()
    {
        const DialogFixture fixture;
        fixture.perform(arc);
        const auto top = [&](const char* name) { return fixture.find(name).y(); };
        QVERIFY(top("m_pArcCMB") > top("m_pArcAndCircleCMB"));
        QVERIFY(top("m_pCircleCMB") > top("m_pArcCMB"));
        QVERIFY(fixture.find("m_pClockWiseCB").x() > fixture.find("m_pArcAndCircleCMB").x());
    }

    void theClockWiseBoxItselfDecides()
    {
        DialogFixture fixture;
        fixture.dialog->on_ClockWise_CheckState_Changed(Qt::Unchecked);
        Expect::holds(fixture, {Expect::record(RecordKeys::clockWise, ClockWise::yes)});
    }

    void keepTheirStateWhenShownAgain()
    {
        DialogFixture fixture;
        fixture.perform(surface + Choose("m_pSurfShapeCMB", "Circle") + Click("m_pArcTB") +
                        Choose("m_pArcAndCircleCMB", "Circle") + Click("m_pSurfaceTB"));
        Expect::holds(fixture, {Expect::chosen("m_pSurfShapeCMB", "Circle"),
                                Expect::record(RecordKeys::surfaceShape, SurfaceKind::circle),
                                Expect::record(RecordKeys::arcAndCircle, ArcOrCircle::circle)});
    }

    void language_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<Steps>("before");
        QTest::newRow("surface") << "m_pSurfacePage"
                                 << surface + Choose("m_pSurfShapeCMB", "Polygon");
        QTest::newRow("arc") << "m_pArcPage" << arc + Choose("m_pArcCMB", "Start, End, Center");
        QTest::newRow("greyed arc")
            << "m_pArcPage" << arc + Choose("m_pArcCMB", "Start, End, Radius");
        QTest::newRow("greyed circle")
            << "m_pArcPage" << circle + Choose("m_pCircleCMB", "Three Points");
    }
    void language()
    {
        QFETCH(QString, page);
        QFETCH(Steps, before);
        PageCases::retranslate(page, before);
    }
};

CTS_TEST(TestSurfaceAndArcPage);
#include "test_surface_and_arc_page.moc"
