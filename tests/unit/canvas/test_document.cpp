// The document and its history: what an entry undoes and redoes, what happens to selections when
// features come and go, and how much memory the history takes.

#include "CanvasFixture.h"
#include "Heap.h"
#include "Main.h"
#include "plugin/MessageCodes.h"

#include <QRandomGenerator>

#include <numeric>

using Pcb::Feature;
using Pcb::Features;
using Pcb::Indexes;

namespace {

Feature pad(double x, double y)
{
    return Feature(Pcb::padGeometry("r20", {x, y}));
}

Pcb::Board rowsOf(int count)
{
    constexpr int columns = 10;
    Pcb::Board board;
    for (int i = 0; i < count; ++i) {
        board.features.push_back(pad(i % columns * 1000, int(i / columns) * 1000));
    }
    return board;
}

const Pcb::Board& largeBoard()
{
    static const Pcb::Board board = rowsOf(TestProgram::isFull() ? 100000 : 20000);
    return board;
}

Pcb::Board fourPads()
{
    return {{}, {}, {}, {pad(0, 0), pad(2000, 0), pad(4000, 0), pad(6000, 0)}};
}

Indexes allOf(const Document& document)
{
    Indexes all(document.board().features.size());
    std::iota(all.begin(), all.end(), 0);
    return all;
}

constexpr double megabyte = 1e6;

}  // namespace

class TestDocument : public QObject {
    Q_OBJECT

    QRandomGenerator m_random{11};

    Indexes someOf(const Document& document)
    {
        Indexes some;
        const int share = 1 + m_random.bounded(10);
        for (int i = 0; i < int(document.board().features.size()); ++i) {
            if (m_random.bounded(10) < share) {
                some.push_back(i);
            }
        }
        return some;
    }

    void change(Document& document)
    {
        const Pcb::Board& board = document.board();
        const Indexes some = someOf(document);
        const QPointF by(m_random.bounded(2000), 500);
        const int one = m_random.bounded(int(board.features.size()) + 1);
        std::vector<Mark> marks = document.state().marks;
        switch (m_random.bounded(9)) {
            case 0:
                document.applyBoard("delete", Pcb::without(board, {one}));
                break;
            case 1:
                document.applyBoard("move", Pcb::withMoved(board, some, by));
                break;
            case 2:
                document.applyAndSelect("copy", Pcb::withCopied(board, {one}, by));
                break;
            case 3:
                document.applyBoard(
                    "replace", Pcb::withReplaced(board, one, {pad(by.x(), 0), pad(0, by.x())}));
                break;
            case 4:
                document.applyBoard("add", Pcb::withAdded(board, {pad(by.x(), by.x())}));
                break;
            case 5:
                document.select("select", some);
                break;
            case 6:
                document.highlight("highlight", some);
                break;
            case 7:
                marks.push_back({QLineF({0, 0}, by), true});
                document.setMarks("mark", marks);
                break;
            default:
                document.setMarks("no marks", {});
        }
    }

    /// What is found at a place is what is there.
    void compareFound(const Document& document)
    {
        const QPointF point(m_random.bounded(8000), m_random.bounded(2000));
        const Features& features = document.board().features;
        int topmost = -1;
        Indexes expected;
        for (int i = 0; i < int(features.size()); ++i) {
            const QRectF& bounds = features[size_t(i)].bounds();
            if (bounds.contains(point)) {
                expected.push_back(i);
            }
            if (features[size_t(i)].area().contains(point)) {
                topmost = i;
            }
            QCOMPARE(document.sketch(i).bounds, bounds);
        }
        QCOMPARE(document.featuresIn(QRectF(point, point)), expected);
        QCOMPARE(document.featureAt(point, 0), topmost);
    }

private Q_SLOTS:
    void everyEntryIsUndoneAndDoneAgain()
    {
        Document document(rowsOf(30));
        std::vector<CanvasState> states{document.state()};
        for (int step = 0; step < 600; ++step) {
            if (m_random.bounded(6) == 0 && document.history().canUndo()) {
                document.history().undo();
                states.pop_back();
                QVERIFY(document.state() == states.back());
                continue;
            }
            change(document);
            if (document.history().index() == int(states.size())) {
                QVERIFY(!(document.state() == states.back()));
                states.push_back(document.state());
            }
            QCOMPARE(document.history().index(), int(states.size()) - 1);
            compareFound(document);
        }
        QVERIFY(states.size() > 200);
        for (size_t i = states.size() - 1; i-- > 0;) {
            document.history().undo();
            QVERIFY(document.state() == states[i]);
            compareFound(document);
        }
        for (size_t i = 1; i < states.size(); ++i) {
            document.history().redo();
            QVERIFY(document.state() == states[i]);
            compareFound(document);
        }
    }

    void whatChangesNothingIsNoEntry()
    {
        Document document(fourPads());
        document.select("select", {1});
        document.select("select again", {1});
        document.highlight("nothing", {});
        document.setMarks("no marks", {});
        document.applyBoard("nowhere", Pcb::withMoved(document.board(), {1, 2}, {0, 0}));
        document.applyBoard("none", Pcb::without(document.board(), {17}));
        QCOMPARE(document.history().count(), 1);
    }

    void selectionsStayWithTheirFeatures()
    {
        Document document(fourPads());
        document.select("select", {1, 3});
        document.highlight("highlight", {0, 1});
        document.applyBoard("delete", Pcb::without(document.board(), {0}));
        QCOMPARE(document.state().selected, (Indexes{0, 2}));
        QCOMPARE(document.state().highlighted, Indexes{0});
        document.applyBoard("break",
                            Pcb::withReplaced(document.board(), 0, {pad(1000, 0), pad(3000, 0)}));
        QCOMPARE(document.state().selected, (Indexes{0, 1, 3}));
        QCOMPARE(document.state().highlighted, (Indexes{0, 1}));
        document.applyBoard("add", Pcb::withAdded(document.board(), {pad(0, 5000)}));
        document.applyBoard("move", Pcb::withMoved(document.board(), {3, 4}, {0, 100}));
        QCOMPARE(document.state().selected, (Indexes{0, 1, 3}));
        document.applyBoard("delete", Pcb::without(document.board(), {0, 1, 3}));
        QCOMPARE(document.state().selected, Indexes());
        while (document.history().index() > 2) {
            document.history().undo();
        }
        QCOMPARE(document.state().selected, (Indexes{1, 3}));
        QCOMPARE(document.state().highlighted, (Indexes{0, 1}));
    }

    void copiesAreSelected()
    {
        const CanvasFixture fixture({pad(4000, 4000), pad(8000, 4000), pad(12000, 4000)});
        fixture.receive(MessageCodes::Sent::RectangleSelection);
        fixture.drag(3000, 3000, 9000, 5000);
        QCOMPARE(fixture.state().selected, (Indexes{0, 1}));
        fixture.receive(MessageCodes::Sent::CopyFeature);
        fixture.click(4000, 4000);
        fixture.click(4000, 9000);
        QCOMPARE(fixture.features().size(), size_t(5));
        QCOMPARE(fixture.state().selected, (Indexes{3, 4}));
        fixture.document().history().undo();
        QCOMPARE(fixture.features().size(), size_t(3));
        QCOMPARE(fixture.state().selected, (Indexes{0, 1}));
        fixture.document().history().redo();
        QCOMPARE(fixture.state().selected, (Indexes{3, 4}));
    }

    void manySelectionsTakeLittleRoom_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("one feature") << 0;
        QTest::newRow("all and none") << 1;
        QTest::newRow("a share of all") << 2;
    }
    void manySelectionsTakeLittleRoom()
    {
        QFETCH(int, way);
        Document document(largeBoard());
        const Indexes all = allOf(document);
        const double before = Heap::heldBytes();
        for (int i = 0; i < 1000; ++i) {
            Indexes picked;
            if (way == 0) {
                picked = {m_random.bounded(int(all.size()))};
            } else if (way == 1 && i % 2 == 0) {
                picked = all;
            } else if (way == 2) {
                for (size_t at = 0; at < all.size(); at += size_t(m_random.bounded(1, 40))) {
                    picked.push_back(all[at]);
                }
            }
            document.select("select", picked);
        }
        QVERIFY(document.history().count() >= 999);
        const double used = Heap::heldBytes() - before;
        const double allowed = way == 0 ? megabyte : 500 * double(all.size());
        QVERIFY2(used < allowed, qPrintable(QString::number(used)));
    }

    void anEntryTakesWhatItChanged()
    {
        Document document(largeBoard());
        document.select("select", allOf(document));
        const double before = Heap::heldBytes();
        for (int i = 0; i < 300; ++i) {
            document.applyBoard("delete", Pcb::without(document.board(), {i * 60}));
            document.applyBoard("move", Pcb::withMoved(document.board(), {i * 60}, {10, 10}));
            document.setMarks("mark", {{QLineF(0, 0, i, 1), false}});
        }
        QCOMPARE(document.history().count(), 901);
        const double used = Heap::heldBytes() - before;
        QVERIFY2(used < 3 * megabyte, qPrintable(QString::number(used)));
    }
};

CTS_TEST(TestDocument);
#include "test_document.moc"
