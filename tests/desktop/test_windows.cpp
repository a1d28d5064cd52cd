// The windows stand beside each other, the last one in front, and are where the user has left them.

#include "Desktop.h"
#include "FindChild.h"
#include "Main.h"
#include "StartWorkbench.h"
#include "shared/Settings.h"
#include "window/Look.h"

#include <QAction>
#include <QCheckBox>
#include <QFont>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <memory>

namespace {

/// A window, and how a user opens it while Add Feature is open.
struct Opening {
    const char* window;
    const char* page;     ///< of Add Feature
    const char* control;  ///< what is clicked, or an action of the menus
};

const Opening openings[] = {
    {"Grc_Tbe_measurepopup", "m_pLineTB", "m_pMeasureTB"},
    {"m_pSecondView", "m_pLineTB", "m_pOpenPopViewTB"},
    {"Widget_SymbolSelection", "m_pPadTB", "m_pSymbolPB"},
    {"Widget_Attributes", "m_pLineTB", "m_pValuesPB"},
    {"Widget_listpopup", "m_pTextTB", "m_pFontPB"},
    {"m_pDimensions", "m_pLineTB", "m_pDimensionsAct"},
    {"m_pDocumentation", "m_pLineTB", "m_pDocumentationAct"},
    {"m_pComposeDialog", "m_pLineTB", "m_pMonitorComposePB"},
};

QRect place(const QWidget& part)
{
    return part.isWindow() ? Desktop::frame(part) : QRect(part.mapToGlobal(QPoint()), part.size());
}

QString words(const QWidget& part)
{
    return QString("%1: %2,%3 to %4,%5")
        .arg(part.objectName())
        .arg(place(part).left())
        .arg(place(part).top())
        .arg(place(part).right())
        .arg(place(part).bottom());
}

}  // namespace

class TestWindows : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<WorkbenchWindow> m_window;

    void start()
    {
        m_window.reset();
        m_log = std::make_unique<MessageLog>();
        m_window = startWorkbench(*m_log);
        m_window->show();
        Desktop::waitForWindow(m_window.get());
    }

    QWidget& open(const char* window, const char* control)
    {
        if (auto* const action = m_window->findChild<QAction*>(control)) {
            action->trigger();
        } else {
            QTest::mouseClick(&findShown(control), Qt::LeftButton);
        }
        QWidget& opened = findShown(window);
        Desktop::waitForWindow(&opened);
        return opened;
    }

    QWidget& openAddFeature() { return open("AddFeature", "m_pAddFeatureTB"); }

    /// Wholly on the screen, and over neither strip, position field nor `others`. A window manager
    /// needs a moment.
    void verifyFree(const QWidget& window, QList<const QWidget*> others) const
    {
        others << &findNamed(*m_window, "m_pStripDock") << &findNamed(*m_window, "m_pPositionLE");
        QTRY_VERIFY2(window.screen()->availableGeometry().contains(Desktop::frame(window)),
                     qPrintable(words(window)));
        for (const QWidget* const other : others) {
            QTRY_VERIFY2(!Desktop::frame(window).intersects(place(*other)),
                         qPrintable(words(window) + " over " + words(*other)));
        }
    }

    /// Nothing is seen on the screen but this, and it gets what is typed.
    static void verifyInFront(const QWidget& window)
    {
        QTRY_VERIFY(window.isActiveWindow());
        const QWidget* const focus = QApplication::focusWidget();
        QVERIFY2(focus ? focus->window() == &window : !hasStops(window), qPrintable(words(window)));
        QTRY_VERIFY2(Desktop::isSeen(window), qPrintable(words(window)));
    }

    static bool hasStops(const QWidget& window)
    {
        const auto children = window.findChildren<QWidget*>();
        return std::any_of(children.begin(), children.end(), [](const QWidget* child) {
            return child->isVisible() && (child->focusPolicy() & Qt::TabFocus);
        });
    }

private Q_SLOTS:
    void init() { start(); }
    void cleanup()
    {
        m_window.reset();
        m_log.reset();
        Settings::keepIn({});
    }

    void theFirstSizeFitsTheScreen_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("points");
        for (const char* const language : {"en", "zh_CN"}) {
            for (const int points : {10, 20}) {
                QTest::addRow("%s, %d points", language, points) << language << points;
            }
        }
    }
    void theFirstSizeFitsTheScreen()
    {
        QFETCH(QString, language);
        QFETCH(int, points);
        m_window.reset();
        const QFont font = QApplication::font();
        Options options;
        options.language = language;
        options.fontSize = points;
        Look::dress(options);
        m_window = startWorkbench(*m_log, options);
        m_window->show();
        Desktop::waitForWindow(m_window.get());
        QTest::qWait(100);
        const QRect frame = Desktop::frame(*m_window);
        QApplication::setFont(font);
        QVERIFY2(m_window->screen()->availableGeometry().contains(frame),
                 qPrintable(words(*m_window)));
    }

    void oneBesideAddFeature_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < int(std::size(openings)); ++index) {
            QTest::newRow(openings[index].window) << index;
        }
    }
    void oneBesideAddFeature()
    {
        QFETCH(int, index);
        const Opening& opening = openings[index];
        QWidget& dialog = openAddFeature();
        QTest::mouseClick(&findNamed(dialog, opening.page), Qt::LeftButton);
        findNamed<QCheckBox>(dialog, "m_pAttributesCB").setChecked(true);
        verifyFree(dialog, {});
        const QWidget& window = open(opening.window, opening.control);
        verifyFree(window, {&dialog});
        verifyInFront(window);
    }

    void theLastIsInFrontAndHasTheKeyboard()
    {
        QWidget& dialog = openAddFeature();
        QWidget& measure = open("Grc_Tbe_measurepopup", "m_pMeasureTB");
        Desktop::move(measure, dialog.pos() + QPoint(20, 20));
        const QWidget& chooser = open("Widget_SymbolSelection", "m_pSymbolPB");
        verifyInFront(chooser);
        Desktop::type("r20");
        QCOMPARE(findNamed<QLineEdit>(chooser, "m_pFilterLE").text(), QString("r20"));
        // Documentation is open already, and is asked for again.
        QWidget& pages = open("m_pDocumentation", "m_pDocumentationAct");
        Desktop::move(dialog, pages.pos() + QPoint(30, 30));
        dialog.raise();
        dialog.activateWindow();
        Desktop::waitForWindow(&dialog);
        open("m_pDocumentation", "m_pDocumentationAct");
        verifyInFront(pages);
    }

    void theSecondViewStaysInFrontOfTheHostsWindow()
    {
        QWidget& second = open("m_pSecondView", "m_pOpenPopViewTB");
        const QWidget& board = findNamed(*m_window, "m_pBoardView");
        second.resize(380, 160);
        Desktop::move(second, board.mapToGlobal(QPoint(60, 60)));
        QTest::qWait(200);
        Desktop::clickAt(board.mapToGlobal(QPoint(20, 20)));
        QTRY_VERIFY(m_window->isActiveWindow());
        QTest::qWait(200);
        QTRY_VERIFY(Desktop::isSeen(second));
        QVERIFY(place(second).intersects(place(board)));
    }

    /// The strip and the position field stay free, even where the screen has no room for all.
    void theSecondViewSparesTheStripOnSmallScreens()
    {
        QWidget& dialog = openAddFeature();
        QTest::mouseClick(&findNamed(dialog, "m_pTextTB"), Qt::LeftButton);
        verifyFree(open("m_pSecondView", "m_pOpenPopViewTB"), {});
    }

    void eachSideOfAWindowGivesWayByItself()
    {
        openAddFeature();
        open("m_pDimensions", "m_pDimensionsAct");
        const QWidget& pages = open("m_pDocumentation", "m_pDocumentationAct");
        QVERIFY2(pages.width() >= 340 && pages.height() >= 250, qPrintable(words(pages)));
    }

    void aQuestionOfTheHostLeavesAddFeatureInFront()
    {
        QWidget& dialog = openAddFeature();
        Desktop::click(findNamed(dialog, "m_pPadTB"));
        Desktop::click(findNamed(dialog, "m_pSymbolTextLE"));
        Desktop::type("r10");
        Desktop::key("Return");
        Desktop::move(dialog, m_window->pos() + QPoint(20, 120));
        QTest::qWait(200);
        int looks = 0;
        bool isInFront = false;
        QTimer answer;
        connect(&answer, &QTimer::timeout, [&] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                isInFront =
                    Desktop::isSeen(dialog) && !Desktop::frame(*box).intersects(place(dialog));
                // The window manager may raise another one for a moment after the box has opened.
                if (++looks >= 7 && (isInFront || looks == 50)) {
                    box->reject();
                    answer.stop();
                }
            }
        });
        answer.start(100);
        Desktop::click(findNamed(*m_window, "m_pHostEqCB"));
        QTRY_VERIFY(!answer.isActive());
        QVERIFY(isInFront);
    }

    void aDialogThatGrowsCoversNothing()
    {
        QWidget& dialog = openAddFeature();
        const QWidget& measure = open("Grc_Tbe_measurepopup", "m_pMeasureTB");
        const int height = dialog.height();
        QTest::mouseClick(&findNamed(dialog, "m_pTextTB"), Qt::LeftButton);
        QTRY_VERIFY(dialog.height() > height + 50);
        verifyFree(dialog, {&measure});
    }

    void whatAWindowManagerPutsAsideIsPutBack()
    {
        QTest::mouseClick(&findShown("m_pAddFeatureTB"), Qt::LeftButton);
        QWidget& dialog = findShown("AddFeature");
        const QPoint wanted = dialog.geometry().topLeft();
        dialog.move(dialog.pos() + QPoint(1, 10));
        Desktop::waitForWindow(&dialog);
        QTRY_COMPARE(dialog.geometry().topLeft(), wanted);
    }

    /// It is closed, another takes its place, and it is opened again.
    void whatIsOpenedAgainCoversNothing()
    {
        QWidget& dialog = openAddFeature();
        dialog.hide();
        QWidget& measure = open("Grc_Tbe_measurepopup", "m_pMeasureTB");
        const QWidget& again = openAddFeature();
        QCOMPARE(&again, &dialog);
        verifyFree(again, {&measure});
        verifyFree(measure, {&again});
    }

    /// Places without the frame, of which Qt may hear late.
    void whereTheUserHasMovedItIsRemembered()
    {
        Settings::keepIn(m_folder.filePath(QTest::currentTestFunction()));
        start();
        QWidget& dialog = openAddFeature();
        QTest::qWait(700);  // a window manager has the last word
        const QPoint first = dialog.geometry().topLeft();
        Desktop::move(dialog, m_window->pos() + QPoint(300, 90));
        QTest::qWait(700);
        const QPoint chosen = dialog.geometry().topLeft();
        QVERIFY((chosen - first).manhattanLength() > 100);
        m_window->close();
        start();
        QTRY_COMPARE(openAddFeature().geometry().topLeft(), chosen);
        m_window->close();
        start();
        m_window->findChild<QAction*>("m_pRestoreLayoutAct")->trigger();
        QTRY_COMPARE(openAddFeature().geometry().topLeft(), first);
    }
};

CTS_TEST(TestWindows);
#include "test_windows.moc"
