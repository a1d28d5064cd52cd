#include "Main.h"
#include "SamePoint.h"
#include "board/Areas.h"
#include "board/Board.h"
#include "board/EditOps.h"
#include "board/Paths.h"

using namespace Pcb;

namespace {

const QString pen = QStringLiteral("r10");  // 254 micrometres

Feature line(const QPointF& from, const QPointF& to)
{
    return Feature(lineGeometry(pen, from, to));
}

Feature square(double left, double bottom, double size, bool positive = true)
{
    Geometry geometry = surfaceGeometry({{left, bottom},
                                         {left + size, bottom},
                                         {left + size, bottom + size},
                                         {left, bottom + size}});
    geometry.positive = positive;
    return Feature(geometry);
}

Feature named(const Feature& feature, const QString& net)
{
    Geometry geometry = feature.geometry();
    geometry.attributes.insert(QStringLiteral(".net"), net);
    return Feature(geometry);
}

bool runs(const Feature& feature, const QPointF& from, const QPointF& to)
{
    return same(feature.geometry().points.at(0), from) && same(feature.geometry().points.at(1), to);
}

Board boardOf(const Features& features)
{
    Board board;
    board.features = features;
    return board;
}

Board edited(Board board, const Edit& edit)
{
    substitute(edit, board.features);
    return board;
}

}  // namespace

class TestBoard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hitsTheTopmost()
    {
        const Board board = boardOf({square(0, 0, 1000), square(200, 200, 400, false)});
        QCOMPARE(featureAt(board, {0, 1}, {400, 400}, 0), 1);
        QCOMPARE(featureAt(board, {0, 1}, {100, 100}, 0), 0);
        QCOMPARE(featureAt(board, {0, 1}, {195, 400}, 10), 1);
        QCOMPARE(featureAt(board, {0, 1}, {1009, 500}, 10), 0);
        QCOMPARE(featureAt(board, {0, 1}, {1011, 500}, 10), -1);
    }

    void netsAreWhatTouches()
    {
        const Board board = boardOf({
            line({0, 0}, {5000, 0}),
            line({5000, 100}, {5000, 5000}),
            named(square(4900, 4900, 500), QStringLiteral("A")),
            line({0, 1000}, {4000, 1000}),
            Feature(inverted(line({0, 500}, {0, 1000}))),
            named(square(20000, 0, 500), QStringLiteral("A")),
            line({20250, 250}, {30000, 250}),
        });
        QCOMPARE(touching(board, 0), Indexes({0, 1, 2}));
        QCOMPARE(touching(board, 3), Indexes({3}));
        QCOMPARE(touching(board, 4), Indexes({4}));
        QCOMPARE(touching(board, 6), Indexes({5, 6}));
        QCOMPARE(netOf(board, 0), Indexes({0, 1, 2, 5, 6}));
        QCOMPARE(netOf(board, 3), Indexes({3}));
        QVERIFY(touching(board, 99).empty() && netOf(board, -1).empty());
    }

    void polylinesAreJoinedAtTheirEnds()
    {
        const Board board = boardOf({
            line({0, 0}, {1000, 0}),
            Feature(arcGeometry(pen, {1000, 0}, {2000, 1000}, {1000, 1000}, false)),
            line({2000, 1000}, {2000, 3000}),
            line({500, -500}, {500, 500}),  // crosses, but is not joined
            Feature(padGeometry(QStringLiteral("r50"), {0, 0})),
        });
        QCOMPARE(polylineOf(board, 2), Indexes({0, 1, 2}));
        QCOMPARE(polylineOf(board, 3), Indexes({3}));
        QCOMPARE(polylineOf(board, 4), Indexes({4}));
    }

    void selections()
    {
        const Board board = boardOf({square(0, 0, 100), square(200, 0, 100), square(90, 90, 30)});
        QCOMPARE(insideRectangle(board, QRectF(-1, -1, 200, 200)), Indexes({0, 2}));
        QCOMPARE(insideRectangle(board, QRectF(301, 101, -310, -110)), Indexes({0, 1}));
        const QPolygonF triangle = QVector<QPointF>{{-50, -50}, {350, -50}, {-50, 350}};
        QCOMPARE(insidePolygon(board, triangle), Indexes({0, 2}));
        QCOMPARE(boundsOf(board), QRectF(0, 0, 300, 120));
    }

    void movesTurnsAndMirrors()
    {
        const Feature pad(padGeometry(QStringLiteral("rect20x40"), {100, 0}));
        QCOMPARE(moved(pad, {5, 6}).geometry().points.at(0), QPointF(105, 6));
        const Feature turnedPad = rotated(pad, {0, 0}, 90);
        QVERIFY(same(turnedPad.geometry().points.at(0), {0, 100}));
        QCOMPARE(turnedPad.geometry().rotation, 90.0);
        QCOMPARE(rotated(turnedPad, {0, 0}, -180).geometry().rotation, 270.0);
        QVERIFY(qAbs(turnedPad.bounds().width() - 40 * 25.4) < 1e-6);
        const Feature arc(arcGeometry(pen, {1000, 0}, {0, 1000}, {0, 0}, false));
        const Feature mirroredArc = mirrored(arc, 2000);
        QVERIFY(mirroredArc.geometry().clockwise);
        QVERIFY(runs(mirroredArc, {3000, 0}, {4000, 1000}));
        Geometry text = textGeometry(TextSpec(), {0, 0});
        text.text.content = QStringLiteral("F");
        text.rotation = 30;
        const Feature mirroredText = mirrored(Feature(text), 500);
        QRectF expected = Feature(text).bounds();
        expected.moveCenter({1000 - expected.center().x(), expected.center().y()});
        QVERIFY(same(mirroredText.bounds().topLeft(), expected.topLeft()));
        QVERIFY(mirrored(mirroredText, 500) == Feature(text));
        QVERIFY(!inverted(pad).isPositive());
        QVERIFY(inverted(inverted(pad)) == pad);
    }

    void anglesAndEnds()
    {
        const Feature bar = line({0, 0}, {1000, 0});
        QCOMPARE(nearerEnd(bar, {900, 50}), End::Second);
        QCOMPARE(nearerEnd(bar, {100, 50}), End::First);
        QVERIFY(runs(*withAngle(bar, 90, End::First), {0, 0}, {0, 1000}));
        QVERIFY(runs(*withAngle(bar, 90, End::Second), {1000, 1000}, {1000, 0}));
        QVERIFY(runs(*stretched(bar, End::Second, {500, 700}), {0, 0}, {500, 700}));
        QVERIFY(!stretched(bar, End::First, {1000, 0}));
        const Feature arc(arcGeometry(pen, {1000, 0}, {0, 1000}, {0, 0}, false));
        QVERIFY(runs(*stretched(arc, End::Second, {-3, 0}), {1000, 0}, {-1000, 0}));
        QVERIFY(!withAngle(square(0, 0, 10), 3, End::First));
        QVERIFY(!stretched(square(0, 0, 10), End::First, {3, 3}));
    }

    void breaks()
    {
        const Features parts = broken(line({0, 0}, {1000, 0}), {300, 80});
        QCOMPARE(parts.size(), size_t(2));
        QVERIFY(runs(parts[0], {0, 0}, {300, 0}) && runs(parts[1], {300, 0}, {1000, 0}));
        QVERIFY(broken(line({0, 0}, {1000, 0}), {-5, 0}).empty());
        QVERIFY(broken(square(0, 0, 10), {5, 5}).empty());
        const Feature arc(arcGeometry(pen, {1000, 0}, {0, 1000}, {0, 0}, false));
        const Features arcs = broken(arc, {5, 5});
        QCOMPARE(arcs.size(), size_t(2));
        QVERIFY(same(arcs[0].geometry().points.at(1), polar({0, 0}, 1000, 45)));
        QVERIFY(runs(arcs[1], polar({0, 0}, 1000, 45), {0, 1000}));
        QVERIFY(broken(arc, {-5, -5}).empty());
        const Feature circle(arcGeometry(pen, {1000, 0}, {1000, 0}, {0, 0}, true));
        const Features opened = broken(circle, {0, 7});
        QCOMPARE(opened.size(), size_t(1));
        QVERIFY(runs(opened[0], {0, 1000}, {0, 1000}));
    }

    void deletionStopsAtIntersections()
    {
        const Features crossed = {
            line({0, 0}, {10000, 0}),
            line({2000, -500}, {2000, 500}),
            Feature(arcGeometry(pen, {6000, 1000}, {6000, -1000}, {6000, 0}, true)),
            square(9000, -500, 4000),
            inverted(line({4000, -500}, {4000, 500})),
            line({8000, 300}, {8000, 900}),
        };
        const Board board = boardOf(crossed);
        const auto left = [&board](double x) { return *deletedToIntersection(board, 0, {x, 20}); };
        QCOMPARE(left(1000).size(), size_t(1));
        QVERIFY(runs(left(1000)[0], {2000, 0}, {10000, 0}));
        QCOMPARE(left(4000).size(), size_t(2));
        QVERIFY(runs(left(4000)[0], {0, 0}, {2000, 0}));
        QVERIFY(runs(left(4000)[1], {7000, 0}, {10000, 0}));
        QVERIFY(runs(left(8500)[0], {0, 0}, {7000, 0}));
        QVERIFY(runs(left(8500)[1], {9000, 0}, {10000, 0}));
        QCOMPARE(deletedToIntersection(board, 5, {8000, 500})->size(), size_t(0));
        QVERIFY(!deletedToIntersection(board, 3, {9500, 0}));
        QVERIFY(!deletedToIntersection(board, 77, {0, 0}));
    }

    void boardsAreEdited()
    {
        const Board board = boardOf({square(0, 0, 10), square(20, 0, 10), square(40, 0, 10)});
        QCOMPARE(edited(board, without(board, {0, 2, 9})).features.size(), size_t(1));
        const Board moved = edited(board, withMoved(board, {-1, 1}, {5, 5}));
        QCOMPARE(moved.features[1].bounds(), QRectF(25, 5, 10, 10));
        QCOMPARE(moved.features[0].bounds(), QRectF(0, 0, 10, 10));
        const Board copied = edited(board, withCopied(board, {0, 1}, {0, 100}));
        QCOMPARE(copied.features.size(), size_t(5));
        QCOMPARE(copied.features[4].bounds(), QRectF(20, 100, 10, 10));
        QVERIFY(!edited(board, withInverted(board, {2})).features[2].isPositive());
        const Board replaced =
            edited(board, withReplaced(board, 1, {square(1, 1, 1), square(2, 2, 2)}));
        QCOMPARE(replaced.features.size(), size_t(4));
        QCOMPARE(replaced.features[2].bounds(), QRectF(2, 2, 2, 2));
        QVERIFY(edited(board, withReplaced(board, 8, {})) == board);
    }
};

CTS_TEST(TestBoard);
#include "test_board.moc"
