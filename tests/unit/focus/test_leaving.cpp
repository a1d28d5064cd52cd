// Nothing typed is lost: every editable control, and every way to lose the focus, singly and in
// pairs.

#include "DialogFixture.h"
#include "Main.h"
#include "Snapshot.h"
#include "Ways.h"
#include "plugin/RecordKeys.h"

#include <QLineEdit>
#include <QSet>

#include <algorithm>
#include <memory>
#include <typeinfo>
#include <utility>

using Opened = DialogFixture::Opened;

namespace {

/// Takes from the boxes the first that is as expected; false if there is none.
bool takeBox(BoxTextList& boxes, const BoxText& expected)
{
    const auto found = std::find_if(boxes.cbegin(), boxes.cend(),
                                    [&](const BoxText& seen) { return expected.matches(seen); });
    if (found == boxes.cend()) {
        return false;
    }
    boxes.removeAt(int(found - boxes.cbegin()));
    return true;
}

/// The second of two, on one field of each kind; in a full run each, on each field.
const QStringList secondWays = {"UnitChanged, metric", "AddFeature", "host's box",
                                "close and open"};

/// What distinguishes an entry for a pair of ways: two of a kind differ in name, text, key, page.
QString kindOf(const Entry& entry, const QWidget& field)
{
    QStringList words{typeid(field).name(), entry.isRefused() ? "refused" : "accepted",
                      entry.isCheckedWhileTyped() ? "while typed" : "when left"};
    for (const int code : entry.codes()) {
        words.append(QString::number(code));
    }
    return words.join(", ");
}

QVector<std::pair<int, int>> pairsFor(const Entry& entry)
{
    QVector<std::pair<int, int>> pairs;
    const QVector<Way>& ways = allWays();
    for (int first = 0; entry.isTyped() && first < ways.size(); ++first) {
        for (int second = 0; second < ways.size(); ++second) {
            const bool isChosen = TestProgram::isFull() || secondWays.contains(ways[second].name());
            if (isChosen && ways[first].isPossibleOn(entry.type()) &&
                ways[second].isAlwaysPossible()) {
                pairs.append({first, second});
            }
        }
    }
    return pairs;
}

}  // namespace

class TestLeaving : public QObject {
    Q_OBJECT

    static constexpr int none = -1;

    std::unique_ptr<DialogFixture> m_fixture;
    std::unique_ptr<Snapshot> m_snapshot;
    int m_entry = none;  // that the dialog and the snapshot are good for
    int m_dialogs = 0;
    int m_rows = 0;
    int m_unreported = 0;

    /// Everything is taken, at the latest when the dialog's field is left.
    void check(DialogFixture& fixture, const Entry& entry, const QVector<Way>& ways)
    {
        QCOMPARE(fixture.agreement->faultOf(fixture.record()), QString());
        fixture.open();
        fixture.leave();
        QCOMPARE(fixture.agreement->faultOf(fixture.record()), QString());
        if (fixture.agreement->isPending(entry.field())) {
            // A type chosen meanwhile makes it a text that Qt does not report.
            QVERIFY(!fixture.find<QLineEdit>(entry.field()).hasAcceptableInput());
            ++m_unreported;
            fixture.boxes.take();
            return;
        }
        checkOutcome(fixture, entry, ways);
    }

    /// Value and boxes, unless the ways changed them.
    void checkOutcome(DialogFixture& fixture, const Entry& entry, const QVector<Way>& ways)
    {
        BoxTextList boxes = fixture.boxes.takeTexts();
        bool isChosenAgain = false;
        bool isSymbolEnded = false;
        for (const Way& way : ways) {
            isChosenAgain = isChosenAgain || way.key() == entry.recordKey();
            isSymbolEnded = isSymbolEnded || way.endsASymbol();
            for (const BoxText& expected : way.boxes()) {
                QVERIFY2(takeBox(boxes, expected), qPrintable(expected.words()));
            }
        }
        isSymbolEnded = isSymbolEnded && entry.recordKey() == RecordKeys::symbolText;
        if (!isChosenAgain && !isSymbolEnded) {
            QCOMPARE(fixture.value(entry.recordKey()).toString(), entry.stored());
        }
        // A refused symbol that is replaced, or dropped with the window, need not be asked about.
        for (const BoxText& expected : entry.boxes()) {
            QVERIFY2(takeBox(boxes, expected) || isSymbolEnded, qPrintable(expected.words()));
        }
        QCOMPARE(boxes, BoxTextList());
    }

    /// The entry's field, shown and as in a new dialog: the last one serves for the same entry.
    void showField(int entry)
    {
        DialogFixture& fixture = *m_fixture;
        if (m_entry != entry || !m_snapshot->restore(fixture)) {
            fixture.renewDialog();
            fixture.perform(allEntries()[entry].reach());
            m_snapshot = std::make_unique<Snapshot>(fixture);
            m_entry = entry;
            ++m_dialogs;
        }
    }

    void play(int entry, const QVector<int>& numbers)
    {
        DialogFixture& fixture = *m_fixture;
        const Entry& entered = allEntries()[entry];
        showField(entry);
        fixture.make(entered);
        QVector<Way> ways;
        for (const int number : numbers) {
            ways.append(allWays()[number]);
            ways.last().act(fixture);
        }
        check(fixture, entered, ways);
        ++m_rows;
        const bool isClosed =
            std::any_of(ways.cbegin(), ways.cend(), [](const Way& way) { return way.closes(); });
        if (isClosed || QTest::currentTestFailed()) {
            m_entry = none;
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_fixture = std::make_unique<DialogFixture>(Unit::Mil, Opened::ByTheStrip);
    }
    void cleanupTestCase()
    {
        m_fixture.reset();
        qInfo("%d rows: %d entries, %d ways, %d dialogs; %d entries became unacceptable", m_rows,
              allEntries().size(), allWays().size(), m_dialogs, m_unreported);
        QVERIFY(m_unreported * 50 < m_rows);
    }

    void once_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<int>("way");
        for (int entry = 0; entry < allEntries().size(); ++entry) {
            for (int way = 0; way < allWays().size(); ++way) {
                const Entry& entered = allEntries()[entry];
                if (allWays()[way].isPossibleOn(entered.type())) {
                    QTest::addRow("%s, %s", qPrintable(entered.words()),
                                  qPrintable(allWays()[way].name()))
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
        QSet<QString> added;
        for (int entry = 0; entry < allEntries().size(); ++entry) {
            const Entry& entered = allEntries()[entry];
            const QString kind = kindOf(entered, m_fixture->find(entered.field()));
            for (const auto& [first, second] : pairsFor(entered)) {
                const QString pair = QStringLiteral(", %1, %2")
                                         .arg(allWays()[first].name(), allWays()[second].name());
                if (TestProgram::isFull() || !added.contains(kind + pair)) {
                    added.insert(kind + pair);
                    QTest::newRow(qPrintable(entered.words() + pair)) << entry << first << second;
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
