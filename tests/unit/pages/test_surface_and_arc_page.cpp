// The pages of surfaces and of arcs and circles.

#include "FindChild.h"
#include "Main.h"
#include "PageCases.h"
#include "PageFixture.h"

#include <QCheckBox>
#include <QComboBox>

#include "addfeature/AddFeature.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

namespace Sent = MessageCodes::Sent;

using PageCases::Case;

namespace {

const QStringList surface = {"m_pSurfaceTB"};
const QStringList arc = {"m_pArcTB"};
const QStringList circle = {"m_pArcTB", "m_pArcAndCircleCMB=1"};

/// Choosing each item of a combo box stores its number as text and sends the record.
QList<Case> choices(const QStringList& before, const QString& combo, const QString& key, int count)
{
    QList<Case> rows;
    for (int index = 0; index < count; ++index) {
        rows.append({QString(),
                     before + QStringList(QStringLiteral("%1=%2").arg(combo).arg(index ? 0 : 1)),
                     QStringLiteral("%1=%2").arg(combo).arg(index),
                     {{key, QString::number(index + 1)}},
                     {Sent::Record}});
    }
    rows.append({combo + " without an item",
                 before + QStringList(combo + "=1"),
                 combo + "=-1",
                 {{key, QString("2")}},
                 {Sent::Record}});
    return rows;
}

QList<Case> families()
{
    const QStringList arcStates = {"enabled m_pArcCMB", "disabled m_pCircleCMB"};
    const QStringList circleStates = {"disabled m_pArcCMB", "enabled m_pCircleCMB"};
    return {
        {"circle",
         arc + QStringList("m_pArcCMB=1"),
         "m_pArcAndCircleCMB=1",
         {{RecordKeys::arcAndCircle, ArcOrCircle::circle},
          {RecordKeys::arcMode, ArcMode::startEndEdge}},
         {Sent::Record},
         circleStates},
        {"arc again",
         circle + QStringList("m_pCircleCMB=2"),
         "m_pArcAndCircleCMB=0",
         {{RecordKeys::arcAndCircle, ArcOrCircle::arc},
          {RecordKeys::circleMode, CircleMode::pointCenter}},
         {Sent::Record},
         arcStates},
        {"neither",
         circle,
         "m_pArcAndCircleCMB=-1",
         {{RecordKeys::arcAndCircle, ArcOrCircle::circle}},
         {Sent::Record},
         circleStates},
    };
}

/// A click on a type tells the attributes first; the type is a number from then on.
QList<Case> types()
{
    return {
        {"surface",
         {},
         "m_pSurfaceTB",
         {{RecordKeys::features, FeatureKind::surface.toInt()}},
         {Sent::AttributeMap, Sent::Record},
         {"shown m_pSurfacePage"}},
        {"arc",
         {},
         "m_pArcTB",
         {{RecordKeys::features, FeatureKind::arc.toInt()}},
         {Sent::AttributeMap, Sent::Record},
         {"shown m_pArcPage"}},
        {"arc after surface",
         surface + QStringList("m_pSurfShapeCMB=2"),
         "m_pArcTB",
         {{RecordKeys::features, FeatureKind::arc.toInt()}},
         {Sent::AttributeMap, Sent::Record},
         {"hidden m_pSurfacePage", "shown m_pArcPage"}},
    };
}

QList<Case> clockWise()
{
    return {
        {"counter-clockwise",
         arc,
         "m_pClockWiseCB",
         {{RecordKeys::clockWise, ClockWise::no}},
         {Sent::Record}},
        {"clockwise again",
         arc + QStringList("m_pClockWiseCB"),
         "m_pClockWiseCB",
         {{RecordKeys::clockWise, ClockWise::yes}},
         {Sent::Record}},
    };
}

}  // namespace

class TestSurfaceAndArcPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void table_data()
    {
        PageCases::addRows(choices(surface, "m_pSurfShapeCMB", RecordKeys::surfaceShape, 3) +
                           choices(arc, "m_pArcCMB", RecordKeys::arcMode, 7) +
                           choices(circle, "m_pCircleCMB", RecordKeys::circleMode, 4) + families() +
                           clockWise() + types());
    }
    void table() { PageCases::run(); }

    void defaults()
    {
        PageCases::compareStart({{RecordKeys::features, FeatureKind::line},
                                 {RecordKeys::surfaceShape, SurfaceKind::rectangle},
                                 {RecordKeys::arcAndCircle, ArcOrCircle::arc},
                                 {RecordKeys::arcMode, ArcMode::startCenterEnd},
                                 {RecordKeys::circleMode, CircleMode::centerRadius},
                                 {RecordKeys::clockWise, ClockWise::yes}});
    }

    void connections()
    {
        PageCases::compareConnections(
            {{"m_pSurfShapeCMB", SIGNAL(currentIndexChanged(QString)),
              SLOT(on_SurfShape_ComboBox_Changed())},
             {"m_pArcAndCircleCMB", SIGNAL(currentIndexChanged(QString)),
              SLOT(on_ArcAndCircle_ComboBox_Changed())},
             {"m_pArcCMB", SIGNAL(currentIndexChanged(QString)), SLOT(on_Arc_ComboBox_Changed())},
             {"m_pCircleCMB", SIGNAL(currentIndexChanged(QString)),
              SLOT(on_Circle_ComboBox_Changed())},
             {"m_pClockWiseCB", SIGNAL(stateChanged(int)),
              SLOT(on_ClockWise_CheckState_Changed(int))}});
    }

    void byHand_data()
    {
        QTest::addColumn<QStringList>("before");
        QTest::addColumn<QString>("combo");
        QTest::addColumn<QString>("key");
        QTest::newRow("surface") << surface << "m_pSurfShapeCMB" << RecordKeys::surfaceShape;
        QTest::newRow("arc") << arc << "m_pArcCMB" << RecordKeys::arcMode;
        QTest::newRow("circle") << circle << "m_pCircleCMB" << RecordKeys::circleMode;
    }
    void byHand()
    {
        QFETCH(QStringList, before);
        QFETCH(QString, combo);
        QFETCH(QString, key);
        PageFixture fixture;
        fixture.perform(before);
        fixture.forget();
        const auto stored = [&] { return fixture.record().value(key).toString(); };
        fixture.chooseByMouse(combo, 2);
        QCOMPARE(fixture.codes(), QList<int>{Sent::Record});
        QCOMPARE(stored(), QString("3"));
        fixture.press(combo, Qt::Key_Up, 1);
        QCOMPARE(fixture.codes(), (QList<int>{Sent::Record, Sent::Record}));
        QCOMPARE(stored(), QString("2"));
        fixture.turnWheel(combo, 1);
        QCOMPARE(fixture.codes(), (QList<int>{Sent::Record, Sent::Record, Sent::Record}));
        QCOMPARE(stored(), QString("3"));
    }

    void aDisabledMethodTakesNoInput()
    {
        PageFixture fixture;
        fixture.perform(arc);
        fixture.forget();
        fixture.press("m_pCircleCMB", Qt::Key_Down, 1);
        fixture.turnWheel("m_pCircleCMB", 1);
        fixture.click("m_pCircleCMB");
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(fixture.index("m_pCircleCMB"), 0);
        QCOMPARE(fixture.codes(), QList<int>());
    }

    /// A symbol that cannot be sent is no matter of surfaces, but keeps an arc back.
    void withASymbolThatCannotBeSent_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("step");
        QTest::addColumn<bool>("isSent");
        QTest::newRow("surface") << "m_pSurfaceTB"
                                 << "m_pSurfShapeCMB=1" << true;
        QTest::newRow("arc") << "m_pArcTB"
                             << "m_pArcCMB=1" << false;
    }
    void withASymbolThatCannotBeSent()
    {
        QFETCH(QString, type);
        QFETCH(QString, step);
        QFETCH(bool, isSent);
        PageFixture fixture;
        fixture.perform(type);
        fixture.setText("m_pSymbolTextLE", "r60000");
        fixture.forget();
        fixture.perform(step);
        QCOMPARE(fixture.codes(), isSent ? QList<int>{Sent::Record} : QList<int>{});
        QCOMPARE(fixture.boxes().size(), isSent ? 0 : 1);
        QCOMPARE(fixture.text("m_pSymbolTextLE"), QString(isSent ? "r60000" : ""));
        // It is kept all the same.
        QCOMPARE(fixture.record()
                     .value(isSent ? RecordKeys::surfaceShape : RecordKeys::arcMode)
                     .toString(),
                 QString("2"));
    }

    void start()
    {
        PageFixture fixture;
        QCOMPARE(itemTexts(fixture.find<QComboBox>("m_pSurfShapeCMB")),
                 (QStringList{"Rectangle", "Polygon", "Circle"}));
        QCOMPARE(itemTexts(fixture.find<QComboBox>("m_pArcAndCircleCMB")),
                 (QStringList{"Arc", "Circle"}));
        QCOMPARE(itemTexts(fixture.find<QComboBox>("m_pArcCMB")),
                 (QStringList{"Start, Center, End", "Start, End, Edge", "Start, End, Center",
                              "Start, Center, Angle", "Start, Center, Length", "Start, End, Angle",
                              "Start, End, Radius"}));
        QCOMPARE(itemTexts(fixture.find<QComboBox>("m_pCircleCMB")),
                 (QStringList{"Center, Radius", "Center, Point", "Point, Center", "Three Points"}));
        for (const char* const combo :
             {"m_pSurfShapeCMB", "m_pArcAndCircleCMB", "m_pArcCMB", "m_pCircleCMB"}) {
            QCOMPARE(fixture.index(combo), 0);
        }
        QCOMPARE(fixture.find<QCheckBox>("m_pClockWiseCB").text(), QString("ClockWise"));
        for (const char* const state :
             {"checked m_pClockWiseCB", "enabled m_pArcCMB", "disabled m_pCircleCMB"}) {
            QVERIFY2(fixture.hasState(state), state);
        }
        QCOMPARE(fixture.greyedItems("m_pArcPage"),
                 (QStringList{"m_pArcCMB 3", "m_pArcCMB 4", "m_pArcCMB 5", "m_pArcCMB 6",
                              "m_pCircleCMB 3"}));
        QCOMPARE(fixture.greyedItems("m_pSurfacePage"), QStringList());
    }

    void rowsOfTheArcPage()
    {
        PageFixture fixture;
        fixture.perform(arc);
        const auto top = [&](const char* name) { return fixture.find<QWidget>(name).y(); };
        QVERIFY(top("m_pArcCMB") > top("m_pArcAndCircleCMB"));
        QVERIFY(top("m_pCircleCMB") > top("m_pArcCMB"));
        QVERIFY(fixture.find<QWidget>("m_pClockWiseCB").x() >
                fixture.find<QWidget>("m_pArcAndCircleCMB").x());
    }

    void greyedItems_data()
    {
        PageCases::addGreyedRows({{"m_pArcCMB", arc, 2, 7}, {"m_pCircleCMB", circle, 2, 4}});
    }
    void greyedItems() { PageCases::tryToReachGreyedItem(); }

    void theClockWiseBoxItselfDecides()
    {
        PageFixture fixture;
        fixture.dialog().on_ClockWise_CheckState_Changed(Qt::Unchecked);
        QCOMPARE(fixture.record().value(RecordKeys::clockWise), QVariant(ClockWise::yes));
    }

    void keepTheirStateWhenShownAgain()
    {
        PageFixture fixture;
        fixture.perform(QStringList{"m_pSurfaceTB", "m_pSurfShapeCMB=2", "m_pArcTB",
                                    "m_pArcAndCircleCMB=1", "m_pSurfaceTB"});
        QCOMPARE(fixture.index("m_pSurfShapeCMB"), 2);
        QCOMPARE(fixture.record().value(RecordKeys::surfaceShape), QVariant(SurfaceKind::circle));
        QCOMPARE(fixture.record().value(RecordKeys::arcAndCircle), QVariant(ArcOrCircle::circle));
    }

    void language_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QStringList>("before");
        QTest::newRow("surface") << "m_pSurfacePage"
                                 << QStringList{"m_pSurfaceTB", "m_pSurfShapeCMB=1"};
        QTest::newRow("arc") << "m_pArcPage" << QStringList{"m_pArcTB", "m_pArcCMB=2"};
        QTest::newRow("greyed arc") << "m_pArcPage" << arc + QStringList("m_pArcCMB=6");
        QTest::newRow("greyed circle") << "m_pArcPage" << circle + QStringList("m_pCircleCMB=3");
    }
    void language()
    {
        QFETCH(QString, page);
        QFETCH(QStringList, before);
        PageCases::retranslate(page, before);
    }
};

CTS_TEST(TestSurfaceAndArcPage);
#include "test_surface_and_arc_page.moc"
