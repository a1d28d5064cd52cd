// Exact work: points that snap, and coordinates that are typed.

#include "CanvasFixture.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"
#include "viewer/Snapping.h"
#include "viewer/TypedPlace.h"

#include <UiApiStandIn.h>

#include <QImage>
#include <QLineEdit>
#include <QToolButton>
#include <QTranslator>

namespace Accepted = MessageCodes::Accepted;
namespace Sent = MessageCodes::Sent;

using CanvasHost::DisplayUnit;
using Pcb::Feature;
using Pcb::Features;
using Snapping::Kind;

namespace {

/// 0: a line, 1: a pad, 2: an arc around 15000, 9000.
Features board()
{
    return {Feature(Pcb::lineGeometry("r20", {2010, 5020}, {12030, 5020})),
            Feature(Pcb::padGeometry("r60", {16003, 4007})),
            Feature(Pcb::arcGeometry("r20", {17000, 9000}, {13000, 9000}, {15000, 9000}, false))};
}

class Fixture : public CanvasFixture {
public:
    Fixture() : CanvasFixture(board()) { setStep("1 mm"); }
    ~Fixture() { CanvasHost::setDisplayUnit(DisplayUnit::Mil); }

    QLineEdit& edit(const char* name) const { return findNamed<QLineEdit>(*pane, name); }
    void typeInto(const char* name, const QString& text) const
    {
        edit(name).setFocus();
        edit(name).selectAll();
        QTest::keyClicks(&edit(name), text);
        QTest::keyClick(&edit(name), Qt::Key_Return);
    }
    void setStep(const QString& text) const { typeInto("m_pGridStepLE", text); }
    void typePlace(const QString& text) const { typeInto("m_pPositionLE", text); }
    void snap() const { QTest::mouseClick(&findNamed(*pane, "m_pSnapTB"), Qt::LeftButton); }
    const std::optional<Snapping::Place>& mark() const
    {
        return pane->canvas().scene().overlay().snap;
    }
    QVector<QPointF> pointsOf(size_t feature) const
    {
        return features().at(feature).geometry().points;
    }
    void describeLine() const
    {
        receive(Sent::Record, 0,
                {{RecordKeys::features, FeatureKind::line.toInt()},
                 {RecordKeys::symbolText, QString("r10")}});
    }
};

}  // namespace

class TestExact : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nearestPlace_data()
    {
        QTest::addColumn<QPointF>("point");
        QTest::addColumn<QPointF>("expected");
        QTest::addColumn<int>("kind");
        const auto row = [](const char* name, QPointF point, QPointF expected, Kind kind) {
            QTest::newRow(name) << point << expected << int(kind);
        };
        row("grid", {7400, 7600}, {7000, 8000}, Kind::Grid);
        row("grid, negative", {-7400, -7600}, {-7000, -8000}, Kind::Grid);
        row("first end", {2100, 5100}, {2010, 5020}, Kind::End);
        row("second end", {12000, 4900}, {12030, 5020}, Kind::End);
        row("middle of a line", {7100, 5100}, {7020, 5020}, Kind::Centre);
        row("pad", {16100, 4100}, {16003, 4007}, Kind::Centre);
        row("end of an arc", {13100, 9100}, {13000, 9000}, Kind::End);
        row("centre of an arc", {15100, 9100}, {15000, 9000}, Kind::Centre);
        row("out of reach", {2500, 5400}, {3000, 5000}, Kind::Grid);
        row("corner of a surface", {18100, 12100}, {18050, 12050}, Kind::End);
        row("middle of a surface", {18500, 12600}, {18550, 12550}, Kind::Centre);
        row("centre of a disc", {5200, 11000}, {5150, 11150}, Kind::Centre);
        row("nearest of three", {1040, 1110}, {1000, 1100}, Kind::End);
    }
    void nearestPlace()
    {
        QFETCH(QPointF, point);
        QFETCH(QPointF, expected);
        QFETCH(int, kind);
        Features features = board();
        features.push_back(Feature(Pcb::surfaceGeometry(
            {{18050, 12050}, {19050, 12050}, {19050, 13050}, {18050, 13050}})));
        features.push_back(Feature(Pcb::discGeometry({5150, 11150}, {6150, 11150})));
        features.push_back(Feature(Pcb::lineGeometry("r4", {1000, 1100}, {1200, 1100})));
        const auto place = Snapping::nearest({{}, {}, {}, features}, point, 300, 1000);
        QVERIFY2(isNear(place.point, expected, 0.01),
                 qPrintable(QString("%1 %2").arg(place.point.x()).arg(place.point.y())));
        QCOMPARE(int(place.kind), kind);
    }

    void typedPlaces_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isPlace");
        QTest::addColumn<QPointF>("place");
        QTest::addColumn<bool>("isRelative");
        const auto row = [](const char* text, QPointF place, bool isRelative = false) {
            QTest::newRow(text) << text << true << place << isRelative;
        };
        row("12.5 40", {12500, 40000});
        row(" -1.5,2 ", {-1500, 2000});
        row("1, 2 mm", {1000, 2000});
        row("10mil 2mm", {254, 2000});
        row("10 mil, 20 mil", {254, 508});
        row("10 20mil", {254, 508});
        row("10mil 20", {254, 508});
        row("1inch .5in", {25400, 12700});
        row("1\" 2\"", {25400, 50800});
        row("100um; 200UM", {100, 200});
        row("100\u00b5m 200\u00b5m", {100, 200});
        row("12.5000, 40.0000 mm", {12500, 40000});
        row("1 mil 2 mil", {25.4, 50.8});
        row("@5 5", {5000, 5000}, true);
        row(" @ -5, 10mil", {-127, 254}, true);
        row("@+5 +5", {5000, 5000}, true);
        for (const char* const text :
             {"",       "12",         "12,5 40", "a b",   "1 2 3", "1ft 2ft", "1e3 2",
              "nan 1",  "99999999 1", "1 2mm x", "--1 2", ". .",   "+5 +5",   "5 +5",
              "+5mm 5", "@",          "@5",      "5 @5",  "@5 @5", "@@5 5",   "5 5@"}) {
            QTest::newRow(*text ? text : "empty") << text << false << QPointF() << false;
        }
    }
    void typedPlaces()
    {
        QFETCH(QString, text);
        QFETCH(bool, isPlace);
        QFETCH(QPointF, place);
        CanvasHost::setDisplayUnit(DisplayUnit::Millimetre);
        const auto read = TypedPlace::readPlace(text);
        CanvasHost::setDisplayUnit(DisplayUnit::Mil);
        QCOMPARE(read.has_value(), isPlace);
        QFETCH(bool, isRelative);
        QVERIFY(!isPlace || (isNear(read->point, place, 1e-6) && read->isRelative == isRelative));
    }

    /// What is shown in the user's language can be typed back.
    void whatIsShownIsRead()
    {
        QTranslator chinese;
        QVERIFY(chinese.load("workbench_zh_CN", TRANSLATION_DIR));
        for (const bool isChinese : {false, true}) {
            if (isChinese) {
                QCoreApplication::installTranslator(&chinese);
            }
            for (const CanvasHost::LengthUnit& unit : CanvasHost::lengthUnits()) {
                CanvasHost::setDisplayUnit(unit.unit);
                const QPointF point(2.5 * unit.micrometres, -4 * unit.micrometres);
                const QString shown = CanvasHost::lengthText(point);
                CanvasHost::setDisplayUnit(DisplayUnit::Mil);  // not the one shown
                const auto read = TypedPlace::readPlace(shown);
                QVERIFY2(read && isNear(read->point, point, 1e-6), qPrintable(shown));
            }
        }
        QCoreApplication::removeTranslator(&chinese);
    }

    void drawsOnTheGrid()
    {
        const Fixture fixture;
        fixture.describeLine();
        fixture.snap();
        fixture.move(7300, 10200);
        QVERIFY(fixture.mark());
        QCOMPARE(fixture.mark()->point, QPointF(7000, 10000));
        QCOMPARE(fixture.edit("m_pPositionLE").text(), QString("275.59, 393.70 mil"));
        fixture.click(7300, 10200);
        fixture.click(9400, 11600);
        QCOMPARE(fixture.pointsOf(3), (QVector<QPointF>{{7000, 10000}, {9000, 12000}}));
    }

    void drawsFromWhatIsThere()
    {
        const Fixture fixture;
        fixture.describeLine();
        fixture.snap();
        fixture.click(12080, 5060);
        fixture.click(15960, 4060);
        QCOMPARE(fixture.pointsOf(3), (QVector<QPointF>{{12030, 5020}, {16003, 4007}}));
    }

    void movesExactly_data()
    {
        QTest::addColumn<bool>("isDragged");
        QTest::newRow("two clicks") << false;
        QTest::newRow("dragged") << true;
    }
    void movesExactly()
    {
        QFETCH(bool, isDragged);
        const Fixture fixture;
        fixture.snap();
        fixture.receive(Sent::MoveFeature);
        fixture.move(16050, 4050);
        QVERIFY(!fixture.mark());  // a feature is picked where it is seen
        if (isDragged) {
            fixture.drag(16050, 4050, 14200, 7100);
        } else {
            fixture.click(16050, 4050);
            fixture.click(14200, 7100);
        }
        QCOMPARE(fixture.pointsOf(1), QVector<QPointF>{QPointF(14000, 7000)});
    }

    void stretchesExactly()
    {
        const Fixture fixture;
        fixture.snap();
        fixture.receive(Sent::StretchLine);
        fixture.click(11900, 5020);
        fixture.click(15100, 9080);
        QCOMPARE(fixture.pointsOf(0), (QVector<QPointF>{{2010, 5020}, {15000, 9000}}));
    }

    void picksWhatIsUnderTheMouse()
    {
        const Fixture fixture;
        fixture.setStep("5mm");
        fixture.snap();
        fixture.receive(Sent::FeatureSelection);
        fixture.click(16100, 4400);
        QCOMPARE(fixture.state().selected, Pcb::Indexes{1});
    }

    void offUntilItIsSwitchedOn()
    {
        const Fixture fixture;
        auto& button = findNamed<QToolButton>(*fixture.pane, "m_pSnapTB");
        fixture.describeLine();
        fixture.move(7300, 10200);
        QVERIFY(!fixture.mark());
        fixture.pane->window()->activateWindow();
        QTRY_VERIFY(fixture.pane->isActiveWindow());
        QTest::keyClick(&fixture.view(), Qt::Key_F9);
        QVERIFY(button.isChecked());
        QVERIFY(fixture.mark());  // at once, where the mouse is
        QTest::keyClick(&fixture.view(), Qt::Key_F9);
        QVERIFY(!button.isChecked());
        QVERIFY(!fixture.mark());
    }

    void theMarkIsSeen()
    {
        const Fixture fixture;
        fixture.describeLine();
        const auto countMarked = [&] {
            const QImage image = fixture.view().grab().toImage();
            int count = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    // Nothing else is violet.
                    const QColor colour = image.pixelColor(x, y);
                    count += colour.blue() > 150 && colour.red() > colour.green() + 30;
                }
            }
            return count;
        };
        fixture.move(7300, 10200);
        QCOMPARE(countMarked(), 0);
        fixture.snap();
        fixture.move(7400, 10200);
        QVERIFY(countMarked() > 20);
        const int cross = countMarked();
        fixture.move(12080, 5060);
        QVERIFY(countMarked() > cross);  // a square is more than a cross
        fixture.receive(Sent::FeatureSelection);
        QCOMPARE(countMarked(), 0);
    }

    void theStepIsInTheUsersUnit()
    {
        const Fixture fixture;
        QCOMPARE(fixture.edit("m_pGridStepLE").text(), QString("39.37 mil"));
        CanvasHost::setDisplayUnit(DisplayUnit::Millimetre);
        fixture.pane->overhear(Accepted::UnitChanged);
        QCOMPARE(fixture.edit("m_pGridStepLE").text(), QString("1.0000 mm"));
        fixture.setStep("0.25");
        QCOMPARE(fixture.pane->canvas().gridStep(), 250.0);
        for (const char* const wrong : {"x", "0", "-1", "0.0001", "1000"}) {
            fixture.setStep(wrong);
            QCOMPARE(fixture.pane->canvas().gridStep(), 250.0);
            QCOMPARE(fixture.edit("m_pGridStepLE").text(), QString("0.2500 mm"));
            QVERIFY(fixture.text("m_pCanvasStatusLB").contains("is not a grid step"));
        }
    }

    void typedPlacesAreClicks()
    {
        const Fixture fixture;
        fixture.snap();  // what is typed is exact
        fixture.describeLine();
        fixture.typePlace("1.234mm 2.345mm");
        fixture.typePlace("100 200");
        QCOMPARE(fixture.features().size(), size_t(4));
        QVERIFY(isNear(fixture.pointsOf(3)[0], {1234, 2345}, 1e-6));
        QVERIFY(isNear(fixture.pointsOf(3)[1], {2540, 5080}, 1e-6));
        fixture.receive(Sent::MoveFeature);
        fixture.typePlace("16mm 4mm");
        fixture.typePlace("17mm 4mm");
        QVERIFY(isNear(fixture.pointsOf(1)[0], {17003, 4007}, 1e-6));
    }

    void whatIsNoPlaceIsTold()
    {
        const Fixture fixture;
        fixture.describeLine();
        for (const QString text : {"1 2 3", "+5 +5"}) {
            fixture.typePlace(text);
            QVERIFY(
                fixture.text("m_pCanvasStatusLB").startsWith('"' + text + "\" is not a position"));
            QCOMPARE(fixture.text("m_pPickHintLB"), QString("Click the start."));
        }
    }

    void relativePlacesStartAtTheLastPoint()
    {
        const Fixture fixture;
        fixture.describeLine();
        fixture.typePlace("@5mm 5mm");
        QVERIFY(fixture.text("m_pCanvasStatusLB").startsWith("There is no last point yet"));
        fixture.typePlace("2mm 3mm");
        fixture.typePlace("@5mm -1mm");
        QVERIFY(isNear(fixture.pointsOf(3)[1], {7000, 2000}, 1e-6));
        fixture.typePlace("@0 1mm");  // from the end of the line
        fixture.typePlace("@100 0");
        QVERIFY(isNear(fixture.pointsOf(4)[0], {7000, 3000}, 1e-6));
        QVERIFY(isNear(fixture.pointsOf(4)[1], {9540, 3000}, 1e-6));
        QCOMPARE(fixture.text("m_pCanvasStatusLB"), QString());
    }

    void relativePlacesStartWhereAClickSnapped()
    {
        const Fixture fixture;
        fixture.snap();
        fixture.describeLine();
        fixture.click(7080, 8060);
        fixture.typePlace("@1mm 0");
        QVERIFY(isNear(fixture.pointsOf(3)[0], {7000, 8000}, 1e-6));
        QVERIFY(isNear(fixture.pointsOf(3)[1], {8000, 8000}, 1e-6));
        fixture.receive(Sent::MoveFeature);
        fixture.click(16100, 4100);  // the pad's centre
        fixture.typePlace("@1mm 0");
        QVERIFY(isNear(fixture.pointsOf(1)[0], {17003, 4007}, 1e-6));
    }

    void relativePlacesStartWhereALineWasLedTo()
    {
        const Fixture fixture;
        QMap<QString, QVariant> record{{RecordKeys::features, FeatureKind::line.toInt()},
                                       {RecordKeys::line, LineKind::polyline},
                                       {RecordKeys::angleGroup, LineDirection::horizontal.toInt()},
                                       {RecordKeys::symbolText, QString("r10")}};
        fixture.receive(Sent::Record, 0, record);
        fixture.typePlace("2mm 3mm");
        fixture.typePlace("6mm 9mm");  // is led to 6 3
        record[RecordKeys::angleGroup] = LineDirection::free.toInt();
        fixture.receive(Sent::DirectionRecord, 0, record);
        fixture.typePlace("@0 1mm");
        fixture.rightClick(1000, 13000);
        QVERIFY(isNear(fixture.pointsOf(4)[0], {6000, 3000}, 1e-6));
        QVERIFY(isNear(fixture.pointsOf(4)[1], {6000, 4000}, 1e-6));
    }

    void anEndIsPulledFromWhereItIs()
    {
        const Fixture fixture;
        fixture.receive(Sent::StretchLine);
        fixture.click(12080, 5060);
        fixture.typePlace("@1mm 2mm");
        QVERIFY(isNear(fixture.pointsOf(0)[1], {13030, 7020}, 1e-6));
    }

    void theLastPointIsThatOfTheBoard()
    {
        const Fixture fixture;
        fixture.describeLine();
        fixture.typePlace("2mm 3mm");
        fixture.document().replace({"job", "step", {}, board()});
        fixture.typePlace("@1mm 0");
        QVERIFY(fixture.text("m_pCanvasStatusLB").startsWith("There is no last point yet"));
        fixture.typePlace("9000mm 0");
        fixture.typePlace("@2000mm 0");
        QCOMPARE(fixture.text("m_pCanvasStatusLB"),
                 QString("A position is less than ten metres from 0."));
        QCOMPARE(fixture.features().size(), size_t(3));
    }

    void whatIsBeingTypedStays()
    {
        const Fixture fixture;
        auto& position = fixture.edit("m_pPositionLE");
        fixture.move(7000, 7000);
        fixture.pane->window()->activateWindow();
        QTRY_VERIFY(fixture.pane->isActiveWindow());
        QTest::mouseClick(&position, Qt::LeftButton);
        QTRY_COMPARE(position.selectedText(), position.text());  // typed over
        QTest::keyClicks(&position, "12");
        fixture.move(9000, 7000);
        QCOMPARE(position.text(), QString("12"));
        QTest::keyClick(&position, Qt::Key_Escape);
        QVERIFY(fixture.view().hasFocus());
        QCOMPARE(position.text(),
                 CanvasHost::lengthText(fixture.view().boardPoint(fixture.at(9000, 7000))));
    }
};

CTS_TEST(TestExact);
#include "test_exact.moc"
