// Where a window opens: near the wanted place, over nothing that is in use if there is room
// anywhere.

#include "Main.h"
#include "window/FreePlace.h"

#include <QRandomGenerator>

namespace {

const QRect screen(0, 0, 200, 100);

/// Whether there is any such place at all.
bool hasRoom(const FreePlace& place, const QSize& size)
{
    for (int x = screen.left(); x <= screen.right(); ++x) {
        for (int y = screen.top(); y <= screen.bottom(); ++y) {
            if (place.isFree({QPoint(x, y), size})) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace

class TestFreePlace : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aWantedPlaceThatIsFreeIsTaken()
    {
        const FreePlace place(screen, {QRect(0, 0, 50, 100)}, QRect(100, 50, 100, 50));
        QCOMPARE(place.nearest({40, 20}, {60, 13}), QPoint(60, 13));
    }

    void whatIsTakenIsAvoidedByTheShortestWay()
    {
        const FreePlace place(screen, {QRect(50, 20, 100, 60)});
        QCOMPARE(place.nearest({30, 15}, {60, 30}), QPoint(60, 5));
        QCOMPARE(place.nearest({30, 15}, {140, 40}), QPoint(150, 40));
    }

    void whatIsSparedIsCoveredBeforeWhatIsTaken()
    {
        const QRect left(0, 0, 100, 100);
        const QRect right(100, 0, 100, 100);
        QCOMPARE(FreePlace(screen, {}, right).nearest({60, 60}, {120, 10}), QPoint(40, 10));
        QCOMPARE(FreePlace(screen, {left}, right).nearest({60, 60}, {20, 10}), QPoint(100, 10));
    }

    void aWindowStaysOnTheScreen()
    {
        const FreePlace place(screen, {});
        QCOMPARE(place.nearest({60, 60}, {500, -20}), QPoint(140, 0));
        QCOMPARE(place.nearest({300, 60}, {50, 90}), QPoint(0, 40));
        QVERIFY(!place.isFree({0, 0, 201, 10}));
    }

    void roomIsFoundWhereverThereIsSome()
    {
        QRandomGenerator random(7);
        const auto within = [&](int first, int end) { return random.bounded(first, end); };
        int crowded = 0;
        for (int round = 0; round < 300; ++round) {
            QVector<QRect> taken;
            for (int count = within(1, 6); count > 0; --count) {
                taken.append({within(-20, 180), within(-20, 90), within(10, 120), within(10, 80)});
            }
            const FreePlace place(screen, taken, QRect(50, 20, 80, 60));
            const QSize size(within(20, 100), within(20, 70));
            const QRect window(place.nearest(size, {within(-50, 250), within(-50, 150)}), size);
            QVERIFY(screen.contains(window));
            QCOMPARE(place.isFree(window), hasRoom(place, size));
            crowded += place.isFree(window) ? 0 : 1;
        }
        QVERIFY(crowded > 30 && crowded < 270);
    }
};

CTS_TEST(TestFreePlace);
#include "test_free_place.moc"
