// The pages of surfaces and of arcs and circles.

#include "ByHand.h"
#include "Main.h"
#include "PageCases.h"
#include "PageSteps.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <QCheckBox>

namespace Sent = MessageCodes::Sent;

using namespace PageSteps;

namespace {

struct Item {
    const char* text;
    QString value;
};

/// Choosing an item of a combo box stores its value as text and sends the record.
Cases choices(const Steps& given, const QString& combo, const QString& key,
              const QList<Item>& items)
{
    Cases cases;
    for (const Item& item : items) {
        const Item& other = &item == &items.first() ? items[1] : items.first();
        cases.append(Case()
                         .given(given + Choose(combo, other.text))
                         .when(Choose(combo, item.text))
                         .then(Expect::record(key, item.value), Expect::sent(Sent::Record)));
    }
    cases.append(Case(combo + " without an item")
                     .given(given + Choose(combo, items[1].text))
                     .when(ChooseNothing(combo))
                     .then(Expect::record(key, items[1].value), Expect::sent(Sent::Record)));
    return cases;
}

Cases surfaceShapes()
{
    return choices(surface, "m_pSurfShapeCMB", RecordKeys::surfaceShape,
                   {{"Rectangle", SurfaceKind::rectangle},
                    {"Polygon", SurfaceKind::polygon},
                    {"Circle", SurfaceKind::circle}});
}

Cases arcMethods()
{
    return choices(arc, "m_pArcCMB", RecordKeys::arcMode,
                   {{"Start, Center, End", ArcMode::startCenterEnd},
                    {"Start, End, Edge", ArcMode::startEndEdge},
                    {"Start, End, Center", ArcMode::startEndCenter},
                    {"Start, Center, Angle", ArcMode::startCenterAngle},
                    {"Start, Center, Length", ArcMode::startCenterLength},
                    {"Start, End, Angle", ArcMode::startEndAngle},
                    {"Start, End, Radius", ArcMode::startEndRadius}});
}

Cases circleMethods()
{
    return choices(circle, "m_pCircleCMB", RecordKeys::circleMode,
                   {{"Center, Radius", CircleMode::centerRadius},
                    {"Center, Point", CircleMode::centerPoint},
                    {"Point, Center", CircleMode::pointCenter},
                    {"Three Points", CircleMode::threePoints}});
}

Cases families()
{
    const Expect::Expectations arcMethod = {Expect::enabled("m_pArcCMB"),
                                            Expect::disabled("m_pCircleCMB")};
    const Expect::Expectations circleMethod = {Expect::disabled("m_pArcCMB"),
                                               Expect::enabled("m_pCircleCMB")};
    return {
        Case("circle")
            .given(arc + Choose("m_pArcCMB", "Start, End, Edge"))
            .when(Choose("m_pArcAndCircleCMB", "Circle"))
            .then(Expect::record(RecordKeys::arcAndCircle, ArcOrCircle::circle),
                  Expect::record(RecordKeys::arcMode, ArcMode::startEndEdge),
                  Expect::sent(Sent::Record), circleMethod),
        Case("arc again")
            .given(circle + Choose("m_pCircleCMB", "Point, Center"))
            .when(Choose("m_pArcAndCircleCMB", "Arc"))
            .then(Expect::record(RecordKeys::arcAndCircle, ArcOrCircle::arc),
                  Expect::record(RecordKeys::circleMode, CircleMode::pointCenter),
                  Expect::sent(Sent::Record), arcMethod),
        Case("neither")
            .given(circle)
            .when(ChooseNothing("m_pArcAndCircleCMB"))
            .then(Expect::record(RecordKeys::arcAndCircle, ArcOrCircle::circle),
                  Expect::sent(Sent::Record), circleMethod),
    };
}

/// A click on a type sends the attributes first; the type is a number from then on.
Cases types()
{
    const auto type = [](const QString& name, const QString& button, const QString& kind) {
        return Case(name)
            .when(Click(button))
            .then(Expect::record(RecordKeys::features, kind.toInt()),
                  Expect::sent(Sent::AttributeMap, Sent::Record));
    };
    return {
        type("surface", "m_pSurfaceTB", FeatureKind::surface).then(Expect::shown("m_pSurfacePage")),
        type("arc", "m_pArcTB", FeatureKind::arc).then(Expect::shown("m_pArcPage")),
        type("arc after surface", "m_pArcTB", FeatureKind::arc)
            .given(surface + Choose("m_pSurfShapeCMB", "Circle"))
            .then(Expect::hidden("m_pSurfacePage"), Expect::shown("m_pArcPage")),
    };
}

Cases clockWise()
{
    return {
        Case("counter-clockwise")
            .given(arc)
            .when(Click("m_pClockWiseCB"))
            .then(Expect::record(RecordKeys::clockWise, ClockWise::no), Expect::sent(Sent::Record)),
        Case("clockwise again")
            .given(arc + Click("m_pClockWiseCB"))
            .when(Click("m_pClockWiseCB"))
            .then(Expect::record(RecordKeys::clockWise, ClockWise::yes),
                  Expect::sent(Sent::Record)),
    };
}

}  // namespace

class TestSurfaceAndArcPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void table_data()
    {
        addCases(surfaceShapes() + arcMethods() + circleMethods() + families() + clockWise() +
                 types());
    }
    void table() { runCase(); }

    void defaults()
    {
        DialogFixture fixture;
        QCOMPARE(fixture.recorder.codes(), QVector<int>());
        Expect::holds(fixture, {Expect::record(RecordKeys::features, FeatureKind::line),
                                Expect::record(RecordKeys::surfaceShape, SurfaceKind::rectangle),
                                Expect::record(RecordKeys::arcAndCircle, ArcOrCircle::arc),
                                Expect::record(RecordKeys::arcMode, ArcMode::startCenterEnd),
                                Expect::record(RecordKeys::circleMode, CircleMode::centerRadius),
                                Expect::record(RecordKeys::clockWise, ClockWise::yes)});
    }

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

    void byHand_data()
    {
        QTest::addColumn<Steps>("reach");
        QTest::addColumn<QString>("combo");
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("lastValue");
        QTest::addColumn<QString>("valueBefore");
        QTest::newRow("surface") << surface << "m_pSurfShapeCMB"
                                 << "Circle" << RecordKeys::surfaceShape << SurfaceKind::circle
                                 << SurfaceKind::polygon;
        QTest::newRow("arc") << arc << "m_pArcCMB"
                             << "Start, End, Center" << RecordKeys::arcMode
                             << ArcMode::startEndCenter << ArcMode::startEndEdge;
        QTest::newRow("circle") << circle << "m_pCircleCMB"
                                << "Point, Center" << RecordKeys::circleMode
                                << CircleMode::pointCenter << CircleMode::centerPoint;
    }
    void byHand()
    {
        QFETCH(Steps, reach);
        QFETCH(QString, combo);
        QFETCH(QString, last);
        QFETCH(QString, key);
        QFETCH(QString, lastValue);
        QFETCH(QString, valueBefore);
        DialogFixture fixture;
        fixture.perform(reach);
        fixture.recorder.clear();
        auto& list = fixture.find<QComboBox>(combo);
        ByHand::click(list, last);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(key, lastValue)});
        ByHand::press(list, Qt::Key_Up);
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::Record, Sent::Record}));
        Expect::holds(fixture, {Expect::record(key, valueBefore)});
        ByHand::turnWheel(list);
        QCOMPARE(fixture.recorder.codes(),
                 (QVector<int>{Sent::Record, Sent::Record, Sent::Record}));
        Expect::holds(fixture, {Expect::record(key, lastValue)});
    }

    void aDisabledMethodTakesNoInput()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pArcTB");
        auto& methods = fixture.find<QComboBox>("m_pCircleCMB");
        ByHand::press(methods, Qt::Key_Down);
        ByHand::turnWheel(methods);
        fixture.click("m_pCircleCMB");
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(methods.currentText(), QString("Center, Radius"));
        QCOMPARE(fixture.recorder.codes(), QVector<int>());
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

    void start()
    {
        DialogFixture fixture;
        const auto items = [&](const char* combo) {
            return itemTexts(fixture.find<QComboBox>(combo));
        };
        QCOMPARE(items("m_pSurfShapeCMB"), (QStringList{"Rectangle", "Polygon", "Circle"}));
        QCOMPARE(items("m_pArcAndCircleCMB"), (QStringList{"Arc", "Circle"}));
        QCOMPARE(items("m_pArcCMB"),
                 (QStringList{"Start, Center, End", "Start, End, Edge", "Start, End, Center",
                              "Start, Center, Angle", "Start, Center, Length", "Start, End, Angle",
                              "Start, End, Radius"}));
        QCOMPARE(items("m_pCircleCMB"),
                 (QStringList{"Center, Radius", "Center, Point", "Point, Center", "Three Points"}));
        QCOMPARE(fixture.find<QCheckBox>("m_pClockWiseCB").text(), QString("ClockWise"));
        Expect::holds(fixture, {Expect::chosen("m_pSurfShapeCMB", "Rectangle"),
                                Expect::chosen("m_pArcAndCircleCMB", "Arc"),
                                Expect::chosen("m_pArcCMB", "Start, Center, End"),
                                Expect::chosen("m_pCircleCMB", "Center, Radius"),
                                Expect::checked("m_pClockWiseCB"), Expect::enabled("m_pArcCMB"),
                                Expect::disabled("m_pCircleCMB")});
        QCOMPARE(PageCases::greyedItems(fixture, "m_pArcPage"),
                 (QStringList{"m_pArcCMB: Start, Center, Angle", "m_pArcCMB: Start, Center, Length",
                              "m_pArcCMB: Start, End, Angle", "m_pArcCMB: Start, End, Radius",
                              "m_pCircleCMB: Three Points"}));
        QCOMPARE(PageCases::greyedItems(fixture, "m_pSurfacePage"), QStringList());
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

    void greyedItems_data()
    {
        using PageCases::GreyedItems;
        PageCases::addGreyedRows(
            {GreyedItems("m_pArcCMB")
                 .reachedBy(arc)
                 .free({"Start, Center, End", "Start, End, Edge", "Start, End, Center"})
                 .greyed({"Start, Center, Angle", "Start, Center, Length", "Start, End, Angle",
                          "Start, End, Radius"}),
             GreyedItems("m_pCircleCMB")
                 .reachedBy(circle)
                 .free({"Center, Radius", "Center, Point", "Point, Center"})
                 .greyed({"Three Points"})});
    }
    void greyedItems() { PageCases::tryToReachGreyedItem(); }

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
