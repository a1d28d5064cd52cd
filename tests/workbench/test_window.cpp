// The host's window: its menus, its texts, and what it remembers.

#include "Main.h"
#include "WindowFixture.h"
#include "plugin/MessageCodes.h"
#include "shared/CanvasControl.h"
#include "window/FormWarnings.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFont>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace {

/// Collects what is said to Qt's message handler, instead of showing it.
class HeardMessages {
public:
    HeardMessages()
    {
        all().clear();
        m_before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { all().append(text); });
    }
    ~HeardMessages() { qInstallMessageHandler(m_before); }
    QStringList texts() const { return all(); }

private:
    Q_DISABLE_COPY(HeardMessages)

    static QStringList& all()
    {
        static QStringList texts;
        return texts;
    }

    QtMessageHandler m_before;
};

QList<QUrl> linksOf(const QTextBrowser& browser)
{
    QList<QUrl> links;
    for (QTextBlock block = browser.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (format.isAnchor()) {
                links.append(browser.source().resolved(QUrl(format.anchorHref())));
            }
        }
    }
    return links;
}

}  // namespace

class TestWindow : public QObject, private WindowFixture {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The screen is small here, and layouts need room to be changed.
        QFont font = QApplication::font();
        font.setPointSize(7);
        QApplication::setFont(font);
    }

    void init() { restart({}); }
    void cleanup() { end(); }

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
                              "m_pSaveTraceAct", "m_pSavePictureAct", "m_pRecordAct", "-",
                              "m_pQuitAct"}));
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
        const QString step = findNamed<QLineEdit>(*m_window, "m_pGridStepLE").text();
        QVERIFY2(step.startsWith("0.2500 "), qPrintable(step));
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

    void closingAsks()
    {
        QSignalSpy closed(m_window.get(), &WorkbenchWindow::closed);
        action("m_pSelectAllAct").trigger();
        action("m_pDeleteAct").trigger();
        QVERIFY(m_window->isWindowModified());
        const BoxButton boxes(QMessageBox::Cancel);
        action("m_pQuitAct").trigger();
        QCOMPARE(boxes.texts.size(), 1);
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
        m_window->resize(first - QSize(10, 30));
        m_window->move(17, 39);
        m_window->close();
        init();
        QCOMPARE(m_window->size(), first - QSize(10, 30));
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

    void withoutSettingsNothingIsKept()
    {
        const QSize first = m_window->size();
        m_window->resize(first - QSize(10, 30));
        m_window->close();
        init();
        QCOMPARE(m_window->size(), first);
    }

    void dimensionsOpensWithoutAWordOfQts()
    {
        const HeardMessages heard;
        action("m_pDimensionsAct").trigger();
        QVERIFY(findNamed<QWidget>(*m_window, "m_pDimensions").isVisible());
        QCOMPARE(heard.texts().filter("QMetaObject"), QStringList());
    }

    void everyOtherWarningIsShown()
    {
        const HeardMessages heard;
        const QString known =
            "QMetaObject::connectSlotsByName: No matching signal for on_pushButton_clicked()";
        const QString more = known + " const";
        const QString other =
            "QMetaObject::connectSlotsByName: No matching signal for on_m_pOther_clicked()";
        {
            const FormWarnings leftOut;
            for (const QString& text : {known, more, other}) {
                qWarning("%s", qPrintable(text));
            }
            qInfo("%s", qPrintable(known));
        }
        QCOMPARE(heard.texts(), QStringList({more, other, known}));
        qWarning("%s", qPrintable(known));  // nothing is open: not expected now
        QCOMPARE(heard.texts().size(), 4);
    }

    void aMinimizedWindowComesBack()
    {
        const auto open = [this](const char* opener) {
            if (auto* const action = m_window->findChild<QAction*>(opener)) {
                action->trigger();
            } else {
                findNamed<QAbstractButton>(*m_window, opener).click();
            }
        };
        for (const auto& [opener, name] :
             {std::pair<const char*, const char*>{"m_pDocumentationAct", "m_pDocumentation"},
              {"m_pDimensionsAct", "m_pDimensions"},
              {"m_pMonitorComposePB", "m_pComposeDialog"},
              {"m_pOpenPopViewTB", "m_pSecondView"}}) {
            open(opener);
            auto& window = findNamed<QWidget>(*m_window, name);
            window.showMinimized();
            QVERIFY(window.isMinimized());
            open("m_pMarkTB");
            open(opener);
            QVERIFY2(window.isVisible() && !window.isMinimized(), name);
        }
    }

    void documentationIsForWhoSitsThere()
    {
        action("m_pDocumentationAct").trigger();
        const auto& window = findNamed<QWidget>(*m_window, "m_pDocumentation");
        QVERIFY(window.isVisible() && window.isWindow());
        auto& browser = findNamed<QTextBrowser>(window, "m_pPagesTE");
        QStringList pages;
        QList<QUrl> open{browser.source()};
        while (!open.isEmpty()) {
            const QString page = open.takeFirst().adjusted(QUrl::RemoveFragment).toLocalFile();
            if (pages.contains(page)) {
                continue;
            }
            pages.append(page);
            browser.setSource(QUrl::fromLocalFile(page));
            const QString text = browser.toPlainText();
            QVERIFY2(text.size() > 1000, qPrintable(page));
            // What developers read stays in the folder.
            for (const char* const word : {"workbench/", "CanvasHost", ".cpp", ".h ", "QPoint"}) {
                QVERIFY2(!text.contains(word), qPrintable(page + ": " + word));
            }
            open += linksOf(browser);
        }
        QStringList names;
        for (const QString& page : pages) {
            names.append(QFileInfo(page).fileName());
        }
        names.sort();
        QCOMPARE(names, (QStringList{"files.md", "sessions.md", "using.md"}));
    }

    void documentationGoesBack()
    {
        action("m_pDocumentationAct").trigger();
        auto& browser = findNamed<QTextBrowser>(*m_window, "m_pPagesTE");
        QVERIFY(browser.toPlainText().startsWith("Using the workbench"));
        QVERIFY(!action("m_pPageBackAct").isEnabled());
        browser.setSource(QUrl("sessions.md"));
        QVERIFY(browser.toPlainText().startsWith("Session files"));
        action("m_pPageBackAct").trigger();
        QVERIFY(browser.toPlainText().startsWith("Using the workbench"));
        action("m_pPageForwardAct").trigger();
        QVERIFY(browser.toPlainText().startsWith("Session files"));
        action("m_pPageContentsAct").trigger();
        QVERIFY(browser.toPlainText().startsWith("Using the workbench"));
    }
};

CTS_TEST(TestWindow);
#include "test_window.moc"
