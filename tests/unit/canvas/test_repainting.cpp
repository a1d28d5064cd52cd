// What a view shows: the same whether it was drawn at once or piece by piece, also zoomed out; how
// far it zooms; and read-outs that follow.

#include "CanvasFixture.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "viewer/CanvasColours.h"

#include <QAction>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QWheelEvent>

#include <set>

using Pcb::Feature;
using Pcb::Features;

namespace {

void turnWheel(const BoardView& view, const QPoint& at, int delta)
{
    QWheelEvent event(at, view.viewport()->mapToGlobal(at), {}, {0, delta}, {}, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view.viewport(), &event);
}

/// Of every kind and size, on top of each other, some of them negative.
Features manyFeatures()
{
    QRandomGenerator random(3);
    const auto place = [&random] { return QPointF(random.bounded(20000), random.bounded(14000)); };
    Features all{Feature(Pcb::surfaceGeometry({{1000, 1000}, {15000, 1000}, {9000, 12000}}))};
    for (int i = 0; i < 400; ++i) {
        const QPointF at = place();
        const QPointF way(random.bounded(3000), random.bounded(2000));
        Pcb::Geometry geometry = i % 3 == 0 ? Pcb::padGeometry(i % 2 == 0 ? "r60" : "rect2x1", at)
                                 : i % 3 == 1
                                     ? Pcb::lineGeometry(i % 2 == 0 ? "r10" : "r2", at, at + way)
                                     : Pcb::arcGeometry("r8", at, at + way, at + way / 2, true);
        geometry.positive = i % 10 != 0;
        all.emplace_back(geometry);
    }
    return all;
}

/// With so many more in one place that the board counts as large.
Features onALargeBoard(const Features& features)
{
    static const Features pile(10001, Feature(Pcb::padGeometry("r10", {19500, 500})));
    Features all = features;
    all.insert(all.end(), pile.begin(), pile.end());
    return all;
}

QImage imageOf(BoardView& view)
{
    return view.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// As if the view had never drawn anything before.
QImage drawnAtOnce(BoardView& view)
{
    view.resetCachedContent();
    return imageOf(view);
}

/// How many pixels around a place have that colour.
int pixelsOf(const CanvasFixture& fixture, const QPointF& place, const QColor& colour)
{
    const QPoint at = fixture.view().viewPoint(place.x(), place.y());
    const QImage near = fixture.view().grab(QRect(at - QPoint(4, 4), QSize(9, 9))).toImage();
    int count = 0;
    for (int pixel = 0; pixel < 81; ++pixel) {
        count += near.pixelColor(pixel % 9, pixel / 9) == colour ? 1 : 0;
    }
    return count;
}

/// Where the edge of a shape is cut off, its shades may differ slightly.
bool lookAlike(const QImage& a, const QImage& b)
{
    if (a == b) {
        return true;  // most are: no need to look at each pixel
    }
    constexpr int trace = 3;
    bool alike = a.size() == b.size();
    for (int y = 0; alike && y < a.height(); ++y) {
        for (int x = 0; alike && x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y);
            const QRgb other = b.pixel(x, y);
            alike = qAbs(qRed(one) - qRed(other)) <= trace &&
                    qAbs(qGreen(one) - qGreen(other)) <= trace &&
                    qAbs(qBlue(one) - qBlue(other)) <= trace;
        }
    }
    return alike;
}

}  // namespace

class TestRepainting : public QObject {
    Q_OBJECT

    QRandomGenerator m_random{5};

    void change(CanvasFixture& fixture)
    {
        Document& document = fixture.document();
        const Pcb::Board& board = document.board();
        const int one = m_random.bounded(400);
        const QPoint at(m_random.bounded(400), m_random.bounded(300));
        BoardView& view = fixture.view();
        switch (m_random.bounded(9)) {
            case 0:
                document.applyBoard("delete", Pcb::without(board, {one}));
                break;
            case 1:
                document.applyBoard("move", Pcb::withMoved(board, {one}, {1500, 700}));
                break;
            case 2:
                document.select("select", {one});
                break;
            case 3:
                document.highlight("highlight", {one});
                break;
            case 4:
                document.history().undo();
                break;
            case 5:
                turnWheel(view, at, m_random.bounded(2) == 0 ? 120 : -120);
                break;
            case 6:
                view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->value() + at.x());
                view.verticalScrollBar()->setValue(view.verticalScrollBar()->value() - at.y());
                break;
            case 7:
                view.fit();
                break;
            default:
                QTest::mouseMove(view.viewport(), at);
        }
    }

    QString position(const CanvasFixture& fixture) const
    {
        return findNamed<QLineEdit>(*fixture.pane, "m_pPositionLE").text();
    }

private Q_SLOTS:
    void piecesMakeTheWhole_data()
    {
        QTest::addColumn<bool>("isLarge");
        QTest::newRow("small board") << false;
        QTest::newRow("large board") << true;
    }
    void piecesMakeTheWhole()
    {
        QFETCH(bool, isLarge);
        CanvasFixture fixture(isLarge ? onALargeBoard(manyFeatures()) : manyFeatures());
        const int steps = TestProgram::isFull() ? 150 : 50;
        for (int step = 0; step < steps; ++step) {
            change(fixture);
            const QImage shown = imageOf(fixture.view());
            QVERIFY(lookAlike(shown, drawnAtOnce(fixture.view())));
        }
        fixture.document().replace({{}, {}, {}, {manyFeatures()[3]}});
        const QImage shown = imageOf(fixture.view());
        QVERIFY(lookAlike(shown, drawnAtOnce(fixture.view())));
    }

    void aPanByPixelsLeavesNoSeams()
    {
        CanvasFixture fixture(manyFeatures());
        BoardView& view = fixture.view();
        view.showArea({5000, 5000, 5000, 5000});
        for (int i = 0; i < 60; ++i) {
            view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->value() + 1);
            view.verticalScrollBar()->setValue(view.verticalScrollBar()->value() - 1);
            imageOf(view);
        }
        const QImage shown = imageOf(view);
        QVERIFY(lookAlike(shown, drawnAtOnce(view)));
    }

    void twoViewsShowTheSame()
    {
        CanvasFixture fixture(manyFeatures());
        BoardView second(&fixture.pane->canvas().scene());
        second.resize(500, 400);
        second.show();
        second.fit();
        const QImage before = second.grab().toImage();
        fixture.document().applyBoard("delete", Pcb::without(fixture.document().board(), {0}));
        QVERIFY(second.grab().toImage() != before);
        fixture.document().history().undo();
        QCOMPARE(second.grab().toImage(), before);
    }

    void whatIsSmallerThanAPixelIsSeen_data()
    {
        QTest::addColumn<QString>("symbol");
        QTest::addColumn<bool>("isLine");
        QTest::newRow("pad") << "r0.5" << false;
        QTest::newRow("short line") << "r0.5" << true;
    }
    void whatIsSmallerThanAPixelIsSeen()
    {
        QFETCH(QString, symbol);
        QFETCH(bool, isLine);
        QVector<QPointF> places;
        Features features;
        for (int i = 0; i < 40; ++i) {
            const QPointF place(1000 + 443.7 * i, 2000 + 205.3 * i);
            places.append(place);
            features.emplace_back(isLine ? Pcb::lineGeometry(symbol, place, place + QPointF(80, 40))
                                         : Pcb::padGeometry(symbol, place));
        }
        const CanvasFixture fixture(onALargeBoard(features));
        const QColor colour = isLine ? CanvasColours::line : CanvasColours::pad;
        for (const QPointF& place : places) {
            const int seen = pixelsOf(fixture, place, colour);
            QVERIFY2(seen >= 1 && seen <= 8, qPrintable(QString::number(seen)));
        }
    }

    void aHairAfterAShapeIsSeen()
    {
        const QPointF way(80, 40);
        const auto line = [&way](const QPointF& from, double length) {
            return Feature(Pcb::lineGeometry("r0.5", from, from + length * way));
        };
        const CanvasFixture fixture(
            onALargeBoard({line({5000, 6000}, 1), line({8000, 6000}, 40), line({15000, 6000}, 1)}));
        QVERIFY(pixelsOf(fixture, {5000, 6000}, CanvasColours::line) >= 1);
        QVERIFY(pixelsOf(fixture, {15000, 6000}, CanvasColours::line) >= 1);
    }

    void aThickShortLineKeepsItsWidth()
    {
        const CanvasFixture fixture(
            onALargeBoard({Feature(Pcb::lineGeometry("r6.5", {8000, 6000}, {8010, 6000}))}));
        // About five pixels in both directions.
        QVERIFY(pixelsOf(fixture, {8005, 6000}, CanvasColours::line) >= 6);
    }

    void aDotIsRepaintedWhole()
    {
        CanvasFixture fixture(onALargeBoard({Feature(Pcb::padGeometry("r0.5", {8003, 6007}))}));
        const QImage before = fixture.view().grab().toImage();
        fixture.document().applyBoard("delete", Pcb::without(fixture.document().board(), {0}));
        QVERIFY(fixture.view().grab().toImage() != before);
        fixture.document().history().undo();
        QCOMPARE(fixture.view().grab().toImage(), before);
    }

    void zoomEndsAtATenthAndAtAMicrometre()
    {
        const CanvasFixture fixture;
        const BoardView& view = fixture.view();
        const QPoint at = view.viewPoint(10000, 7000);
        const QPointF place = view.boardPoint(at);
        for (int i = 0; i < 100; ++i) {
            turnWheel(view, at, 1200);
        }
        QCOMPARE(view.pixelSize(), 1.0);
        QVERIFY(isNear(view.boardPoint(at), place, 30));
        for (int i = 0; i < 100; ++i) {
            turnWheel(view, at, -1200);
        }
        // The board is 20 by 14 millimetres.
        const QSizeF size = view.viewport()->size() * view.pixelSize();
        QCOMPARE(qMax(20000 / size.width(), 14000 / size.height()), 0.1);
    }

    void keysEndThereToo()
    {
        const CanvasFixture fixture;
        BoardView& view = fixture.view();
        for (int i = 0; i < 100; ++i) {
            view.zoom(1.5);
        }
        QCOMPARE(view.pixelSize(), 1.0);
        view.showArea({10000, 7000, 2, 2});
        QCOMPARE(view.pixelSize(), 1.0);
        view.showArea({-1e9, -1e9, 2e9, 2e9});
        QVERIFY(view.pixelSize() < 1000);
    }

    void readOutsFollowTheWheel()
    {
        const CanvasFixture fixture({Feature(Pcb::padGeometry("r60", {5000, 5000}))});
        fixture.receive(MessageCodes::Sent::FeatureSelection);
        const QPoint corner = fixture.at(1000, 1000);
        turnWheel(fixture.view(), corner, 120);
        const QString first = position(fixture);
        QVERIFY(!first.isEmpty());
        turnWheel(fixture.view(), fixture.at(5000, 5000), 120);
        QVERIFY(position(fixture) != first);
        QCOMPARE(fixture.text("m_pHoveredLB"), QString("r60"));
    }

    void readOutsFollowKeys()
    {
        const CanvasFixture fixture({Feature(Pcb::padGeometry("r60", {5000, 5000}))});
        fixture.receive(MessageCodes::Sent::FeatureSelection);
        fixture.view().showArea({4000, 3000, 4000, 4000});
        fixture.move(5000, 5000);
        QString last = position(fixture);
        QCOMPARE(fixture.text("m_pHoveredLB"), QString("r60"));
        QTest::keyClick(&fixture.view(), Qt::Key_Right);
        QVERIFY(position(fixture) != last);
        fixture.move(5000, 5000);
        last = position(fixture);
        for (QAction* const action : findNamed(*fixture.pane, "m_pCanvasBar").actions()) {
            for (int i = 0; i < 5 && action->shortcut() == QKeySequence::ZoomIn; ++i) {
                action->trigger();
            }
        }
        QVERIFY(position(fixture) != last);
        QCOMPARE(fixture.text("m_pHoveredLB"), QString());  // it is elsewhere now
    }
};

CTS_TEST(TestRepainting);
#include "test_repainting.moc"
