// On a small screen the window and all that it opens are completely visible.

#include "Desktop.h"
#include "FindChild.h"
#include "Main.h"
#include "StartWorkbench.h"

#include <QAction>
#include <QDockWidget>
#include <QScreen>
#include <QToolButton>

#include <memory>

class TestScreens : public QObject {
    Q_OBJECT

private:
    MessageLog m_log;
    std::unique_ptr<WorkbenchWindow> m_window;

    static void click(QWidget& button) { QTest::mouseClick(&button, Qt::LeftButton); }
    QRect screen() const { return m_window->screen()->availableGeometry(); }
    void verifyVisible(const QWidget& window) const
    {
        QTest::qWait(150);  // a window manager has the last word, and may need longer for it
        static_cast<void>(
            QTest::qWaitFor([&] { return screen().contains(Desktop::frame(window)); }));
        const QRect frame = Desktop::frame(window);
        const QString text = QString("%1: %2,%3 %4x%5 on %6x%7")
                                 .arg(window.objectName())
                                 .arg(frame.x())
                                 .arg(frame.y())
                                 .arg(frame.width())
                                 .arg(frame.height())
                                 .arg(screen().width())
                                 .arg(screen().height());
        QVERIFY2(screen().contains(frame), qPrintable(text));
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_window = startWorkbench(m_log);
        m_window->show();
        Desktop::waitForWindow(m_window.get());
    }
    void cleanupTestCase() { m_window.reset(); }

    void theWindow()
    {
        verifyVisible(*m_window);
        for (const char* const name : {"m_pStrip", "m_pBoardView", "m_pMonitorTV"}) {
            const auto& part = findNamed(*m_window, name);
            QVERIFY2(part.isVisible(), name);
            const QRect place(part.mapTo(m_window.get(), QPoint()), part.size());
            QVERIFY2(m_window->rect().contains(place), name);
        }
        for (const auto* const tool :
             findNamed(*m_window, "m_pStrip").findChildren<QToolButton*>()) {
            QVERIFY2(!tool->visibleRegion().isEmpty(), qPrintable(tool->objectName()));
        }
    }

    void theDialogOnEachPage()
    {
        click(findNamed(*m_window, "m_pAddFeatureTB"));
        const auto& dialog = findNamed(*m_window, "AddFeature");
        QTRY_VERIFY(dialog.isVisible());
        const auto& strip = findNamed(*m_window, "m_pStripDock");
        for (const char* const page :
             {"m_pLineTB", "m_pPadTB", "m_pSurfaceTB", "m_pArcTB", "m_pTextTB"}) {
            click(findNamed(dialog, page));
            verifyVisible(dialog);
            // Next to the strip: the next tool can be clicked.
            const int edge = strip.mapToGlobal(strip.rect().topRight()).x();
            QTRY_VERIFY2(Desktop::frame(dialog).left() > edge, page);
        }
    }

    void otherWindows()
    {
        for (const char* const action : {"m_pDimensionsAct", "m_pDocumentationAct"}) {
            m_window->findChild<QAction*>(action)->trigger();
        }
        click(findNamed(*m_window, "m_pMonitorComposePB"));
        // The form is the module's, and taller than the smallest screen.
        const auto& form = findNamed(*m_window, "m_pDimensions");
        QTRY_VERIFY(screen().contains(Desktop::frame(form).topLeft()));
        for (const char* const name : {"m_pDocumentation", "m_pComposeDialog"}) {
            verifyVisible(findNamed(*m_window, name));
        }
    }
};

CTS_TEST(TestScreens);
#include "test_screens.moc"
