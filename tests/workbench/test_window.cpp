// The host's window: its menus, its title, and what is dropped on it.

#include "ErrorOf.h"
#include "FindChild.h"
#include "Main.h"
#include "StartWorkbench.h"
#include "messages/HostState.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "session/SessionParser.h"
#include "session/SessionPlayer.h"
#include "shared/CanvasControl.h"
#include "shared/FileQuestion.h"
#include "shared/Settings.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <memory>

namespace {

/// Answers every box, and keeps what it said.
class Boxes {
public:
    explicit Boxes(QMessageBox::StandardButton answer)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, answer] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                told.append(box->windowTitle() + "|" + box->text());
                box->button(answer)->click();
            }
        });
        m_timer.start(10);
    }
    QStringList told;

private:
    QTimer m_timer;
};

}  // namespace

class TestWindow : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_directory;
    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<WorkbenchWindow> m_window;

    QStringList entries(const char* menu) const
    {
        QStringList names;
        for (const QAction* const action : findNamed<QMenu>(*m_window, menu).actions()) {
            names.append(action->isSeparator() ? QString("-")
                         : action->menu()      ? action->menu()->objectName()
                                               : action->objectName());
        }
        return names;
    }
    QAction& action(const char* name) const { return *m_window->findChild<QAction*>(name); }

    void drop(const QString& file) const
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        auto& board = *findNamed<QAbstractScrollArea>(*m_window, "m_pBoardView").viewport();
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&board, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&board, &drop);
    }
    /// Answers the file dialog that comes next.
    static void chooseFile(const QString& file)
    {
        QTimer::singleShot(100, [file] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog) {
                auto& name = findNamed<QLineEdit>(*dialog, "fileNameEdit");
                name.setText(file);
                QTest::keyClick(&name, Qt::Key_Return);
            }
        });
    }
    void restart(const Options& options)
    {
        m_window.reset();
        m_log = std::make_unique<MessageLog>();
        m_window = startWorkbench(*m_log, options);
        m_window->show();
    }
    void play(const QByteArray& steps) const
    {
        SessionPlayer player(SessionParser::read(steps, "test"), m_window->host(), m_window.get(),
                             m_log.get());
        QSignalSpy finished(&player, &SessionPlayer::finished);
        QSignalSpy failed(&player, &SessionPlayer::failed);
        player.start();
        QVERIFY(finished.wait(10000));
        QVERIFY(failed.isEmpty());
    }
    QString write(const char* name, const QByteArray& text) const
    {
        QFile file(m_directory.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
            qFatal("%s", qPrintable(file.errorString()));
        }
        return file.fileName();
    }
    /// A job with the one step "first".
    QString writeJob(const QByteArray& name) const
    {
        return write("job.json", R"({"format":1,"jobs":[{"name":")" + name +
                                     R"(","steps":["first"],"fonts":[],"specialSymbols":[],
                                     "userSymbols":[],"specialTexts":[],"attributes":[]}]})");
    }
    QString writeBoard(const QTemporaryDir& directory) const
    {
        const QString file = directory.filePath("dropped.json");
        QFile board(file);
        if (!board.open(QIODevice::WriteOnly)) {
            qFatal("%s", qPrintable(board.errorString()));
        }
        board.write(R"({"format":1,"job":"a","step":"b","outline":[],"features":[]})");
        return file;
    }

private Q_SLOTS:
    void init() { restart({}); }
    void cleanup()
    {
        Settings::keepIn({});
        m_window.reset();
        m_log.reset();
    }

    void menus()
    {
        QStringList titles;
        for (const QAction* const menu : m_window->menuBar()->actions()) {
            titles.append(menu->text());
        }
        QCOMPARE(titles, QStringList({"&File", "&Edit", "&View", "&Send", "&Help"}));
        QCOMPARE(entries("m_pFileMenu"),
                 QStringList({"m_pNewBoardAct", "m_pOpenBoardAct", "m_pOpenJobAct", "m_pRecentMenu",
                              "m_pSaveBoardAct", "m_pSaveBoardAsAct", "m_pExportBoardAct", "-",
                              "m_pSaveTraceAct", "m_pSavePictureAct", "m_pRecordAct", "-", "m_pQuitAct"}));
        QCOMPARE(entries("m_pEditMenu"),
                 QStringList({"m_pUndoAct", "m_pRedoAct", "-", "m_pSelectAllAct", "m_pDeselectAct",
                              "m_pDeleteAct"}));
        QCOMPARE(entries("m_pViewMenu").mid(0, 5),
                 QStringList({"m_pFitAct", "m_pZoomInAct", "m_pZoomOutAct", "m_pSnapAct", "-"}));
        QVERIFY(entries("m_pSendMenu").contains("m_pSend20000202Act"));
        QCOMPARE(entries("m_pHelpMenu"), QStringList({"m_pDocumentationAct", "m_pAboutAct"}));
    }

    void noShortcutStandsTwice()
    {
        QStringList shortcuts;
        for (const QAction* const each : m_window->findChildren<QAction*>()) {
            if (!each->shortcut().isEmpty()) {
                shortcuts.append(each->shortcut().toString());
            }
        }
        QVERIFY(shortcuts.size() > 10);
        QCOMPARE(shortcuts.removeDuplicates(), 0);
    }

    void undoSaysWhatItUndoes()
    {
        QCOMPARE(action("m_pUndoAct").text(), QString("&Undo"));
        action("m_pSelectAllAct").trigger();
        QCOMPARE(action("m_pUndoAct").text(), QString("&Undo Select all"));
        action("m_pDeleteAct").trigger();
        QCOMPARE(action("m_pUndoAct").text(), QString("&Undo Delete"));
        action("m_pUndoAct").trigger();
        QCOMPARE(action("m_pRedoAct").text(), QString("&Redo Delete"));
        QCOMPARE(action("m_pUndoAct").iconText(), QString("Undo"));
    }

    void titleAndDroppedFile()
    {
        const QTemporaryDir directory;
        const QString file = writeBoard(directory);
        QCOMPARE(m_window->windowTitle(), QString("demo / pcb[*] - Workbench"));
        drop(file);
        QCOMPARE(m_window->windowTitle(), QString("dropped.json[*] - demo / pcb - Workbench"));
        QVERIFY(!m_window->isWindowModified());
        action("m_pSelectAllAct").trigger();
        QVERIFY(!m_window->isWindowModified());
    }

    void theJobTreeMarksTheOpenStep()
    {
        const auto& tree = findNamed<QTreeWidget>(*m_window, "m_pJobTreeTW");
        const auto marked = [this] {
            QStringList steps;
            for (QTreeWidgetItemIterator item(&findNamed<QTreeWidget>(*m_window, "m_pJobTreeTW"));
                 *item; ++item) {
                if ((*item)->font(0).bold()) {
                    steps.append((*item)->parent()->text(0) + "/" + (*item)->text(0));
                }
            }
            return steps.join(' ');
        };
        QCOMPARE(marked(), QString("demo/pcb"));
        QCOMPARE(tree.currentItem()->text(0), QString("pcb"));
        findNamed<QComboBox>(*m_window, "m_pHostStepCMB").setCurrentText("panel");
        QCOMPARE(marked(), QString("demo/panel"));
        findNamed<QComboBox>(*m_window, "m_pHostJobCMB").setCurrentText("sensor_board");
        QCOMPARE(marked(), QString("sensor_board/pcb"));
        Q_EMIT findNamed<QTreeWidget>(*m_window, "m_pJobTreeTW")
            .itemDoubleClicked(tree.topLevelItem(0)->child(1), 0);
        QCOMPARE(marked(), QString("demo/array"));
        QCOMPARE(m_window->windowTitle(), QString("demo / array[*] - Workbench"));
    }

    void pluralsArePlurals_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QStringList>("counts");
        QTest::addColumn<QStringList>("selected");
        QTest::newRow("English") << "English"
                                 << QStringList{"0 messages", "1 message", "2 messages",
                                                "0 of 2 messages"}
                                 << QStringList{"1 feature selected.", "2 features selected."};
        QTest::newRow("Chinese")
            << QString::fromUtf8("\u7b80\u4f53\u4e2d\u6587")
            << QStringList{QString::fromUtf8("0 \u6761\u6d88\u606f"),
                           QString::fromUtf8("1 \u6761\u6d88\u606f"),
                           QString::fromUtf8("2 \u6761\u6d88\u606f"),
                           QString::fromUtf8("0 / 2 \u6761\u6d88\u606f")}
            << QStringList{QString::fromUtf8("\u5df2\u9009\u62e9 1 \u4e2a\u56fe\u5143\u3002"),
                           QString::fromUtf8("\u5df2\u9009\u62e9 2 \u4e2a\u56fe\u5143\u3002")};
    }

    void pluralsArePlurals()
    {
        QFETCH(QString, language);
        QFETCH(QStringList, counts);
        QFETCH(QStringList, selected);
        findNamed<QComboBox>(*m_window, "m_pHostLanguageCMB").setCurrentText(language);
        auto& filter = findNamed<QLineEdit>(*m_window, "m_pMonitorFilterLE");
        const auto& count = findNamed<QLabel>(*m_window, "m_pMonitorCountLB");
        QStringList counted;
        m_log->clear();
        for (int sent = 0; sent < 3; ++sent) {
            counted.append(count.text());
            m_window->host()->sendSample(MessageCodes::Accepted::JobName);
        }
        m_log->clear();
        m_window->host()->sendSample(MessageCodes::Accepted::JobName);
        m_window->host()->sendSample(MessageCodes::Accepted::JobName);
        filter.setText("nothing has this");
        counted.append(count.text());
        QCOMPARE(counted, counts);
        const auto& status = findNamed<QLabel>(*m_window, "m_pCanvasStatusLB");
        findNamed<QToolButton>(*m_window, "m_pFeatureSelectionTB").click();
        auto& board = findNamed<QAbstractScrollArea>(*m_window, "m_pBoardView");
        QStringList said;
        const std::pair<double, Qt::KeyboardModifiers> clicks[] = {{17500, Qt::NoModifier},
                                                                   {3700, Qt::ControlModifier}};
        for (const auto& [x, modifiers] : clicks) {
            QPoint place;
            QMetaObject::invokeMethod(&board, "viewPoint", Q_RETURN_ARG(QPoint, place),
                                      Q_ARG(double, x), Q_ARG(double, x > 9000 ? 5400 : 3400));
            QTest::mouseClick(board.viewport(), Qt::LeftButton, modifiers, place);
            said.append(status.text());
        }
        QCOMPARE(said, selected);
    }

    void recordingIsStartedAndStoppedFromTheMenu()
    {
        const QString file = m_directory.filePath("mine.session");
        findNamed<QComboBox>(*m_window, "m_pHostUnitCMB").setCurrentText("millimetre");
        QCOMPARE(action("m_pRecordAct").text(), QString("&Record Session..."));
        chooseFile(file);
        action("m_pRecordAct").trigger();
        QCOMPARE(action("m_pRecordAct").text(), QString("Stop &Recording"));
        play("click m_pMoveFeatureTB\nmenu m_pFileMenu m_pRecordAct\nclick m_pMarkTB\n");
        QCOMPARE(action("m_pRecordAct").text(), QString("&Record Session..."));
        QFile recorded(file);
        QVERIFY(recorded.open(QIODevice::ReadOnly));
        QCOMPARE(recorded.readAll(),
                 QByteArray("# Recorded by hand.\n"
                            "# It begins with --unit mm --language en, in demo / pcb.\n"
                            "click m_pMoveFeatureTB\n"));
    }

    void aRecordingThatCannotBeWrittenIsTold()
    {
        const auto failing = [this] { m_window->record(m_directory.filePath("no/a.session")); };
        QVERIFY(!errorOf(failing).isEmpty());
        QCOMPARE(action("m_pRecordAct").text(), QString("&Record Session..."));
    }

    void choicesAreRemembered()
    {
        Settings::keepIn(m_directory.filePath(QTest::currentTestFunction()));
        init();
        findNamed<QComboBox>(*m_window, "m_pHostUnitCMB").setCurrentIndex(3);
        findNamed<QComboBox>(*m_window, "m_pHostLanguageCMB").setCurrentIndex(1);
        action("m_pSnapAct").trigger();
        auto& grid = findNamed<QLineEdit>(*m_window, "m_pGridStepLE");
        grid.setFocus();
        grid.clear();
        QTest::keyClicks(&grid, "0.25");
        QTest::keyClick(&grid, Qt::Key_Return);
        Options options;
        options.recall();
        restart(options);
        QCOMPARE(findNamed<QComboBox>(*m_window, "m_pHostUnitCMB").currentIndex(), 3);
        QCOMPARE(findNamed<QComboBox>(*m_window, "m_pHostLanguageCMB").currentIndex(), 1);
        QVERIFY(action("m_pSnapAct").isChecked());
        QCOMPARE(findNamed<QLineEdit>(*m_window, "m_pGridStepLE").text(), QString("0.250 mm"));
        QVERIFY(action("m_pQuitAct").text() != "&Quit");
    }

    void optionsComeBeforeWhatIsRemembered()
    {
        Settings::keepIn(m_directory.filePath(QTest::currentTestFunction()));
        Settings::choose("unit", "mm");
        Settings::choose("language", "zh_CN");
        Options options = Options::parse({"workbench", "--unit", "inch"});
        options.recall();
        QCOMPARE(options.unit, CanvasHost::DisplayUnit::Inch);
        QCOMPARE(options.language, QString("zh_CN"));
        options = Options::parse({"workbench", "--language", "en"});
        options.recall();
        QCOMPARE(options.unit, CanvasHost::DisplayUnit::Millimetre);
        QCOMPARE(options.language, QString("en"));
        Settings::choose("unit", "foot");
        Settings::choose("language", "fr");
        options = Options::parse({"workbench"});
        options.recall();
        QCOMPARE(options.unit, CanvasHost::DisplayUnit::Mil);
        QCOMPARE(options.language, QString("en"));
    }

    void aDroppedJobIsOpened()
    {
        drop(writeJob("mine"));
        QCOMPARE(m_window->windowTitle(), QString("mine / first[*] - Workbench"));
        const auto& jobs = findNamed<QComboBox>(*m_window, "m_pHostJobCMB");
        QCOMPARE(jobs.count(), 1);
        const auto& tree = findNamed<QTreeWidget>(*m_window, "m_pJobTreeTW");
        QCOMPARE(tree.topLevelItemCount(), 1);
        QCOMPARE(tree.topLevelItem(0)->text(0), QString("mine"));
    }

    void aJobIsOpenedFromTheMenu()
    {
        const QString file = writeJob("mine");
        const Boxes boxes(QMessageBox::Ok);
        chooseFile(file);
        action("m_pOpenJobAct").trigger();
        QCOMPARE(m_window->windowTitle(), QString("mine / first[*] - Workbench"));
        QCOMPARE(LastFolder::path(), m_directory.path());
        QVERIFY(boxes.told.isEmpty());
    }

    void anotherJobAsksForTheChangesOfThisOne()
    {
        action("m_pSelectAllAct").trigger();
        action("m_pDeleteAct").trigger();
        const QString file = writeJob("demo");
        {
            const Boxes boxes(QMessageBox::Cancel);
            drop(file);
            QCOMPARE(boxes.told.size(), 1);
            QVERIFY(m_window->windowTitle().startsWith("demo / pcb"));
        }
        const Boxes boxes(QMessageBox::Discard);
        drop(file);
        QCOMPARE(m_window->windowTitle(), QString("demo / first[*] - Workbench"));
        QVERIFY(!m_window->isWindowModified());
        // The board of a step with the same name is not that of the job before.
        m_window->host()->openStep("demo", "pcb");
        QVERIFY(!action("m_pUndoAct").isEnabled());
        QVERIFY(m_window->canvas()->files().mayClose());
        QCOMPARE(boxes.told.size(), 1);
    }

    void theStripIsToldOfAJobOfTheSameName()
    {
        drop(writeJob("demo"));
        QStringList told;
        for (const MessageRecord& message : m_log->messages()) {
            told.append(message.receiver + " " + QString::number(message.code));
        }
        QCOMPARE(told.count(ModuleNames::toolStrip + " 20002003"), 2);
    }

    void aFileOfAnotherKindIsToldAsWhatItIs()
    {
        const Boxes boxes(QMessageBox::Ok);
        m_window->canvas()->files().open(JOB_FILE);
        const QString file = write("a.session", "# words\nclick m_pMarkTB\n");
        drop(file);
        chooseFile(writeBoard(m_directory));
        action("m_pOpenJobAct").trigger();
        QCOMPARE(boxes.told.size(), 3);
        QVERIFY2(
            boxes.told[0].startsWith("Cannot open the board|This is a job file, not a board\n\n"),
            qPrintable(boxes.told[0]));
        QCOMPARE(boxes.told[1], "Cannot open the board|This is a session, not a board\n\n" +
                                    QDir::toNativeSeparators(file));
        QVERIFY2(
            boxes.told[2].startsWith("Cannot open the job|This is a board, not a job file\n\n"),
            qPrintable(boxes.told[2]));
        QCOMPARE(m_window->windowTitle(), QString("demo / pcb[*] - Workbench"));
    }

    void closingAsks()
    {
        QSignalSpy closed(m_window.get(), &WorkbenchWindow::closed);
        action("m_pSelectAllAct").trigger();
        action("m_pDeleteAct").trigger();
        QVERIFY(m_window->isWindowModified());
        QTimer::singleShot(50, [] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                box->button(QMessageBox::Cancel)->click();
            }
        });
        action("m_pQuitAct").trigger();
        QVERIFY(m_window->isVisible());
        QCOMPARE(closed.count(), 0);
        m_window->canvas()->files().setMayAsk([] { return false; });
        action("m_pQuitAct").trigger();
        QVERIFY(!m_window->isVisible());
        QCOMPARE(closed.count(), 1);
    }

    void layoutIsRememberedAndRestored()
    {
        Settings::keepIn(m_directory.filePath(QTest::currentTestFunction()));
        init();
        const QSize first = m_window->size();
        auto& monitor = findNamed(*m_window, "m_pMonitorDock");
        QVERIFY(monitor.isVisible());
        monitor.hide();
        m_window->resize(first - QSize(20, 30));
        m_window->move(17, 39);
        m_window->close();
        init();
        QCOMPARE(m_window->size(), first - QSize(20, 30));
        QCOMPARE(m_window->pos(), QPoint(17, 39));
        QVERIFY(!findNamed(*m_window, "m_pMonitorDock").isVisible());
        action("m_pRestoreLayoutAct").trigger();
        QCOMPARE(m_window->size(), first);
        QVERIFY(findNamed(*m_window, "m_pMonitorDock").isVisible());
        QTRY_VERIFY(findNamed(*m_window, "m_pMonitorDock").height() > 100);
    }

    void aSecondInstanceIsOffset()
    {
        Settings::keepIn(m_directory.filePath(QTest::currentTestFunction()));
        init();
        const auto second = startWorkbench(*m_log);
        QVERIFY(second->pos().x() > m_window->pos().x());
        QVERIFY(second->pos().y() > m_window->pos().y());
        QVERIFY(second->screen()->availableGeometry().contains(second->frameGeometry()));
        second->close();
        QVERIFY(!Settings::value("window/geometry").isValid());
        m_window->close();
        QVERIFY(Settings::value("window/geometry").isValid());
    }

    void recentFiles()
    {
        Settings::keepIn(m_directory.filePath(QTest::currentTestFunction()));
        const auto list = [this] {
            Q_EMIT findNamed<QMenu>(*m_window, "m_pFileMenu").aboutToShow();
            return findNamed<QMenu>(*m_window, "m_pRecentMenu").actions();
        };
        QVERIFY(list().isEmpty());
        const QString file = writeBoard(m_directory);
        m_window->canvas()->files().open(file);
        action("m_pNewBoardAct").trigger();
        QCOMPARE(m_window->windowTitle(), QString("demo / pcb[*] - Workbench"));
        QCOMPARE(list().size(), 1);
        QCOMPARE(list()[0]->text(), QDir::toNativeSeparators(file));
        list()[0]->trigger();
        QVERIFY(m_window->windowTitle().startsWith("dropped.json"));
    }

    void withoutSettingsNothingIsKept()
    {
        const QSize first = m_window->size();
        m_window->resize(first - QSize(20, 30));
        m_window->close();
        init();
        QCOMPARE(m_window->size(), first);
    }

    void documentation()
    {
        action("m_pDocumentationAct").trigger();
        const auto& pages = findNamed<QTextBrowser>(*m_window, "m_pDocumentation");
        QVERIFY(pages.isVisible() && pages.isWindow());
        QVERIFY2(pages.toPlainText().startsWith("The canvas of the workbench"),
                 qPrintable(pages.toPlainText().left(80)));
    }
};

CTS_TEST(TestWindow);
#include "test_window.moc"
