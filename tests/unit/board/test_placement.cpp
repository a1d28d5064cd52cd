#include "CoveredArea.h"
#include "Main.h"
#include "SamePoint.h"
#include "board/Paths.h"
#include "board/Placement.h"

#include <QtMath>

using namespace Pcb;

namespace {

Brush lineBrush(LineMode mode)
{
    Brush brush;
    brush.line = mode;
    return brush;
}

Brush arcBrush(ArcMethod method, bool clockwise)
{
    Brush brush;
    brush.kind = Kind::Arc;
    brush.arcMethod = method;
    brush.clockwise = clockwise;
    return brush;
}

/// What a brush makes of these clicks, the last of which completes it.
Features placed(const Brush& brush, const QVector<QPointF>& clicks)
{
    Placement placement;
    placement.setBrush(brush);
    Features features;
    for (const QPointF& click : clicks) {
        if (!features.empty()) {
            return {};
        }
        features = placement.press(click);
    }
    return features;
}

QVector<QPointF> pointsOf(const Feature& feature)
{
    return feature.geometry().points;
}

/// An arc that starts at 1000, 0, and what becomes of its other two clicks.
struct PlacedArc {
    explicit PlacedArc(const char* itsName = "", ArcMethod itsMethod = ArcMethod::StartCenterEnd)
        : name(itsName), method(itsMethod)
    {
    }
    PlacedArc& clockwise() { return isClockwise = true, *this; }
    PlacedArc& through(QPointF click, QPointF lastClick)
    {
        return second = click, third = lastClick, *this;
    }
    PlacedArc& around(QPointF place) { return centre = place, *this; }
    PlacedArc& sweeps(double degrees) { return sweep = degrees, *this; }

    const char* name;
    ArcMethod method;
    bool isClockwise = false;
    QPointF second;
    QPointF third;
    QPointF centre;
    double sweep = 0;
};

}  // namespace
Q_DECLARE_METATYPE(PlacedArc)

class TestPlacement : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void singleLine()
    {
        Placement placement;
        placement.setBrush(lineBrush(LineMode::Single));
        QVERIFY(placement.press({100, 200}).empty());
        QVERIFY(placement.isActive());
        QVERIFY(placement.press({100, 200}).empty());  // no line of zero length
        placement.move({400, 600});
        QCOMPARE(placement.preview().size(), size_t(1));
        const Features line = placement.press({400, 600});
        QCOMPARE(line.size(), size_t(1));
        QCOMPARE(pointsOf(line[0]), QVector<QPointF>({{100, 200}, {400, 600}}));
        QVERIFY(!placement.isActive());
        placement.press({1, 1});
        QVERIFY(placement.finish().empty());
        QVERIFY(!placement.isActive());
    }

    void polyline()
    {
        for (const bool closed : {false, true}) {
            Brush brush = lineBrush(LineMode::Polyline);
            brush.closed = closed;
            brush.positive = false;
            brush.attributes = {{QStringLiteral(".net"), QStringLiteral("A")}};
            Placement placement;
            placement.setBrush(brush);
            for (const QPointF& corner : {QPointF(0, 0), QPointF(1000, 0), QPointF(1000, 500)}) {
                QVERIFY(placement.press(corner).empty());
            }
            const Features lines = placement.finish();
            QCOMPARE(lines.size(), size_t(closed ? 3 : 2));
            QCOMPARE(pointsOf(lines[1]), QVector<QPointF>({{1000, 0}, {1000, 500}}));
            QCOMPARE(lines[1].net(), QStringLiteral("A"));
            QVERIFY(!lines[1].isPositive());
            if (closed) {
                QCOMPARE(pointsOf(lines[2]), QVector<QPointF>({{1000, 500}, {0, 0}}));
            }
            QVERIFY(placement.finish().empty());
        }
    }

    void directions_data()
    {
        QTest::addColumn<int>("direction");
        QTest::addColumn<QPointF>("end");
        QTest::newRow("free") << int(Direction::Free) << QPointF(310, 90);
        QTest::newRow("vertical") << int(Direction::Vertical) << QPointF(10, 90);
        QTest::newRow("horizontal") << int(Direction::Horizontal) << QPointF(310, 20);
        QTest::newRow("eight") << int(Direction::EightDirections) << QPointF(310, 20);
        QTest::newRow("fixed") << int(Direction::Fixed) << QPointF(195, 205);
    }

    void directions()
    {
        QFETCH(int, direction);
        QFETCH(QPointF, end);
        Placement placement;
        placement.setBrush(lineBrush(LineMode::Single));
        placement.press({10, 20});
        placement.setDirection(static_cast<Direction>(direction), 45);
        QVERIFY(placement.isActive());
        const Features line = placement.press({310, 90});
        QCOMPARE(line.size(), size_t(1));
        QVERIFY(same(pointsOf(line[0])[1], end));
    }

    void verticalThenHorizontal()
    {
        Brush brush = lineBrush(LineMode::Single);
        brush.direction = Direction::VerticalThenHorizontal;
        const Features lines = placed(brush, {{10, 20}, {300, 90}});
        QCOMPARE(lines.size(), size_t(2));
        QCOMPARE(pointsOf(lines[0]), QVector<QPointF>({{10, 20}, {10, 90}}));
        QCOMPARE(pointsOf(lines[1]), QVector<QPointF>({{10, 90}, {300, 90}}));
        brush.line = LineMode::Polyline;
        Placement placement;
        placement.setBrush(brush);
        placement.press({0, 0});
        placement.press({100, 100});
        placement.press({100, 300});
        QCOMPARE(placement.finish().size(), size_t(3));
    }

    void rectangles_data()
    {
        QTest::addColumn<int>("corner");
        QTest::addColumn<double>("radius");
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("arcs");
        QTest::addColumn<double>("lineLength");
        QTest::newRow("straight") << int(Corner::Straight) << 100.0 << 4 << 0 << 2800.0;
        QTest::newRow("round") << int(Corner::Round) << 100.0 << 4 << 4 << 2000.0;
        QTest::newRow("round, no radius") << int(Corner::Round) << 0.0 << 4 << 0 << 2800.0;
        QTest::newRow("round, too large") << int(Corner::Round) << 9000.0 << 2 << 4 << 1200.0;
        QTest::newRow("chamfer") << int(Corner::Chamfer) << 100.0 << 8 << 0 << 2000 + 400 * M_SQRT2;
        QTest::newRow("oblong") << int(Corner::Oblong) << 100.0 << 2 << 4 << 1200.0;
    }

    void rectangles()
    {
        QFETCH(int, corner);
        QFETCH(double, radius);
        QFETCH(int, lines);
        QFETCH(int, arcs);
        QFETCH(double, lineLength);
        Brush brush = lineBrush(LineMode::Rectangle);
        brush.corner = static_cast<Corner>(corner);
        brush.cornerRadius = radius;
        const Features outline = placed(brush, {{1000, 400}, {0, 0}});
        int found[2] = {};
        double length = 0;
        QRectF bounds;
        QPointF last = pointsOf(outline.back())[1];
        for (const Feature& feature : outline) {
            const bool isArc = feature.kind() == Kind::Arc;
            ++found[isArc ? 1 : 0];
            const QVector<QPointF> points = pointsOf(feature);
            QVERIFY(same(points[0], last));
            last = points[1];
            length += isArc ? 0 : distance(points[0], points[1]);
            bounds |= feature.bounds();
        }
        QCOMPARE(found[0], lines);
        QCOMPARE(found[1], arcs);
        QCOMPARE(length, lineLength);
        QVERIFY(same(bounds.topLeft(), {-127, -127}) && same(bounds.bottomRight(), {1127, 527}));
        QVERIFY(placed(brush, {{0, 0}, {0, 400}}).empty());
    }

    void slot()
    {
        Brush brush = lineBrush(LineMode::Slot);
        brush.slotLength = 2000;
        brush.slotAngle = 90;
        brush.slotPlated = false;
        brush.slotDecode = QStringLiteral("7");
        const Features slot = placed(brush, {{5000, 5000}});
        QCOMPARE(slot.size(), size_t(1));
        QVERIFY(same(pointsOf(slot[0])[0], {5000, 4000}));
        QVERIFY(same(pointsOf(slot[0])[1], {5000, 6000}));
        QCOMPARE(slot[0].attributes().value(QStringLiteral(".drill")),
                 QStringLiteral("non_plated"));
        QCOMPARE(slot[0].attributes().value(QStringLiteral(".slot_decode")), QStringLiteral("7"));
    }

    void padArrays()
    {
        Brush brush;
        brush.kind = Kind::Pad;
        brush.symbol = QStringLiteral("rect20x40");
        brush.padNx = 3;
        brush.padNy = 2;
        brush.padDx = 1000;
        brush.padDy = -2000;
        brush.rotation = 90;
        brush.mirror = true;
        brush.padXScale = 2;
        const Features pads = placed(brush, {{100, 200}});
        QCOMPARE(pads.size(), size_t(6));
        QCOMPARE(pointsOf(pads[0])[0], QPointF(100, 200));
        QCOMPARE(pointsOf(pads[5])[0], QPointF(2100, -1800));
        QCOMPARE(pads[5].geometry().rotation, 90.0);
        QVERIFY(pads[5].geometry().mirror);
        QCOMPARE(pads[5].bounds().size(), QSizeF(40 * 25.4, 40 * 25.4));
        Placement placement;
        placement.setBrush(brush);
        QVERIFY(placement.preview().empty());
        placement.move({0, 0});
        QCOMPARE(placement.preview().size(), size_t(6));
        QVERIFY(!placement.isActive());
    }

    void surfaces()
    {
        Brush brush;
        brush.kind = Kind::Surface;
        Features made = placed(brush, {{300, 200}, {100, 100}});
        QCOMPARE(coveredArea(made.at(0).area()), 200.0 * 100);
        brush.surface = SurfaceShape::Circle;
        made = placed(brush, {{0, 0}, {0, 500}});
        QCOMPARE(made.at(0).bounds().toRect(), QRect(-500, -500, 1000, 1000));
        brush.surface = SurfaceShape::Polygon;
        Placement placement;
        placement.setBrush(brush);
        for (const QPointF& corner : {QPointF(0, 0), QPointF(100, 0), QPointF(100, 100)}) {
            QVERIFY(placement.press(corner).empty());
        }
        made = placement.finish();
        QCOMPARE(made.size(), size_t(1));
        QCOMPARE(coveredArea(made[0].area()), 5000.0);
    }

    void fillCompletesASurface()
    {
        Brush brush;
        brush.kind = Kind::Surface;
        brush.surface = SurfaceShape::Polygon;
        Placement placement;
        placement.setBrush(brush);
        QVERIFY(placement.fill().empty());
        placement.press({0, 0});
        QVERIFY(placement.fill().empty());
        QVERIFY(placement.isActive());
        placement.press({100, 0});
        placement.move({0, 60});
        Features made = placement.fill();
        QCOMPARE(made.size(), size_t(1));
        QCOMPARE(coveredArea(made[0].area()), 3000.0);
        QVERIFY(!placement.isActive());
        brush.surface = SurfaceShape::Rectangle;
        placement.setBrush(brush);
        placement.press({0, 0});
        placement.move({10, 20});
        made = placement.fill();
        QCOMPARE(coveredArea(made.at(0).area()), 200.0);
        placement.setBrush(lineBrush(LineMode::Single));
        placement.press({0, 0});
        QVERIFY(placement.fill().empty());
        QVERIFY(placement.isActive());
    }

    void arcs_data()
    {
        QTest::addColumn<PlacedArc>("arc");
        const QPointF origin(0, 0);
        const QPointF top(0, 1000);
        const QVector<PlacedArc> arcs = {
            PlacedArc("start, center, end", ArcMethod::StartCenterEnd)
                .through(origin, {0, 5})
                .sweeps(90),
            PlacedArc("start, center, end, clockwise", ArcMethod::StartCenterEnd)
                .clockwise()
                .through(origin, {0, 5})
                .sweeps(-270),
            PlacedArc("start, end, edge, clockwise", ArcMethod::StartEndEdge)
                .clockwise()
                .through(top, polar(origin, 1000, 30))
                .sweeps(90),
            PlacedArc("start, end, edge on the far side", ArcMethod::StartEndEdge)
                .through(top, polar(origin, 1000, 200))
                .sweeps(-270),
            PlacedArc("start, end, center", ArcMethod::StartEndCenter)
                .through(top, {200, 200})
                .around({200, 200})
                .sweeps(118.07248693585),
            PlacedArc("start, end, center aside", ArcMethod::StartEndCenter)
                .through(top, {300, -300})
                .sweeps(90),
            PlacedArc("start, center, angle", ArcMethod::StartCenterAngle)
                .through(origin, polar(origin, 7, 33.4))
                .sweeps(33),
            PlacedArc("start, center, angle, clockwise", ArcMethod::StartCenterAngle)
                .clockwise()
                .through(origin, polar(origin, 7, 33.4))
                .sweeps(-327),
            PlacedArc("start, center, length", ArcMethod::StartCenterLength)
                .through(origin, {1000, 500})
                .sweeps(28.64788976),
            PlacedArc("start, center, length of the whole circle", ArcMethod::StartCenterLength)
                .clockwise()
                .through(origin, {9000, 0})
                .sweeps(-360),
            PlacedArc("start, end, angle", ArcMethod::StartEndAngle)
                .through(top, {1000, 50})
                .sweeps(90),
            PlacedArc("start, end, angle, clockwise", ArcMethod::StartEndAngle)
                .clockwise()
                .through(top, {1000, 50})
                .around({1000, 1000})
                .sweeps(-90),
            PlacedArc("start, end, radius", ArcMethod::StartEndRadius)
                .through(top, {1000, 1000})
                .sweeps(90),
            PlacedArc("start, end, least radius", ArcMethod::StartEndRadius)
                .clockwise()
                .through({0, 0}, {1, 0})
                .around({500, 0})
                .sweeps(-180),
        };
        for (const PlacedArc& arc : arcs) {
            QTest::newRow(arc.name) << arc;
        }
    }

    void arcs()
    {
        QFETCH(PlacedArc, arc);
        const QPointF start(1000, 0);
        const Features made =
            placed(arcBrush(arc.method, arc.isClockwise), {start, arc.second, arc.third});
        QCOMPARE(made.size(), size_t(1));
        const ArcPlace place = arcPlace(made[0].geometry());
        QVERIFY2(same(place.centre, arc.centre),
                 qPrintable(QStringLiteral("%1 %2").arg(place.centre.x()).arg(place.centre.y())));
        QVERIFY2(std::abs(place.sweep - arc.sweep) < 1e-6,
                 qPrintable(QString::number(place.sweep)));
        QVERIFY(same(pointsOf(made[0])[0], start));
    }

    void circles()
    {
        Brush brush = arcBrush(ArcMethod::StartCenterEnd, true);
        brush.circle = true;
        const auto check = [&brush](CircleMethod method, const QVector<QPointF>& clicks,
                                    const QPointF& start) {
            brush.circleMethod = method;
            const Features made = placed(brush, clicks);
            if (made.size() != 1) {
                return false;
            }
            const ArcPlace place = arcPlace(made[0].geometry());
            return same(place.centre, {0, 0}) && std::abs(place.radius - 500) < 1e-6 &&
                   place.sweep == -360 && same(pointsOf(made[0])[0], start);
        };
        QVERIFY(check(CircleMethod::CenterRadius, {{0, 0}, {0, 500}}, {500, 0}));
        QVERIFY(check(CircleMethod::CenterPoint, {{0, 0}, {0, 500}}, {0, 500}));
        QVERIFY(check(CircleMethod::PointCenter, {{0, -500}, {0, 0}}, {0, -500}));
        QVERIFY(check(CircleMethod::ThreePoints, {{500, 0}, {0, 500}, {-500, 0}}, {500, 0}));
        brush.circleMethod = CircleMethod::ThreePoints;
        QVERIFY(placed(brush, {{0, 0}, {100, 0}, {200, 0}}).empty());
    }

    void clicksThatMakeNothingAreNotTaken()
    {
        Placement placement;
        placement.setBrush(arcBrush(ArcMethod::StartEndEdge, false));
        placement.press({0, 0});
        placement.press({100, 0});
        QVERIFY(placement.press({50, 0}).empty());
        QCOMPARE(placement.points().size(), 2);
        QCOMPARE(placement.press({50, 50}).size(), size_t(1));
        QVERIFY(placement.press({qQNaN(), 0}).empty());
        QVERIFY(!placement.isActive());
    }

    void brushesKeepOrDropClicks()
    {
        Brush brush = lineBrush(LineMode::Polyline);
        Placement placement;
        placement.setBrush(brush);
        placement.press({0, 0});
        brush.symbol = QStringLiteral("r30");
        placement.setBrush(brush);
        QVERIFY(placement.isActive());
        brush.line = LineMode::Single;
        placement.setBrush(brush);
        QVERIFY(!placement.isActive());
    }

    void texts()
    {
        Brush brush;
        brush.kind = Kind::Text;
        brush.text.content = QStringLiteral("$$job");
        brush.rotation = 90;
        Placement placement;
        placement.setBrush(brush);
        placement.setSpecialTexts({{QStringLiteral("JOB"), QStringLiteral("demo")}});
        const Features text = placement.press({1000, 2000});
        QCOMPARE(text.size(), size_t(1));
        QCOMPARE(text[0].geometry().text.content, QStringLiteral("demo"));
        QVERIFY(text[0].bounds().right() < 1000 + 305 && text[0].bounds().bottom() > 20000);
        brush.text.content.clear();
        placement.setBrush(brush);
        QVERIFY(placement.press({0, 0}).empty());
    }
};

CTS_TEST(TestPlacement);
#include "test_placement.moc"
