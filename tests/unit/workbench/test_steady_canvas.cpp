// The canvas of the workbench stays where it is, whatever is shown around it; so a recorded click
// is the click that is played.

#include "FindChild.h"
#include "Main.h"
#include "StartWorkbench.h"
#include "messages/HostState.h"
#include "plugin/MessageCodes.h"
#include "session/SessionParser.h"
#include "session/SessionPlayer.h"
#include "session/SessionRecorder.h"
#include "shared/CanvasControl.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>

#include <random>

namespace Accepted = MessageCodes::Accepted;

class TestSteadyCanvas : public QObject {
    Q_OBJECT

    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<WorkbenchWindow> m_window;
    QTemporaryDir m_folder;

    void openWindow(const QString& language = {})
    {
        m_window.reset();
        Options options;
        options.language = language;
        m_log = std::make_unique<MessageLog>();
        m_window = startWorkbench(*m_log, options);
        m_window->resize(1200, 860);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QTest::qWait(50);
    }
    QAbstractScrollArea& board() const
    {
        return findNamed<QAbstractScrollArea>(*m_window, "m_pBoardView");
    }
    /// A layout that has become too small is redone, and so is the one around it.
    static void settle()
    {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::processEvents();
        }
    }
    QRect place() const
    {
        settle();
        return {board().mapTo(m_window.get(), QPoint()), board().size()};
    }
    QPoint at(double x, double y) const
    {
        QPoint position;
        QMetaObject::invokeMethod(&board(), "viewPoint", Q_RETURN_ARG(QPoint, position),
                                  Q_ARG(double, x), Q_ARG(double, y));
        return position;
    }
    /// As a user does: through the window, which has time to react between two events, and on a
    /// high-resolution screen, where mouse and window may be between two pixels.
    void click(const QWidget& widget, const QPoint& position) const
    {
        const QWidget* const window = widget.window();
        const QPointF local = widget.mapTo(window, position) + QPointF(0.5, 0.5);
        const QPointF global = widget.mapToGlobal(position);
        const auto send = [&](QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
            QMouseEvent event(type, local, local, global, button, held, Qt::NoModifier);
            QCoreApplication::sendEvent(window->windowHandle(), &event);
            settle();
        };
        send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
        send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    }
    void click(const QPoint& position) const { click(board(), position); }
    void click(const char* name) const
    {
        const QWidget& widget = findNamed(*m_window, name);
        click(widget, widget.rect().center());
    }
    QByteArray boardAsFile() const
    {
        const QString file = m_folder.filePath("board.json");
        m_window->canvas()->files().exportTo(file);
        QFile written(file);
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
    }

private Q_SLOTS:
    void cleanup()
    {
        m_window.reset();
        m_log.reset();
    }

    void staysWhateverIsSaid_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("points");
        QTest::addColumn<QSize>("size");
        const QSize usual(1200, 860);
        const QSize least(1, 1);  // then as small as the window can be
        QTest::newRow("English") << "en" << 10 << usual;
        QTest::newRow("English, large") << "en" << 20 << usual;
        QTest::newRow("English, small window") << "en" << 10 << least;
        QTest::newRow("Chinese, large") << "zh_CN" << 20 << usual;
        QTest::newRow("Chinese, small window") << "zh_CN" << 10 << least;
    }
    void staysWhateverIsSaid()
    {
        QFETCH(QString, language);
        QFETCH(int, points);
        const QFont usualFont = QApplication::font();
        QFont font = usualFont;
        font.setPointSize(points);
        QApplication::setFont(font);
        openWindow(language);
        QFETCH(QSize, size);
        m_window->resize(size);
        const QRect expected = place();
        const QSize before = m_window->size();
        QSet<QString> said;
        for (QToolButton* const tool : m_window->findChildren<QToolButton*>()) {
            // The strip's tools; a second window is a different case.
            if (!tool->isCheckable() || !tool->isEnabled() || !tool->isVisible() ||
                !findNamed(*m_window, "m_pStripPanel").isAncestorOf(tool)) {
                continue;
            }
            findNamed<QToolButton>(*m_window, "m_pFitTB").click();
            tool->click();
            for (const QPoint& position : {at(16000, 11000), at(19000, 13000)}) {
                click(position);
                said.insert(findNamed<QLabel>(*m_window, "m_pCanvasStatusLB").text());
                QVERIFY2(place() == expected, qPrintable(tool->objectName()));
            }
        }
        QVERIFY2(said.size() > 5, qPrintable(QStringList(said.values()).join('|')));
        for (const char* const name : {"m_pCanvasStatusLB", "m_pHoveredLB", "m_pPickHintLB"}) {
            const auto& label = findNamed<QLabel>(*m_window, name);
            QVERIFY2(label.height() >= label.fontMetrics().height(), name);
        }
        m_window->host()->send({Accepted::ReleaseAll, {}, qint64(0)});
        QCOMPARE(place(), expected);
        QCOMPARE(m_window->size(), before);
        QApplication::setFont(usualFont);
    }

    void aReleaseIsWhereItsPressWas()
    {
        openWindow();
        findNamed<QToolButton>(*m_window, "m_pFeatureSelectionTB").click();
        const QPoint position = at(16000, 11000);
        const auto place = [&] {
            QPointF point;
            QMetaObject::invokeMethod(&board(), "boardPoint", Q_RETURN_ARG(QPointF, point),
                                      Q_ARG(QPoint, position));
            return point;
        };
        QTest::mouseMove(board().viewport(), position);
        const QPointF before = place();
        QTest::mousePress(board().viewport(), Qt::LeftButton, {}, position);
        QTest::qWait(20);  // "1 feature selected." is shown meanwhile
        QCOMPARE(place(), before);
        QTest::mouseRelease(board().viewport(), Qt::LeftButton, {}, position);
        QTest::qWait(20);
        QCOMPARE(place(), before);
    }

    void aClickRecordedIsTheClickPlayed()
    {
        const QString file = m_folder.filePath("hands.session");
        openWindow();
        {
            SessionRecorder recorder(m_window.get());
            recorder.start(file);
            std::mt19937 random(3);
            const auto anywhere = [&] {
                return QPoint(60 + int(random() % 500), 60 + int(random() % 300));
            };
            // What is under the mouse is named below the board, in an otherwise empty place.
            for (int i = 0; i < 6; ++i) {
                click("m_pBreakLineTB");
                click(at(5200 + 1500 * i, 9500) + QPoint(int(random() % 7), 0));
                click("m_pMoveFeatureTB");
                click(at(19500, 13500));
            }
            click("m_pAddFeatureTB");
            QTest::qWait(50);
            click("m_pSurfaceTB");
            for (int i = 0; i < 8; ++i) {
                click(anywhere());
            }
        }
        const QByteArray byHand = boardAsFile();
        QVERIFY(byHand.count("surface") > 3);

        openWindow();
        QFile recorded(file);
        QVERIFY(recorded.open(QIODevice::ReadOnly));
        const QByteArray steps = recorded.readAll();
        SessionPlayer player(SessionParser::read(steps, file), m_window->host(), m_window.get(),
                             m_log.get());
        const QSignalSpy finished(&player, &SessionPlayer::finished);
        const QSignalSpy failed(&player, &SessionPlayer::failed);
        player.start();
        QVERIFY(QTest::qWaitFor([&] { return finished.count() + failed.count() > 0; }, 30000));
        QVERIFY2(failed.isEmpty(), qPrintable(failed.value(0).value(0).toString()));
        QVERIFY2(boardAsFile() == byHand, steps);
    }
};

CTS_TEST(TestSteadyCanvas);
#include "test_steady_canvas.moc"
