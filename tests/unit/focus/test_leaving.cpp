// Nothing typed is lost: every editable control, and every way to lose the focus, one after another
// and two in turn.

#include "Entries.h"
#include "FocusFixture.h"
#include "Main.h"
#include "Ways.h"
#include "plugin/RecordKeys.h"

#include <QLineEdit>

namespace {

/// Each box with its own words; of a refusal the beginning, since its bounds follow the unit.
QStringList boxesOf(FocusFixture& fixture, const Entry& entry)
{
    QStringList texts = fixture.boxes.takeTexts();
    for (QString& text : texts) {
        if (!entry.box.isEmpty() && text.startsWith(entry.box)) {
            text = entry.box;
        }
    }
    texts.sort();
    return texts;
}

/// What the second of two is by default; CTS_ALL_PAIRS in the environment: each.
const QStringList secondWays = {"20002200, metric", "20004602", "host's box", "close and open"};

bool isPossible(const Entry& entry, const Way& way)
{
    return way.isAlways() || way.type == entry.type;
}

}  // namespace

class TestLeaving : public QObject {
    Q_OBJECT

    int m_rows = 0;
    int m_unreported = 0;

    /// Everything is taken at the latest when the dialog's field is left.
    void check(FocusFixture& fixture, const Entry& entry, const QVector<Way>& ways)
    {
        QCOMPARE(fixture.agreement->faultOf(fixture.record()), QString());
        fixture.open();
        fixture.leave();
        QCOMPARE(fixture.agreement->faultOf(fixture.record()), QString());
        if (fixture.agreement->isPending(entry.field)) {
            // A type that was chosen meanwhile makes it a text that Qt does not report.
            QVERIFY(!fixture.find<QLineEdit>(entry.field).hasAcceptableInput());
            ++m_unreported;
            fixture.boxes.take();
            return;
        }
        checkOutcome(fixture, entry, ways);
    }

    /// Value and boxes, where the ways did not change them.
    void checkOutcome(FocusFixture& fixture, const Entry& entry, const QVector<Way>& ways)
    {
        int effects = Way::None;
        QStringList expected;
        bool isChosenAgain = false;
        for (const Way& way : ways) {
            effects |= way.effects;
            isChosenAgain = isChosenAgain || way.sets == entry.key;
            if (!way.box.isEmpty()) {
                expected.append(way.box);
            }
        }
        const bool isSymbol = entry.key == RecordKeys::symbolText;
        if (!isChosenAgain && !(isSymbol && effects != Way::None)) {
            QCOMPARE(fixture.value(entry.key), entry.stored);
        }
        // A refused symbol that is replaced, or dropped with the window, is not asked about.
        const QStringList boxes = boxesOf(fixture, entry);
        if (!entry.box.isEmpty() && !(isSymbol && effects != Way::None)) {
            expected.append(entry.box);
        } else if (!entry.box.isEmpty()) {
            expected += boxes.filter(entry.box).mid(0, 1);
        }
        expected.sort();
        QCOMPARE(boxes, expected);
    }

    void play(int entry, const QVector<int>& numbers)
    {
        FocusFixture fixture;
        const Entry& entered = allEntries()[entry];
        entered.reachField(fixture);
        entered.enter(fixture);
        QVector<Way> ways;
        for (const int number : numbers) {
            ways.append(allWays()[number]);
            ways.last().act(fixture);
        }
        check(fixture, entered, ways);
        ++m_rows;
    }

private Q_SLOTS:
    void cleanupTestCase()
    {
        qInfo("%d rows: %d entries, %d ways; %d entries became unacceptable", m_rows,
              allEntries().size(), allWays().size(), m_unreported);
        QVERIFY(m_unreported * 50 < m_rows);
    }

    void once_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<int>("way");
        for (int entry = 0; entry < allEntries().size(); ++entry) {
            for (int way = 0; way < allWays().size(); ++way) {
                const Entry& entered = allEntries()[entry];
                if (isPossible(entered, allWays()[way])) {
                    QTest::addRow("%s %s (%s), %s", entered.field, qPrintable(entered.typed),
                                  entered.type, qPrintable(allWays()[way].name))
                        << entry << way;
                }
            }
        }
    }

    void once()
    {
        QFETCH(int, entry);
        QFETCH(int, way);
        play(entry, {way});
    }

    void twoInTurn_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        const QVector<Way>& ways = allWays();
        const bool isWhole = qEnvironmentVariableIsSet("CTS_ALL_PAIRS");
        for (int entry = 0; entry < allEntries().size(); ++entry) {
            const Entry& entered = allEntries()[entry];
            for (int first = 0; entered.isTyped() && first < ways.size(); ++first) {
                for (int second = 0; second < ways.size(); ++second) {
                    const bool isChosen = isWhole || secondWays.contains(ways[second].name);
                    if (isChosen && isPossible(entered, ways[first]) && ways[second].isAlways()) {
                        QTest::addRow("%s %s (%s), %s, %s", entered.field,
                                      qPrintable(entered.typed), entered.type,
                                      qPrintable(ways[first].name), qPrintable(ways[second].name))
                            << entry << first << second;
                    }
                }
            }
        }
    }

    void twoInTurn()
    {
        QFETCH(int, entry);
        QFETCH(int, first);
        QFETCH(int, second);
        play(entry, {first, second});
    }
};

CTS_TEST(TestLeaving);
#include "test_leaving.moc"
