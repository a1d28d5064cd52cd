// The files that the window opens and writes: boards, jobs and sessions.

#include "ErrorOf.h"
#include "Main.h"
#include "WindowFixture.h"
#include "plugin/ModuleNames.h"
#include "shared/CanvasControl.h"
#include "shared/FileQuestion.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QTreeWidget>

class TestWindowFiles : public QObject, private WindowFixture {
    Q_OBJECT

private Q_SLOTS:
    void init() { restart({}); }
    void cleanup() { end(); }

    void titleAndDroppedFile()
    {
        const QString file = writeBoard();
        QCOMPARE(m_window->windowTitle(), QString("demo / pcb[*] - Workbench"));
        drop(file);
        QCOMPARE(m_window->windowTitle(), QString("dropped.json[*] - demo / pcb - Workbench"));
        QVERIFY(!m_window->isWindowModified());
        action("m_pSelectAllAct").trigger();
        QVERIFY(!m_window->isWindowModified());
    }

    void recordingIsStartedAndStoppedFromTheMenu()
    {
        const QString file = m_directory.filePath("mine.session");
        findNamed<QComboBox>(*m_window, "m_pHostUnitCMB").setCurrentText("millimetre");
        QCOMPARE(action("m_pRecordAct").text(), QString("Re&cord Session..."));
        const ChosenFile chosen(file);
        action("m_pRecordAct").trigger();
        QCOMPARE(action("m_pRecordAct").text(), QString("Stop Re&cording"));
        play("click m_pMoveFeatureTB\nmenu m_pFileMenu m_pRecordAct\nclick m_pMarkTB\n");
        QCOMPARE(action("m_pRecordAct").text(), QString("Re&cord Session..."));
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
        QCOMPARE(action("m_pRecordAct").text(), QString("Re&cord Session..."));
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
        const BoxButton boxes(QMessageBox::Ok);
        const ChosenFile chosen(file);
        action("m_pOpenJobAct").trigger();
        QCOMPARE(m_window->windowTitle(), QString("mine / first[*] - Workbench"));
        QCOMPARE(LastFolder::path(), m_directory.path());
        QVERIFY(boxes.texts.isEmpty());
    }

    void anotherJobAsksForTheChangesOfThisOne()
    {
        action("m_pSelectAllAct").trigger();
        action("m_pDeleteAct").trigger();
        const QString file = writeJob("demo");
        {
            const BoxButton boxes(QMessageBox::Cancel);
            drop(file);
            QCOMPARE(boxes.texts.size(), 1);
            QVERIFY(m_window->windowTitle().startsWith("demo / pcb"));
        }
        const BoxButton boxes(QMessageBox::Discard);
        drop(file);
        QCOMPARE(m_window->windowTitle(), QString("demo / first[*] - Workbench"));
        QVERIFY(!m_window->isWindowModified());
        // The board of a step with the same name is not that of the job before.
        m_window->host()->openStep("demo", "pcb");
        QVERIFY(!action("m_pUndoAct").isEnabled());
        QVERIFY(m_window->canvas()->files().mayClose());
        QCOMPARE(boxes.texts.size(), 1);
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
        const BoxButton boxes(QMessageBox::Ok);
        m_window->canvas()->files().open(JOB_FILE);
        const QString file = write("a.session", "# words\nclick m_pMarkTB\n");
        drop(file);
        const ChosenFile chosen(writeBoard());
        action("m_pOpenJobAct").trigger();
        QCOMPARE(boxes.texts.size(), 3);
        QVERIFY2(
            boxes.texts[0].startsWith("Cannot open the board|This is a job file, not a board\n\n"),
            qPrintable(boxes.texts[0]));
        QCOMPARE(boxes.texts[1], "Cannot open the board|This is a session, not a board\n\n" +
                                     QDir::toNativeSeparators(file));
        QVERIFY2(
            boxes.texts[2].startsWith("Cannot open the job|This is a board, not a job file\n\n"),
            qPrintable(boxes.texts[2]));
        QCOMPARE(m_window->windowTitle(), QString("demo / pcb[*] - Workbench"));
    }

    void whatACrashHasLeftIsRecoveredInItsJob()
    {
        Settings::keepIn(m_directory.filePath(QTest::currentTestFunction()));
        const QString job = QFileInfo(writeJob("mine")).canonicalFilePath();
        QVERIFY(QDir().mkpath(Settings::beside(".recovery/0")));
        QFile left(Settings::beside(".recovery/0/0.kept"));
        QVERIFY(left.open(QIODevice::WriteOnly));
        left.write(R"({"jobFile":")" + job.toUtf8() +
                   R"(","job":"mine","step":"first","file":""})" +
                   "\n"
                   R"({"format":1,"job":"a","step":"b","outline":[],"features":[]})");
        left.close();
        m_window->canvas()->files().keepForRecovery();
        findNamed<QAbstractButton>(*m_window, "m_pRecoverPB").click();
        QCOMPARE(m_window->windowTitle(), QString("mine / first[*] - Workbench"));
        QVERIFY(m_window->isWindowModified());
        QVERIFY(!left.exists());
        m_window.reset();
        QVERIFY(!QFileInfo::exists(Settings::beside(".recovery")));
    }

    void recentFiles()
    {
        Settings::keepIn(m_directory.filePath(QTest::currentTestFunction()));
        const auto list = [this] {
            Q_EMIT findNamed<QMenu>(*m_window, "m_pFileMenu").aboutToShow();
            return findNamed<QMenu>(*m_window, "m_pRecentMenu").actions();
        };
        QVERIFY(list().isEmpty());
        const QString file = writeBoard();
        m_window->canvas()->files().open(file);
        action("m_pNewBoardAct").trigger();
        QCOMPARE(m_window->windowTitle(), QString("demo / pcb[*] - Workbench"));
        QCOMPARE(list().size(), 1);
        QCOMPARE(list()[0]->text(), QDir::toNativeSeparators(file));
        list()[0]->trigger();
        QVERIFY(m_window->windowTitle().startsWith("dropped.json"));
        QVERIFY(QFile::copy(file, m_directory.filePath("a&b.json")));
        m_window->canvas()->files().open(m_directory.filePath("a&b.json"));
        QCOMPARE(QFileInfo(list()[0]->text()).fileName(), QString("a&&b.json"));
    }
};

CTS_TEST(TestWindowFiles);
#include "test_window_files.moc"
