#include "CoveredArea.h"
#include "Main.h"
#include "board/Feature.h"
#include "board/Paths.h"
#include "board/Symbol.h"

#include <QRandomGenerator>
#include <QtMath>

using namespace Pcb;

namespace {

constexpr double mil = 25.4;

/// Within a fraction of `expected`, for areas with curves, which are flattened.
bool isAbout(double value, double expected, double part = 1e-3)
{
    return std::abs(value - expected) <= std::abs(expected) * part + 1e-6;
}

QPolygonF regular(const QPointF& centre, double radius, int corners, double turn = 1)
{
    QPolygonF polygon;
    for (int i = 0; i < corners; ++i) {
        polygon.append(polar(centre, radius, turn * 360 * i / corners));
    }
    return polygon;
}

/// Many outlines, most of which overlap, among them `others` that are not convex counterclockwise.
QPainterPath crowd(Qt::FillRule rule, int others)
{
    QRandomGenerator random(5);
    QPainterPath path;
    path.setFillRule(rule);
    const auto place = [&random] {
        return QPointF(random.bounded(20000.0), random.bounded(20000.0));
    };
    for (int i = 0; i < 1000; ++i) {
        path.addPolygon(regular(place(), 100 + random.bounded(400.0), 12));
        path.closeSubpath();
    }
    for (int i = 0; i < others; ++i) {
        path.addPolygon(regular(place(), 1500, 12, -1));
        path.closeSubpath();
        path.addPolygon(regular(place(), 1500, 5, 2));  // a star
        path.closeSubpath();
    }
    return path;
}

}  // namespace

Q_DECLARE_METATYPE(QVector<QPointF>)
Q_DECLARE_METATYPE(QPainterPath)

class TestShapes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void symbols_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSizeF>("size");  // mil
        QTest::addColumn<double>("area");  // square mil
        QTest::addColumn<QVector<QPointF>>("inside");
        QTest::addColumn<QVector<QPointF>>("outside");
        const auto row = [](const char* name, QSizeF size, double area, QVector<QPointF> inside,
                            QVector<QPointF> outside) {
            QTest::newRow(name) << QString::fromLatin1(name) << size << area << inside << outside;
        };
        const double regular = 2 * (M_SQRT2 - 1);  // a regular octagon's area over its square's
        row("r100", {100, 100}, M_PI * 2500, {{0, 0}, {49, 0}, {34, 34}}, {{37, 37}, {51, 0}});
        row("s40", {40, 40}, 1600, {{19, 19}, {-19, 19}}, {{21, 0}});
        row("rect20x40", {20, 40}, 800, {{9, 19}, {-9, -19}}, {{11, 0}, {0, 21}});
        row("rect20.5x40", {20.5, 40}, 820, {{10, 0}}, {{10.5, 0}});
        row("oval20x40", {20, 40}, 20 * 20 + M_PI * 100, {{9, 9}, {0, 19}}, {{9, 19}});
        row("oval40x20", {40, 20}, 20 * 20 + M_PI * 100, {{9, 9}, {19, 0}}, {{19, 9}});
        row("diamond20x40", {20, 40}, 400, {{0, 19}, {9, 0}}, {{6, 11}});
        row("octagon100x100", {100, 100}, 10000 * regular, {{49, 20}, {34, 34}}, {{36, 36}});
        row("octagon80x50x10", {80, 50}, 80 * 50 - 200, {{39, 14}, {34, 19}}, {{36, 20}});
        row("hexagon80x60", {80, 60}, 80 * 60 * 0.75, {{39, 0}, {19, 29}}, {{31, 20}});
        row("hexagon80x60x10", {80, 60}, 80 * 60 - 2 * 10 * 30, {{29, 29}}, {{36, 20}});
        row("triangle60x40", {60, 40}, 1200, {{0, 19}, {-28, -19}, {28, -19}}, {{16, 0}, {0, 21}});
        row("ellipse80x50", {80, 50}, M_PI * 1000, {{39, 0}, {0, 24}}, {{30, 17}});
        row("ring_r60x30", {60, 60}, M_PI * (900 - 225), {{16, 0}, {0, -29}}, {{0, 0}, {14, 0}});
        row("ring_s60x30", {60, 60}, 3600 - 900, {{16, 0}, {29, 29}}, {{0, 0}, {14, 14}});
        row("rect20x40_90", {40, 20}, 800, {{19, 9}}, {{0, 11}});
        row("triangle60x40_90", {40, 60}, 1200, {{-19, 0}, {19, 28}}, {{-19, 5}});
    }

    void symbols()
    {
        QFETCH(QString, name);
        QFETCH(QSizeF, size);
        QFETCH(double, area);
        QFETCH(QVector<QPointF>, inside);
        QFETCH(QVector<QPointF>, outside);
        const QPainterPath shape = symbolShape(name);
        const QRectF box = shape.boundingRect();
        QVERIFY(isAbout(box.width(), size.width() * mil, 1e-6));
        QVERIFY(isAbout(box.height(), size.height() * mil, 1e-6));
        QVERIFY(distance(box.center(), {0, 0}) < 1e-6);
        QVERIFY2(isAbout(coveredArea(shape), area * mil * mil),
                 qPrintable(QString::number(coveredArea(shape) / mil / mil)));
        for (const QPointF& point : inside) {
            QVERIFY2(shape.contains(point * mil), qPrintable(QString::number(point.x())));
        }
        for (const QPointF& point : outside) {
            QVERIFY2(!shape.contains(point * mil), qPrintable(QString::number(point.x())));
        }
    }

    void otherNamesAreSpecial()
    {
        for (const char* name :
             {"logo", "", "r0", "rect20", "r-5", "ring_r30x60", "R10", "r10x20", "r50001"}) {
            QCOMPARE(parseSymbol(QString::fromLatin1(name)).shape, SymbolShape::Special);
            QCOMPARE(symbolShape(QString::fromLatin1(name)).boundingRect().width(), 60 * mil);
        }
        QCOMPARE(parseSymbol(QStringLiteral("r50000")).width, largestSymbolSize * mil);
    }

    void suffixIsTakenOff()
    {
        QCOMPARE(withoutRotation(QStringLiteral("rect20x40_45")), QStringLiteral("rect20x40"));
        QCOMPARE(withoutRotation(QStringLiteral("thermal_4")), QStringLiteral("thermal_4"));
        QCOMPARE(withoutRotation(QStringLiteral("ring_r60x30")), QStringLiteral("ring_r60x30"));
        QCOMPARE(parseSymbol(QStringLiteral("s10_405")).rotation, 45.0);
    }

    void anglesAndSweeps()
    {
        QCOMPARE(angleOf({0, 0}, {0, 5}), 90.0);
        QCOMPARE(angleOf({0, 0}, {1, -1}), 315.0);
        QCOMPARE(angleOf({3, 3}, {3, 3}), 0.0);
        QCOMPARE(sweepBetween(350, 10, false), 20.0);
        QCOMPARE(sweepBetween(350, 10, true), 340.0);
        QCOMPARE(sweepBetween(30, 30, false), 360.0);
        QCOMPARE(turned({2, 1}, {1, 1}, 90), QPointF(1, 2));
        QCOMPARE(distanceToSegment({0, 5}, {-1, 0}, {1, 0}), 5.0);
        QCOMPARE(distanceToSegment({4, 4}, {-1, 0}, {1, 0}), 5.0);
        const QPainterPath quarter = arcPath({0, 0}, 10, 0, 90);
        QVERIFY(distance(quarter.elementAt(0), {10, 0}) < 1e-9);
        QVERIFY(distance(quarter.currentPosition(), {0, 10}) < 1e-9);
    }

    void hullAndAreas()
    {
        const QPolygonF hull =
            convexHull(QPolygonF() << QPointF(0, 0) << QPointF(4, 0) << QPointF(2, 1)
                                   << QPointF(4, 4) << QPointF(0, 4) << QPointF(2, 0));
        QCOMPARE(hull.size(), 4);
        QCOMPARE(signedArea(hull), 16.0);
        QCOMPARE(convexHull(QPolygonF() << QPointF(1, 1) << QPointF(1, 1)).size(), 1);
    }

    void islandsAndCuts()
    {
        QPainterPath path;
        path.addRect(0, 0, 1000, 1000);
        path.addRect(100, 100, 300, 300);
        path.addRect(600, 200, 300, 300);
        path.addRect(150, 150, 100, 100);  // an island in the first hole
        const QVector<Island> found = islands(path);
        QCOMPARE(found.size(), 2);
        const Island& outer = found.at(0).holes.size() == 2 ? found.at(0) : found.at(1);
        const Island& inner = found.at(0).holes.size() == 2 ? found.at(1) : found.at(0);
        QCOMPARE(outer.holes.size(), 2);
        QCOMPARE(signedArea(outer.outline), 1e6);
        QCOMPARE(signedArea(outer.holes.first()), -9e4);
        QCOMPARE(signedArea(inner.outline), 1e4);
        QVERIFY(inner.holes.isEmpty());
        const QPolygonF cut = cutOpen(outer);
        QCOMPARE(cut.size(), 4 + 2 * (4 + 3));
        QCOMPARE(signedArea(cut), 1e6 - 2 * 9e4);
        QCOMPARE(coveredArea(path), 1e6 - 2 * 9e4 + 1e4);
        QCOMPARE(coveredArea(byWinding(path)), coveredArea(path));
        QCOMPARE(byWinding(path).fillRule(), Qt::WindingFill);
        QVERIFY(!byWinding(path).contains(QPointF(120, 120)));
    }

    void crowdsCoverTheSame_data()
    {
        QTest::addColumn<QPainterPath>("path");
        QTest::newRow("odd-even") << crowd(Qt::OddEvenFill, 0);
        QTest::newRow("winding") << crowd(Qt::WindingFill, 0);
        QTest::newRow("winding both ways") << crowd(Qt::WindingFill, 20);
    }

    void crowdsCoverTheSame()
    {
        QFETCH(QPainterPath, path);
        const QPainterPath same = byWinding(path);
        QRandomGenerator random(6);
        int covered = 0;
        int differing = 0;
        for (int i = 0; i < 700; ++i) {
            const QPointF point(random.bounded(20000.0), random.bounded(20000.0));
            covered += path.contains(point) ? 1 : 0;
            differing += path.contains(point) != same.contains(point) ? 1 : 0;
        }
        QVERIFY2(covered > 70 && covered < 630, qPrintable(QString::number(covered)));
        QCOMPARE(differing, 0);
    }

    void outlinesThatTouchAreOneIsland()
    {
        QPainterPath path;
        for (int i = 0; i < 400; ++i) {
            path.addRect(i % 20 * 100, i / 20 * 100, 100, 100);
        }
        path.addRect(2000.002, 0, 100, 100);
        QCOMPARE(islands(path).size(), 2);
        path.addRect(1900, -100, 200, 100);
        QCOMPARE(islands(path).size(), 1);
    }

    void nearness()
    {
        const QPainterPath ring = symbolShape(QStringLiteral("ring_r60x30"));
        QVERIFY(!isNear(ring, {0, 0}, 14 * mil));
        QVERIFY(isNear(ring, {0, 0}, 15.01 * mil));
        QVERIFY(isNear(ring, {31 * mil, 0}, 1.01 * mil));
        QVERIFY(!isNear(ring, {31 * mil, 0}, 0.9 * mil));
        QVERIFY(!isNear(QPainterPath(), {0, 0}, 10));
    }

    void lines()
    {
        const Feature line(lineGeometry(QStringLiteral("r10"), {0, 0}, {1000, 0}));
        QCOMPARE(line.bounds().toRect(), QRectF(-127, -127, 1254, 254).toRect());
        QVERIFY(isAbout(coveredArea(line.area()), 254 * 1000 + M_PI * 127 * 127));
        const Feature dot(lineGeometry(QStringLiteral("r10"), {5, 5}, {5, 5}));
        QVERIFY(isAbout(coveredArea(dot.area()), M_PI * 127 * 127, 3e-3));
        const Feature swept(lineGeometry(QStringLiteral("s10"), {0, 0}, {1000, 1000}));
        QVERIFY(isAbout(coveredArea(swept.area()), 254 * 254 + 2 * 254 * 1000, 1e-9));
        QVERIFY(swept.area().contains(QPointF(1120, 1120)));
    }

    void arcs()
    {
        const auto areaOfArc = [](const Geometry& geometry) {
            return coveredArea(Feature(geometry).area());
        };
        const QString pen = QStringLiteral("r10");
        const double ends = M_PI * 127 * 127;
        const Geometry quarter = arcGeometry(pen, {1000, 0}, {0, 1000}, {0, 0}, false);
        QVERIFY(isAbout(areaOfArc(quarter), M_PI / 2 * 1000 * 254 + ends, 3e-3));
        QVERIFY(Feature(quarter).area().contains(polar({0, 0}, 1000, 45)));
        QVERIFY(!Feature(quarter).area().contains(polar({0, 0}, 1000, 225)));
        const Geometry rest = arcGeometry(pen, {1000, 0}, {0, 1000}, {0, 0}, true);
        QVERIFY(isAbout(areaOfArc(rest), 3 * M_PI / 2 * 1000 * 254 + ends, 3e-3));
        QVERIFY(Feature(rest).area().contains(polar({0, 0}, 1000, 225)));
        const Geometry circle = arcGeometry(pen, {1000, 0}, {1000, 0}, {0, 0}, true);
        QVERIFY(isAbout(areaOfArc(circle), 2 * M_PI * 1000 * 254, 3e-3));
        QVERIFY(!Feature(circle).area().contains(QPointF(0, 0)));
        const Geometry small = arcGeometry(pen, {100, 0}, {100, 0}, {0, 0}, true);
        QVERIFY(isAbout(areaOfArc(small), M_PI * 227 * 227, 3e-3));
    }

    /// The pen of a small arc reaches beyond its centre.
    void smallArcsCoverWhatTheirPenCovers()
    {
        for (const double radius : {1.0, 60.0, 126.9, 127.0, 127.1}) {
            for (int degrees = 15; degrees < 360; degrees += 15) {
                for (const bool clockwise : {false, true}) {
                    const QPointF end = polar({}, radius, degrees);
                    const Feature arc(
                        arcGeometry(QStringLiteral("r10"), {radius, 0}, end, {0, 0}, clockwise));
                    const double stroked = coveredArea(roundStroke(middleOf(arc.geometry()), 254));
                    QVERIFY2(isAbout(coveredArea(arc.area()), stroked, 5e-3),
                             qPrintable(QStringLiteral("%1 %2").arg(radius).arg(degrees)));
                }
            }
        }
    }

    void padsAreMirroredThenTurned()
    {
        Geometry pad = padGeometry(QStringLiteral("triangle60x40"), {10000, 5000});
        pad.xScale = 2;
        QCOMPARE(Feature(pad).bounds().width(), 120 * mil);
        pad.xScale = 1;
        pad.rotation = 90;
        // The tip, up before, points left after a quarter turn counterclockwise.
        QVERIFY(Feature(pad).area().contains(QPointF(10000 - 19 * mil, 5000)));
        pad.rotation = 0;
        pad.symbol = QStringLiteral("triangle60x40_90");
        pad.mirror = true;
        QVERIFY(Feature(pad).area().contains(QPointF(10000 + 19 * mil, 5000)));
    }

    void surfaces()
    {
        const Feature square(surfaceGeometry({{0, 0}, {100, 0}, {100, 100}, {0, 100}}));
        QCOMPARE(coveredArea(square.area()), 1e4);
        const Feature disc(discGeometry({50, 50}, {50, 150}));
        QVERIFY(isAbout(coveredArea(disc.area()), M_PI * 1e4, 1e-2));
        QCOMPARE(disc.bounds().center(), QPointF(50, 50));
    }

    void unusableGeometryCoversNothing()
    {
        QVERIFY(Feature(surfaceGeometry({{0, 0}, {1, 1}})).area().isEmpty());
        QVERIFY(
            Feature(lineGeometry(QStringLiteral("r10"), {0, 0}, {qQNaN(), 0})).area().isEmpty());
        QVERIFY(Feature(padGeometry(QStringLiteral("r10"), {qInf(), 0})).area().isEmpty());
        QVERIFY(Feature().area().isEmpty());
    }

    void copiesAreEqual()
    {
        Geometry pad = padGeometry(QStringLiteral("r10"), {1, 2});
        pad.attributes.insert(QStringLiteral(".net"), QStringLiteral("GND"));
        const Feature feature(pad);
        QVERIFY(feature == Feature(feature));
        QCOMPARE(feature.net(), QStringLiteral("GND"));
        pad.positive = false;
        QVERIFY(!(feature == Feature(pad)));
    }
};

CTS_TEST(TestShapes);
#include "test_shapes.moc"
