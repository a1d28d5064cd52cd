// Keys reach the canvas from every window that belongs to its own, but not from edited fields.

#include "CanvasFixture.h"
#include "Main.h"
#include "plugin/MessageCodes.h"

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace Sent = MessageCodes::Sent;

namespace {

template <class T>
T& add(QWidget& window)
{
    auto* const widget = new T(&window);
    window.layout()->addWidget(widget);
    return *widget;
}

}  // namespace

class TestKeys : public QObject {
    Q_OBJECT

    static void activate(QWidget& window)
    {
        window.show();
        window.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &window);
    }
    /// A window like the Add Feature dialog.
    static std::unique_ptr<QWidget> windowOf(const CanvasFixture& fixture)
    {
        auto window = std::make_unique<QWidget>(fixture.pane->parentWidget(), Qt::Window);
        new QVBoxLayout(window.get());
        return window;
    }
    /// Undo, redo both ways, select all, delete, and Escape.
    static void compareKeys(const CanvasFixture& fixture, QWidget& focus)
    {
        const size_t all = fixture.features().size();
        QTest::keyClick(&focus, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(fixture.state().selected.size(), all);
        QTest::keyClick(&focus, Qt::Key_Delete);
        QCOMPARE(fixture.features().size(), size_t(0));
        QTest::keyClick(&focus, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(fixture.features().size(), all);
        QTest::keyClick(&focus, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(fixture.features().size(), size_t(0));
        QTest::keyClick(&focus, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(&focus, Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(fixture.features().size(), size_t(0));
        QTest::keyClick(&focus, Qt::Key_Z, Qt::ControlModifier);
        fixture.receive(Sent::MoveFeature);
        const QString hint = fixture.text("m_pPickHintLB");
        fixture.click(5000, 5000);
        QVERIFY(fixture.text("m_pPickHintLB") != hint);
        QTest::keyClick(&focus, Qt::Key_Escape);
        QCOMPARE(fixture.text("m_pPickHintLB"), hint);
    }
    static void compareZoomKeys(const BoardView& view, QWidget& focus)
    {
        const double before = view.pixelSize();
        QTest::keyClick(&focus, Qt::Key_Plus, Qt::ControlModifier);
        QVERIFY(view.pixelSize() < before * 0.9);
        QTest::keyClick(&focus, Qt::Key_Minus, Qt::ControlModifier);
        QTest::keyClick(&focus, Qt::Key_Minus, Qt::ControlModifier);
        QVERIFY(view.pixelSize() > before * 1.1);
        QTest::keyClick(&focus, Qt::Key_0, Qt::ControlModifier);
        QVERIFY(qAbs(view.pixelSize() - before) < before * 0.01);
    }

private Q_SLOTS:
    void inTheWindowItself()
    {
        CanvasFixture fixture(twoPads());
        activate(fixture.window);
        compareKeys(fixture, fixture.view());
        compareZoomKeys(fixture.view(), fixture.view());
    }

    void inAWindowOfTheSame()
    {
        const CanvasFixture fixture(twoPads());
        const auto window = windowOf(fixture);
        auto& button = add<QPushButton>(*window);
        activate(*window);
        button.setFocus();
        compareKeys(fixture, button);
        compareZoomKeys(fixture.view(), button);
    }

    void inTheSecondView()
    {
        const CanvasFixture fixture(twoPads());
        QWidget& second = fixture.openSecondView();
        activate(second);
        auto& view = findNamed<BoardView>(second, "m_pSecondBoardView");
        QVERIFY(view.hasFocus());
        compareKeys(fixture, view);
        const double main = fixture.view().pixelSize();
        compareZoomKeys(view, view);
        QCOMPARE(fixture.view().pixelSize(), main);  // each window has its own
    }

    void theSecondViewSaysTheSame()
    {
        const CanvasFixture fixture(twoPads());
        QWidget& second = fixture.openSecondView();
        const auto text = [&](const char* name) { return findNamed<QLabel>(second, name).text(); };
        fixture.receive(Sent::MoveFeature);
        QCOMPARE(text("m_pSecondToolLB"), QString("Tool: Move Feature"));
        QCOMPARE(text("m_pSecondHintLB"), fixture.text("m_pPickHintLB"));
        const auto& view = findNamed<BoardView>(second, "m_pSecondBoardView");
        QTest::mouseMove(view.viewport(), view.viewPoint(5000, 5000));
        const auto& position = findNamed<QLineEdit>(second, "m_pSecondPositionLE");
        QVERIFY(position.text().endsWith(" mil"));
        QCOMPARE(position.text(), findNamed<QLineEdit>(*fixture.pane, "m_pPositionLE").text());
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.viewPoint(5000, 5000));
        QCOMPARE(text("m_pSecondHintLB"),
                 QString("Click the new position; a right click cancels."));
    }

    void theSecondViewShowsToolAndHintAtItsSmallest()
    {
        const CanvasFixture fixture(twoPads());
        QWidget& second = fixture.openSecondView();
        fixture.receive(Sent::MoveFeature);
        second.resize(second.minimumSizeHint().expandedTo(second.minimumSize()));
        QCoreApplication::processEvents();
        const auto& tool = findNamed<QLabel>(second, "m_pSecondToolLB");
        const auto& hint = findNamed<QLabel>(second, "m_pSecondHintLB");
        QVERIFY(tool.width() >= tool.sizeHint().width());
        QVERIFY(hint.width() >= hint.fontMetrics().horizontalAdvance("Click the new"));
    }

    void areaZoomShowsTheAreaWhereItWasDrawn()
    {
        const CanvasFixture fixture(twoPads());
        QWidget& second = fixture.openSecondView();
        auto& view = findNamed<BoardView>(second, "m_pSecondBoardView");
        fixture.receive(Sent::AreaZoom);
        const double main = fixture.view().pixelSize();
        const double before = view.pixelSize();
        for (const QPointF& corner : {QPointF(4000, 4000), QPointF(8000, 6000)}) {
            QTest::mouseMove(view.viewport(), view.viewPoint(corner.x(), corner.y()));
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                              view.viewPoint(corner.x(), corner.y()));
        }
        QVERIFY(view.pixelSize() < before / 2);
        QCOMPARE(fixture.view().pixelSize(), main);
    }

    void aFieldKeepsItsKeys()
    {
        const CanvasFixture fixture(twoPads());
        const auto window = windowOf(fixture);
        auto& edit = add<QLineEdit>(*window);
        auto& box = add<QSpinBox>(*window);
        activate(*window);
        fixture.receive(Sent::FeatureSelection);
        fixture.click(5000, 5000);
        fixture.click(9000, 5000);
        fixture.document().history().undo();
        fixture.receive(Sent::MoveFeature);
        fixture.click(5000, 5000);
        const CanvasState before = fixture.state();
        const QString begun = fixture.text("m_pPickHintLB");
        for (QWidget* const field : {static_cast<QWidget*>(&edit), static_cast<QWidget*>(&box)}) {
            field->setFocus();
            QTest::keyClicks(field, "12");
            for (const Qt::Key key : {Qt::Key_Z, Qt::Key_Y, Qt::Key_A}) {
                QTest::keyClick(field, key, Qt::ControlModifier);
            }
            QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
            QTest::keyClick(field, Qt::Key_Delete);
            QTest::keyClick(field, Qt::Key_Escape);
            QVERIFY(fixture.state() == before);
            QCOMPARE(fixture.text("m_pPickHintLB"), begun);
        }
        edit.setText("r10");
        edit.setFocus();
        QTest::keyClicks(&edit, "0");
        QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(edit.text(), QString("r10"));
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(edit.selectedText(), QString("r10"));
    }

    void aListKeepsDeleteAndSelectAll()
    {
        const CanvasFixture fixture(twoPads());
        const auto window = windowOf(fixture);
        auto& list = add<QListWidget>(*window);
        list.addItems({"one", "two"});
        list.setSelectionMode(QAbstractItemView::ExtendedSelection);
        activate(*window);
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(list.selectedItems().size(), 2);
        QTest::keyClick(&list, Qt::Key_Delete);
        QCOMPARE(fixture.state().selected, Pcb::Indexes());
        QCOMPARE(fixture.features().size(), size_t(2));
    }

    void aDialogStillEndsByEscape()
    {
        const CanvasFixture fixture(twoPads());
        QDialog dialog(fixture.pane->parentWidget());
        new QVBoxLayout(&dialog);
        auto& button = add<QPushButton>(dialog);
        activate(dialog);
        QTest::keyClick(&button, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
    }
};

CTS_TEST(TestKeys);
#include "test_keys.moc"
