// What keeps large boards fast: boxes found by place, compact ids, lists changed in places.

#include "Main.h"
#include "board/BoxIndex.h"
#include "board/IdSet.h"
#include "board/Splice.h"

#include <QRandomGenerator>

#include <algorithm>
#include <map>
#include <numeric>

using namespace Pcb;

using Numbers = std::vector<int>;

class TestLists : public QObject {
    Q_OBJECT

    QRandomGenerator m_random{7};

    double place(double most) { return m_random.bounded(2 * most) - most; }
    /// From points to more than the whole field, some far outside it.
    QRectF box()
    {
        static const double sizes[] = {0, 1, 100, 5000, 4096, 300000};
        const double farthest = m_random.bounded(50) == 0 ? 1e14 : 1e5;
        return {place(farthest), place(farthest),
                m_random.bounded(2.0) * sizes[m_random.bounded(6)],
                m_random.bounded(2.0) * sizes[m_random.bounded(6)]};
    }
    static bool meet(const QRectF& a, const QRectF& b)
    {
        return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() &&
               b.top() <= a.bottom();
    }

private Q_SLOTS:
    void boxesAreFoundByPlace()
    {
        BoxIndex index;
        std::map<int, QRectF> boxes;
        for (int step = 0; step < 3000; ++step) {
            boxes[step] = box();
            index.insert(step, boxes[step]);
            if (m_random.bounded(3) == 0) {
                const auto gone = std::next(boxes.begin(), m_random.bounded(int(boxes.size())));
                index.remove(gone->first, gone->second);
                boxes.erase(gone);
            }
            const QRectF area = box();
            Numbers expected;
            for (const auto& [number, other] : boxes) {
                if (meet(other, area)) {
                    expected.push_back(number);
                }
            }
            Numbers found = index.meeting(area);
            std::sort(found.begin(), found.end());
            QCOMPARE(found, expected);
        }
    }

    void idsAreGivenBack_data()
    {
        QTest::addColumn<Numbers>("ids");
        Numbers many(1000);
        std::iota(many.begin(), many.end(), 5);
        Numbers few;
        for (int id = 3; id < 100000; id += 997) {
            few.push_back(id);
        }
        QTest::newRow("none") << Numbers();
        QTest::newRow("one") << Numbers{0};
        QTest::newRow("two far from each other") << Numbers{0, 1000000};
        QTest::newRow("neighbours") << many;
        QTest::newRow("few") << few;
    }
    void idsAreGivenBack()
    {
        QFETCH(Numbers, ids);
        QCOMPARE(IdSet(ids).ids(), ids);
        QCOMPARE(IdSet(ids).isEmpty(), ids.empty());
    }

    void listsChangeAndChangeBack()
    {
        for (int round = 0; round < 500; ++round) {
            Numbers list(size_t(m_random.bounded(20)));
            std::iota(list.begin(), list.end(), 0);
            Splices<int> splices;
            Numbers expected;
            int next = 0;
            while (next <= int(list.size())) {
                const int count = qMin(m_random.bounded(3), int(list.size()) - next);
                const Numbers entries(size_t(m_random.bounded(3)), 1000 + next);
                if (m_random.bounded(2) == 0) {
                    splices.push_back({next, count, entries});
                    expected.insert(expected.end(), entries.begin(), entries.end());
                } else {
                    expected.insert(expected.end(), list.begin() + next,
                                    list.begin() + next + count);
                }
                next += qMax(count, next == int(list.size()) ? 1 : 0);
            }
            const Numbers before = list;
            const Splices<int> back = inverse(splices, list);
            substitute(splices, list);
            QCOMPARE(list, expected);
            substitute(back, list);
            QCOMPARE(list, before);
        }
    }
};

CTS_TEST(TestLists);
#include "test_lists.moc"
