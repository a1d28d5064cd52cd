// What takes long shows how far it has come, and can be cancelled.

#include "CanvasFixture.h"
#include "Main.h"
#include "board/BoardFile.h"
#include "viewer/FileActions.h"
#include "viewer/LongWork.h"

#include <FileError.h>

#include <QAbstractButton>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProgressBar>
#include <QProgressDialog>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTimer>

#include <atomic>

namespace {

enum class CancelBy { Nothing, Button, Escape, Closing };

/// What the progress dialog looks like while it is shown; may cancel it.
class ProgressWatcher {
public:
    explicit ProgressWatcher(CancelBy by = CancelBy::Nothing)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, by] {
            auto* const dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
            const QCursor* const cursor = QGuiApplication::overrideCursor();
            wasBusy = wasBusy || (cursor && cursor->shape() == Qt::BusyCursor);
            if (dialog) {
                ++looks;
                texts.append(dialog->labelText());
                values.append(findNamed<QProgressBar>(*dialog, "m_pProgressBar").value());
                hasSeenEnough =
                    by == CancelBy::Nothing ? values.last() > 700 : texts.last() == "Cancelling...";
                if (by == CancelBy::Button) {
                    findNamed<QAbstractButton>(*dialog, "m_pProgressCancelPB").click();
                } else if (by == CancelBy::Escape) {
                    QTest::keyClick(dialog, Qt::Key_Escape);
                } else if (by == CancelBy::Closing) {
                    dialog->close();
                }
            }
        });
        m_timer.start(20);
    }
    QStringList texts;
    QVector<int> values;
    bool wasBusy = false;
    std::atomic<int> looks{0};
    std::atomic<bool> hasSeenEnough{false};

private:
    QTimer m_timer;
};

/// Tells a progress that comes with each look, until the watcher has seen enough of it.
void takeTime(const Pcb::Progress& progress, const ProgressWatcher& watcher)
{
    QElapsedTimer since;
    since.start();
    while (!watcher.hasSeenEnough && since.elapsed() < 30000) {
        progress.tell(qMin(watcher.looks / 20.0, 1.0));
        QThread::msleep(1);
    }
}

Pcb::Board boardOfPads(int count)
{
    Pcb::Board board;
    board.outline = QVector<QPointF>{{0, 0}, {20000, 0}, {20000, 14000}, {0, 14000}};
    board.features = manyPads(count);
    return board;
}

/// The text of a board whose one feature is there a hundred thousand times.
QByteArray withManyFeatures(const QByteArray& text)
{
    const int from = text.indexOf("{\"kind\"");
    const int end = text.indexOf('\n', from);
    const QByteArray feature = text.mid(from, end - from);
    return text.left(from) + (feature + ",\n").repeated(100000) + text.mid(from);
}

}  // namespace

Q_DECLARE_METATYPE(CancelBy)

class TestLongWork : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(!QGuiApplication::overrideCursor()); }

    void whatIsShortShowsNothing()
    {
        const ProgressWatcher watcher;
        QVERIFY(LongWork::run(nullptr, "work", [](const Pcb::Progress&) {}));
        QTest::qWait(50);
        QVERIFY(!watcher.wasBusy);
        QVERIFY(watcher.texts.isEmpty());
    }

    void whatTakesLongShowsHowFarItHasCome()
    {
        QWidget window;
        const ProgressWatcher watcher;
        QVERIFY(LongWork::run(&window, "work",
                              [&](const Pcb::Progress& progress) { takeTime(progress, watcher); }));
        QVERIFY(watcher.wasBusy);
        QVERIFY(watcher.hasSeenEnough);
        QCOMPARE(watcher.texts.last(), QString("work"));
        QVERIFY(watcher.values.last() > watcher.values.first());
        QVERIFY(watcher.values.last() <= 1000);
    }

    void itCanBeCancelled_data()
    {
        QTest::addColumn<CancelBy>("by");
        QTest::newRow("button") << CancelBy::Button;
        QTest::newRow("Escape") << CancelBy::Escape;
        QTest::newRow("closing the dialog") << CancelBy::Closing;
    }

    void itCanBeCancelled()
    {
        QFETCH(CancelBy, by);
        QWidget window;
        const ProgressWatcher watcher(by);
        QElapsedTimer since;
        since.start();
        QVERIFY(!LongWork::run(&window, "work", [&](const Pcb::Progress& progress) {
            // The dialog is there until the work has ended.
            const auto endSlowly = qScopeGuard([&] { takeTime({}, watcher); });
            takeTime(progress, watcher);
        }));
        QVERIFY(since.elapsed() < 30000);
        QVERIFY(since.elapsed() >= 500);
        QCOMPARE(watcher.texts.last(), QString("Cancelling..."));
    }

    void whatGoesWrongIsThrown()
    {
        const auto fail = [](const Pcb::Progress&) {
            throw CanvasHost::FileError{"file", 3, "is wrong"};
        };
        try {
            LongWork::run(nullptr, "work", fail);
            QFAIL("nothing was thrown");
        } catch (const CanvasHost::FileError& error) {
            QCOMPARE(error.text(), QString("file:3: is wrong"));
        }
    }

    /// Everything that is done with a file, cancelled at its first, middle and last report.
    void nothingIsWrittenByWhatIsCancelled()
    {
        const QTemporaryDir folder;
        const Pcb::Board board = boardOfPads(1000);
        Pcb::writeBoardFile(board, folder.filePath("whole.json"));
        for (const QString suffix : {"json", "gbr", "png", "svg"}) {
            const QString file = folder.filePath("half." + suffix);
            QVector<double> reports;
            Pcb::exportBoard(board, file,
                             Pcb::Progress([&](double share) { reports.append(share); }));
            QVERIFY(reports.size() > 10);
            QVERIFY(std::is_sorted(reports.begin(), reports.end()));
            QFile(file).remove();
            for (const int last : {0, reports.size() / 2, reports.size() - 1}) {
                int count = 0;
                const auto cancel = [&](double) {
                    if (count++ == last) {
                        throw Pcb::Cancelled();
                    }
                };
                QVERIFY_EXCEPTION_THROWN(Pcb::exportBoard(board, file, Pcb::Progress(cancel)),
                                         Pcb::Cancelled);
                QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("whole.json"));
            }
        }
    }

    void openingIsCancelledAtEachOfItsReports()
    {
        const QByteArray text = Pcb::toJson(boardOfPads(1000));
        int all = 0;
        Pcb::fromJson(text, {}, Pcb::Progress([&](double) { ++all; }));
        QVERIFY(all > 10);
        for (int last = 0; last < all; ++last) {
            int count = 0;
            const auto cancel = [&](double) {
                if (count++ == last) {
                    throw Pcb::Cancelled();
                }
            };
            QVERIFY_EXCEPTION_THROWN(Pcb::fromJson(text, {}, Pcb::Progress(cancel)),
                                     Pcb::Cancelled);
        }
    }

    void aLargeBoardThatIsCancelledIsNotOpened()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("large.json");
        QFile written(file);
        QVERIFY(written.open(QIODevice::WriteOnly));
        written.write(withManyFeatures(Pcb::toJson(boardOfPads(1))));
        written.close();
        const CanvasFixture fixture({Pcb::Feature(Pcb::padGeometry("r60", {5000, 5000}))});
        auto& files = *fixture.pane->findChild<FileActions*>();
        {
            const ProgressWatcher watcher(CancelBy::Button);
            QVERIFY(!files.open(file));
            QCOMPARE(watcher.texts.value(0), QString("Opening large.json..."));
        }
        QCOMPARE(int(fixture.features().size()), 1);
        QCOMPARE(files.file(), QString());
        QCOMPARE(fixture.text("m_pCanvasStatusLB"), QString("Cancelled."));
    }
};

CTS_TEST(TestLongWork);
#include "test_long_work.moc"
