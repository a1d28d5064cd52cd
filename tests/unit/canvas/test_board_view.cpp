// The view: zoom, pan, fit, places; and the board's files, from the bar above it.

#include "BoxCatcher.h"
#include "CanvasFixture.h"
#include "ChosenFile.h"
#include "ErrorOf.h"
#include "Main.h"
#include "board/BoardFile.h"

#include <Files.h>
#include <UiApiStandIn.h>

#include <QDir>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <cmath>

class TestBoardView : public QObject {
    Q_OBJECT

    static void turnWheel(const BoardView& view, const QPoint& at, int delta)
    {
        QWheelEvent event(at, view.viewport()->mapToGlobal(at), {}, {0, delta}, {}, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view.viewport(), &event);
    }

private Q_SLOTS:
    void placesGoThereAndBack()
    {
        const CanvasFixture fixture;
        const QPoint at = fixture.view().viewPoint(6000, 7000);
        QVERIFY(isNear(fixture.view().boardPoint(at), {6000, 7000}));
        QVERIFY(fixture.view().viewPoint(6000, 8000).y() < at.y());  // y points up
    }

    void wheelKeepsWhatIsUnderTheCursor()
    {
        const CanvasFixture fixture;
        const QPoint at = fixture.view().viewPoint(5000, 5000);
        const double before = fixture.view().pixelSize();
        turnWheel(fixture.view(), at, 480);
        QVERIFY(fixture.view().pixelSize() < before / 2);
        QVERIFY(isNear(fixture.view().boardPoint(at), {5000, 5000}));
        turnWheel(fixture.view(), at, -480);
        QVERIFY(qAbs(fixture.view().pixelSize() - before) < before / 1000);
        for (int i = 0; i < 200; ++i) {
            turnWheel(fixture.view(), at, i < 100 ? 1200 : -2400);
        }
        QVERIFY(std::isfinite(fixture.view().pixelSize()));
    }

    void middleButtonPans()
    {
        const CanvasFixture fixture;
        const QPoint at = fixture.view().viewPoint(5000, 5000);
        QTest::mousePress(fixture.view().viewport(), Qt::MiddleButton, {}, at);
        QTest::mouseMove(fixture.view().viewport(), at + QPoint(40, 30));
        QTest::mouseRelease(fixture.view().viewport(), Qt::MiddleButton, {}, at + QPoint(40, 30));
        QVERIFY(isNear(fixture.view().boardPoint(at + QPoint(40, 30)), {5000, 5000}));
    }

    void positionInTheUsersUnit()
    {
        const CanvasFixture fixture;
        CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Millimetre);
        fixture.move(10000, 7000);
        const auto& position = findNamed<QLineEdit>(*fixture.pane, "m_pPositionLE");
        const QString words = position.text();
        CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Mil);
        QVERIFY2(QRegularExpression("^(9\\.9|10\\.0)\\d{3}, (6\\.9|7\\.0)\\d{3} mm$")
                     .match(words)
                     .hasMatch(),
                 qPrintable(words));
        fixture.move(5080, 7000);
        QVERIFY(position.text().endsWith(" mil"));
    }

    void staysFittedWhileItGrows()
    {
        CanvasFixture fixture;
        const double before = fixture.view().pixelSize();
        fixture.window.resize(1500, 1050);
        fixture.pane->resize(fixture.window.size());
        QCoreApplication::processEvents();
        QVERIFY(fixture.view().pixelSize() < before);
        QVERIFY(isNear(fixture.view().boardPoint(fixture.view().rect().center()), {10000, 7000}));
    }

    void savesAndOpens()
    {
        const QTemporaryDir directory;
        const QString file = directory.filePath("board.json");
        const CanvasFixture fixture(twoPads());
        const ChosenFile saved(file);
        QTest::mouseClick(&findNamed(*fixture.pane, "m_pSaveBoardTB"), Qt::LeftButton);
        QVERIFY(QFileInfo(file).size() > 0);
        const CanvasState before = fixture.state();
        fixture.document().replace({});
        const ChosenFile chosen(file);
        QTest::mouseClick(&findNamed(*fixture.pane, "m_pOpenBoardTB"), Qt::LeftButton);
        QVERIFY(fixture.features() == before.board.features);
        QVERIFY(!fixture.document().history().canUndo());
    }

    void aBadFileChangesNothing()
    {
        const QTemporaryDir directory;
        const QString file = directory.filePath("board.json");
        QFile bad(file);
        QVERIFY(bad.open(QIODevice::WriteOnly));
        bad.write("{ \"format\": 1,\n  \"features\": [ {\n");
        bad.close();
        BoxCatcher boxes;
        const CanvasFixture fixture(twoPads());
        const CanvasState before = fixture.state();
        const ChosenFile chosen(file);
        QTest::mouseClick(&findNamed(*fixture.pane, "m_pOpenBoardTB"), Qt::LeftButton);
        const BoxTextList told = boxes.takeTexts();
        QCOMPARE(told.size(), 1);
        QCOMPARE(told[0].title, QString("Cannot open the board"));
        QVERIFY2(told[0].text.endsWith(QDir::toNativeSeparators(file) + ":3"),
                 qPrintable(told[0].words()));
        QVERIFY(fixture.state() == before);
    }

    void exports_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("beginning");
        QTest::newRow("Gerber") << "board.gbr" << QByteArray("G04 #@! TF.Gene");
        QTest::newRow("PNG") << "board.png" << QByteArray("\x89PNG");
        QTest::newRow("SVG") << "board.svg" << QByteArray("<?xml");
        QTest::newRow("board") << "copy.json" << QByteArray("{");
    }
    void exports()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, beginning);
        const QTemporaryDir directory;
        const CanvasFixture fixture(twoPads());
        fixture.pane->files().exportTo(directory.filePath(name));
        QFile file(directory.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QVERIFY2(text.startsWith(beginning), text.left(20).constData());
    }

    void whatCannotBeWrittenIsTold()
    {
        const CanvasFixture fixture(twoPads());
        const auto exported = [&](const char* file) {
            return errorOf([&] { fixture.pane->files().exportTo(file); });
        };
        QVERIFY(exported("/no/such/place/board.gbr").startsWith("/no/such/place"));
        QVERIFY(
            exported("board.txt").startsWith("board.txt: the name must end in .gbr, .png or .svg"));
        const QString opened =
            errorOf([&] { fixture.pane->files().openAtOnce("/no/such/file.json"); });
        QVERIFY(opened.startsWith("/no/such/file.json: "));
    }

    void whatIsOpenedIsWhatIsSaved()
    {
        const QTemporaryDir directory;
        const QString opened = directory.filePath("opened.json");
        const QString saved = directory.filePath("saved.json");
        const Pcb::Board board{"another job", "another step", QPolygonF(QRectF(0, 0, 9, 9)), {}};
        Pcb::writeBoardFile(board, opened);
        const CanvasFixture fixture(twoPads());
        fixture.pane->files().openAtOnce(opened);
        QCOMPARE(fixture.document().board().job, QString("another job"));
        fixture.pane->files().exportTo(saved);
        QCOMPARE(CanvasHost::readWhole(saved), CanvasHost::readWhole(opened));
    }
};

CTS_TEST(TestBoardView);
#include "test_board_view.moc"
