// Each tool of the canvas, used by hand: what it does to the board, that it can be undone, and what
// it says when there is nothing to do.

#include "CanvasFixture.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "plugin/ToolModes.h"

#include <QRegularExpression>
#include <QToolButton>

namespace Sent = MessageCodes::Sent;

using Pcb::Feature;
using Pcb::Features;

namespace {

Feature onNet(Pcb::Geometry geometry, const char* net)
{
    geometry.attributes[".net"] = net;
    return Feature(geometry);
}

/// 0: a line along x, 1: one that crosses it, 2: a pad apart, 3: a pad on the first line's end.
Features cross()
{
    return {onNet(Pcb::lineGeometry("r20", {2000, 5000}, {12000, 5000}), "A"),
            onNet(Pcb::lineGeometry("r20", {8000, 2000}, {8000, 8000}), "B"),
            onNet(Pcb::padGeometry("r60", {16000, 10000}), "A"),
            Feature(Pcb::padGeometry("s50", {2000, 5000}))};
}

QVector<QPointF> pointsOf(const CanvasFixture& fixture, int feature)
{
    return fixture.features().at(size_t(feature)).geometry().points;
}

bool areNear(const QVector<QPointF>& actual, const QVector<QPointF>& expected)
{
    bool near = actual.size() == expected.size();
    for (int i = 0; near && i < actual.size(); ++i) {
        near = isNear(actual[i], expected[i]);
    }
    return near;
}

/// Edits the board with each press and goes on; counts what cancels it.
class GoingOn : public CanvasTool {
public:
    GoingOn(Canvas& canvas, int& cancelled) : CanvasTool(canvas), m_cancelled(cancelled) {}

    void press(const QPointF& point, bool) override
    {
        std::vector<Mark> marks = document().state().marks;
        marks.push_back({QLineF({}, point), true});
        document().setMarks("Mark", marks);
    }
    void cancel() override { ++m_cancelled; }
    QString hint() const override { return {}; }

private:
    int& m_cancelled;
};

}  // namespace

class TestTools : public QObject {
    Q_OBJECT

    /// What was done is one entry of the history: undone and redone.
    static void compareHistory(const CanvasFixture& fixture, const CanvasState& before,
                               const char* name)
    {
        const CanvasState after = fixture.state();
        QVERIFY(!(after == before));
        QCOMPARE(fixture.document().history().undoText(), QString(name));
        QTest::mouseClick(&findNamed(*fixture.pane, "m_pUndoTB"), Qt::LeftButton);
        QVERIFY(fixture.state() == before);
        QTest::mouseClick(&findNamed(*fixture.pane, "m_pRedoTB"), Qt::LeftButton);
        QVERIFY(fixture.state() == after);
    }

private Q_SLOTS:
    void aToolIsNotCancelledByItsOwnEdit()
    {
        const CanvasFixture fixture(cross());
        int cancelled = 0;
        fixture.pane->canvas().setTool(
            std::make_unique<GoingOn>(fixture.pane->canvas(), cancelled));
        fixture.click(5000, 5000);
        fixture.click(6000, 6000);
        QCOMPARE(fixture.state().marks.size(), size_t(2));
        QCOMPARE(cancelled, 0);
        fixture.document().history().undo();
        QCOMPARE(cancelled, 1);
    }

    void deletes()
    {
        const CanvasFixture fixture(cross());
        const CanvasState before = fixture.state();
        fixture.receive(Sent::DeleteFeature, DeleteMode::feature);
        fixture.click(16000, 10000);
        QCOMPARE(fixture.features().size(), size_t(3));
        QVERIFY(fixture.features()[2] == before.board.features[3]);
        compareHistory(fixture, before, "Delete feature");
        fixture.click(18000, 13000);
        QCOMPARE(fixture.text("m_pCanvasStatusLB"), QString("No feature here."));
        QCOMPARE(fixture.features().size(), size_t(3));
    }

    void deletesTheSelectionThatIsClicked()
    {
        const CanvasFixture fixture(cross());
        fixture.receive(Sent::FeatureSelection);
        fixture.click(16000, 10000);
        fixture.click(8000, 7500, Qt::ControlModifier);
        QCOMPARE(fixture.state().selected, (Pcb::Indexes{1, 2}));
        fixture.receive(Sent::DeleteFeature, DeleteMode::feature);
        fixture.click(16000, 10000);
        QCOMPARE(fixture.features().size(), size_t(2));
        QCOMPARE(fixture.state().selected, Pcb::Indexes());
    }

    void deletesToTheIntersection()
    {
        const CanvasFixture fixture(cross());
        const CanvasState before = fixture.state();
        fixture.receive(Sent::DeleteFeature, DeleteMode::toIntersection);
        fixture.click(11000, 5000);
        QCOMPARE(fixture.features().size(), size_t(4));
        QVERIFY(areNear(pointsOf(fixture, 0), {{2000, 5000}, {8000, 5000}}));
        compareHistory(fixture, before, "Delete to intersection");
        fixture.click(16000, 10000);
        QCOMPARE(fixture.text("m_pCanvasStatusLB"),
                 QString("Delete to intersection is for lines and arcs."));
    }

    void moves_data()
    {
        QTest::addColumn<bool>("isDragged");
        QTest::newRow("two clicks") << false;
        QTest::newRow("dragged") << true;
    }
    void moves()
    {
        QFETCH(bool, isDragged);
        const CanvasFixture fixture(cross());
        const CanvasState before = fixture.state();
        fixture.receive(Sent::MoveFeature);
        if (isDragged) {
            fixture.drag(16000, 10000, 14000, 12000);
        } else {
            fixture.click(16000, 10000);
            fixture.move(15000, 11000);
            const Features preview = fixture.pane->canvas().scene().overlay().preview;
            QCOMPARE(preview.size(), size_t(1));
            QVERIFY(isNear(preview[0].bounds().center(), {15000, 11000}));
            fixture.click(14000, 12000);
        }
        QVERIFY(areNear(pointsOf(fixture, 2), {{14000, 12000}}));
        QCOMPARE(fixture.features().size(), size_t(4));
        compareHistory(fixture, before, "Move feature");
    }

    void copies()
    {
        const CanvasFixture fixture(cross());
        const CanvasState before = fixture.state();
        fixture.receive(Sent::CopyFeature);
        fixture.click(16000, 10000);
        fixture.click(14000, 12000);
        QCOMPARE(fixture.features().size(), size_t(5));
        QVERIFY(areNear(pointsOf(fixture, 2), {{16000, 10000}}));
        QVERIFY(areNear(pointsOf(fixture, 4), {{14000, 12000}}));
        compareHistory(fixture, before, "Copy feature");
    }

    void movingIsGivenUp()
    {
        const CanvasFixture fixture(cross());
        const CanvasState before = fixture.state();
        fixture.receive(Sent::MoveFeature);
        fixture.click(16000, 10000);
        fixture.rightClick(15000, 11000);
        fixture.move(14000, 12000);
        QVERIFY(fixture.pane->canvas().scene().overlay().preview.empty());
        fixture.click(16000, 10000);
        QTest::keyClick(&fixture.view(), Qt::Key_Escape);
        QVERIFY(fixture.state() == before);
    }

    void inverts()
    {
        const CanvasFixture fixture(cross());
        const CanvasState before = fixture.state();
        fixture.receive(Sent::InvertFeature);
        fixture.click(16000, 10000);
        QVERIFY(!fixture.features()[2].isPositive());
        compareHistory(fixture, before, "Invert feature");
    }

    void turnsAndMirrors()
    {
        const CanvasFixture fixture(
            {Feature(Pcb::padGeometry("rect80x20", {5000, 5000})),
             Feature(Pcb::lineGeometry("r20", {8000, 2000}, {12000, 6000}))});
        fixture.receive(Sent::RotateFeature);
        fixture.click(5000, 5000);
        QVERIFY(fixture.features()[0].bounds().height() > fixture.features()[0].bounds().width());
        QVERIFY(isNear(fixture.features()[0].bounds().center(), {5000, 5000}));
        fixture.receive(Sent::MirrorFeature);
        fixture.click(10000, 4000);
        QVERIFY(areNear(pointsOf(fixture, 1), {{12000, 2000}, {8000, 6000}}));
    }

    void breaks()
    {
        const CanvasFixture fixture(cross());
        const CanvasState before = fixture.state();
        fixture.receive(Sent::BreakLine);
        fixture.click(5000, 5000);
        QCOMPARE(fixture.features().size(), size_t(5));
        QVERIFY(areNear(pointsOf(fixture, 0), {{2000, 5000}, {5000, 5000}}));
        QVERIFY(areNear(pointsOf(fixture, 1), {{5000, 5000}, {12000, 5000}}));
        compareHistory(fixture, before, "Break line");
        fixture.click(16000, 10000);
        QCOMPARE(fixture.text("m_pCanvasStatusLB"), QString("Break line is for lines and arcs."));
    }

    void stretches()
    {
        const CanvasFixture fixture(cross());
        const CanvasState before = fixture.state();
        fixture.receive(Sent::StretchLine);
        fixture.click(11800, 5000);
        fixture.click(15000, 7000);
        QVERIFY(areNear(pointsOf(fixture, 0), {{2000, 5000}, {15000, 7000}}));
        compareHistory(fixture, before, "Stretch line");
        fixture.click(16000, 10000);
        QCOMPARE(fixture.text("m_pCanvasStatusLB"), QString("Click near the end of a line."));
    }

    void changesTheAngle()
    {
        const CanvasFixture fixture(cross());
        const CanvasState before = fixture.state();
        fixture.receive(Sent::ChangeLineAngle);
        fixture.click(11800, 5000);
        fixture.click(2000, 9000);  // straight up from the end that stays
        QVERIFY(areNear(pointsOf(fixture, 0), {{2000, 5000}, {2000, 15000}}));
        compareHistory(fixture, before, "Change line angle");
    }

    void selects()
    {
        const CanvasFixture fixture(cross());
        fixture.receive(Sent::FeatureSelection);
        fixture.click(16000, 10000);
        QCOMPARE(fixture.state().selected, Pcb::Indexes{2});
        QCOMPARE(fixture.text("m_pCanvasStatusLB"), QString("1 feature(s) selected."));
        fixture.click(8000, 7500, Qt::ControlModifier);
        QCOMPARE(fixture.state().selected, (Pcb::Indexes{1, 2}));
        fixture.click(16000, 10000, Qt::ControlModifier);
        QCOMPARE(fixture.state().selected, Pcb::Indexes{1});
        const CanvasState before = fixture.state();
        fixture.click(18000, 13000);
        QCOMPARE(fixture.state().selected, Pcb::Indexes());
        compareHistory(fixture, before, "Select nothing");
    }

    void selectsARectangle()
    {
        const CanvasFixture fixture(cross());
        fixture.receive(Sent::RectangleSelection);
        fixture.drag(7000, 1000, 18000, 12000);
        QCOMPARE(fixture.state().selected, (Pcb::Indexes{1, 2}));
        fixture.click(500, 13000);
        fixture.move(5000, 5000);
        QVERIFY(!fixture.pane->canvas().scene().overlay().rubber.isEmpty());
        fixture.click(13000, 3500);
        QCOMPARE(fixture.state().selected, (Pcb::Indexes{0, 3}));
    }

    void selectsAPolygon()
    {
        const CanvasFixture fixture(cross());
        fixture.receive(Sent::PolygonSelection);
        fixture.click(14000, 8000);
        fixture.click(19000, 8000);
        fixture.click(16000, 13500);
        fixture.rightClick(100, 100);
        QCOMPARE(fixture.state().selected, Pcb::Indexes{2});
        fixture.click(1000, 1000);
        fixture.rightClick(1000, 1000);  // not a polygon: nothing changes
        QCOMPARE(fixture.state().selected, Pcb::Indexes{2});
    }

    void selectsByNet_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QList<int>>("selected");
        QTest::newRow("touching") << int(Sent::SelectLayerNet) << QList<int>{0, 1, 3};
        QTest::newRow("net") << int(Sent::SelectBoardNet) << QList<int>{0, 1, 2, 3};
        QTest::newRow("polyline") << int(Sent::SelectPolyline) << QList<int>{0};
    }
    void selectsByNet()
    {
        QFETCH(int, code);
        QFETCH(QList<int>, selected);
        const CanvasFixture fixture(cross());
        fixture.receive(code);
        fixture.click(5000, 5000);
        QCOMPARE(fixture.state().selected, Pcb::Indexes(selected.begin(), selected.end()));
    }

    void highlights()
    {
        const CanvasFixture fixture(cross());
        const CanvasState before = fixture.state();
        fixture.receive(Sent::FeatureHighLight);
        fixture.click(16000, 10000);
        QCOMPARE(fixture.state().highlighted, (Pcb::Indexes{0, 1, 2, 3}));
        compareHistory(fixture, before, "Highlight");
        fixture.click(16000, 10000);
        QCOMPARE(fixture.state().highlighted, Pcb::Indexes());
    }

    void marks_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("said");
        QTest::newRow("orthogonal")
            << 0 << "^Along x 11[78]\\.\\d\\d mil, along y 15[678]\\.\\d\\d mil\\.$";
        QTest::newRow("point to point") << 1 << "^Distance 19[67]\\.\\d\\d mil\\.$";
    }
    void marks()
    {
        QFETCH(int, mode);
        QFETCH(QString, said);
        const CanvasFixture fixture;
        const CanvasState before = fixture.state();
        fixture.receive(Sent::Mark, mode);
        fixture.click(2000, 2000);
        fixture.click(5000, 6000);
        QCOMPARE(fixture.state().marks.size(), size_t(1));
        QCOMPARE(fixture.state().marks[0].orthogonal, mode == 0);
        QVERIFY(isNear(fixture.state().marks[0].line.p2(), {5000, 6000}));
        const QString words = fixture.text("m_pCanvasStatusLB");
        QVERIFY2(QRegularExpression(said).match(words).hasMatch(), qPrintable(words));
        compareHistory(fixture, before, "Mark");
        fixture.rightClick(5000, 5000);
        QVERIFY(fixture.state().marks.empty());
    }

    void zoomsToAnArea()
    {
        const CanvasFixture fixture;
        fixture.receive(Sent::AreaZoom);
        const double before = fixture.view().pixelSize();
        fixture.drag(4000, 4000, 8000, 6000);
        QVERIFY(fixture.view().pixelSize() < before / 3);
        const QPoint middle = fixture.view().rect().center();
        QVERIFY(isNear(fixture.view().boardPoint(middle), {6000, 5000}, 30));
        QTest::mouseClick(&findNamed(*fixture.pane, "m_pFitTB"), Qt::LeftButton);
        QVERIFY(qAbs(fixture.view().pixelSize() - before) < 0.01);
    }

    void opensASecondView()
    {
        const CanvasFixture fixture(cross());
        QWidget& second = fixture.openSecondView();
        // The tool works in both.
        fixture.receive(Sent::DeleteFeature, DeleteMode::feature);
        const auto& view = findNamed<BoardView>(second, "m_pSecondBoardView");
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.viewPoint(16000, 10000));
        QCOMPARE(fixture.features().size(), size_t(3));
    }

    void saysWhatItDoesNotDo_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("name");
        QTest::newRow("dimension") << int(Sent::RoutDimension) << "Rout Dimension Editor";
        QTest::newRow("contour") << int(Sent::ContourEditor) << "Contour Editor";
        QTest::newRow("pull") << int(Sent::PullLine) << "Pull Line";
        QTest::newRow("junction") << int(Sent::MoveJunction) << "Move Junction";
        QTest::newRow("triplet") << int(Sent::MoveTriplet) << "Move Triplet(Angle)";
        QTest::newRow("reroute") << int(Sent::RerouteTrace) << "Reroute Trace(Fix Point)";
        QTest::newRow("EQ") << int(Sent::Eq) << "EQ";
    }
    void saysWhatItDoesNotDo()
    {
        QFETCH(int, code);
        QFETCH(QString, name);
        const CanvasFixture fixture(cross());
        const CanvasState before = fixture.state();
        fixture.receive(Sent::DeleteFeature, DeleteMode::feature);  // is not left active
        fixture.receive(code);
        const QString hint = QString("\"%1\" does nothing on this canvas.").arg(name);
        QCOMPARE(fixture.text("m_pPickHintLB"), hint);
        fixture.click(16000, 10000);
        QVERIFY(fixture.state() == before);
        QCOMPARE(fixture.text("m_pPickHintLB"), hint);  // also after the click
        fixture.receive(Sent::MoveFeature);
        QCOMPARE(fixture.text("m_pPickHintLB"), QString("Click a feature to move it."));
    }

    void saysThatThereIsNoTool()
    {
        const CanvasFixture fixture(cross());
        const CanvasState before = fixture.state();
        fixture.receive(Sent::BreakLineOff);
        QCOMPARE(fixture.text("m_pPickHintLB"), QString("No tool is active: clicks do nothing."));
        fixture.click(16000, 10000);
        QVERIFY(fixture.state() == before);
        fixture.receive(Sent::OpenPopView);
        QCOMPARE(fixture.text("m_pPickHintLB"),
                 QString("The popview is open; choose a tool to work in either."));
    }
};

CTS_TEST(TestTools);
#include "test_tools.moc"
