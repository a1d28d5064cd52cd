// The host's window: its menus, its title, and what is dropped on it.

#include "FindChild.h"
#include "Main.h"
#include "StartWorkbench.h"
#include "shared/CanvasControl.h"
#include "shared/Settings.h"

#include <QAbstractButton>
#include <QDir>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>

#include <memory>

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
    void init()
    {
        m_window.reset();
        m_log = std::make_unique<MessageLog>();
        m_window = startWorkbench(*m_log);
        m_window->show();
    }
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
                 QStringList({"m_pNewBoardAct", "m_pOpenBoardAct", "m_pRecentMenu",
                              "m_pSaveBoardAct", "m_pSaveBoardAsAct", "m_pExportBoardAct", "-",
                              "m_pSaveTraceAct", "m_pSavePictureAct", "-", "m_pQuitAct"}));
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
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        auto& board = *findNamed<QAbstractScrollArea>(*m_window, "m_pBoardView").viewport();
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&board, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&board, &drop);
        QCOMPARE(m_window->windowTitle(), QString("dropped.json[*] - demo / pcb - Workbench"));
        QVERIFY(!m_window->isWindowModified());
        action("m_pSelectAllAct").trigger();
        QVERIFY(!m_window->isWindowModified());
    }

    void aFileThatIsNoBoardIsTold()
    {
        QString told;
        QTimer::singleShot(50, [&] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                told = box->text();
                box->accept();
            }
        });
        m_window->canvas()->files().open(JOB_FILE);
        QVERIFY2(told.startsWith(JOB_FILE ":"), qPrintable(told));
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
