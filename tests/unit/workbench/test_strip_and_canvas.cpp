// Strip and canvas of one workbench: what the strip shows is what a click on the canvas does.

#include "FindChild.h"
#include "Main.h"
#include "StartWorkbench.h"
#include "messages/HostState.h"
#include "plugin/MessageCodes.h"
#include "shared/CanvasControl.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QTimer>
#include <QToolButton>

#include <random>

namespace Accepted = MessageCodes::Accepted;
namespace Sent = MessageCodes::Sent;

namespace {

/// What the canvas calls the tool of a button of the strip.
const QMap<QString, QString>& toolNames()
{
    static const QMap<QString, QString> names{
        {"m_pAreaZoomTB", "Area Zoom"},
        {"m_pFeatHighLightTB", "Feature HighLight"},
        {"m_pAddFeatureTB", "Add Feature"},
        {"m_pDeleteFeatTB", "Delete Feature"},
        {"m_pMoveFeatureTB", "Move Feature"},
        {"m_pBreakLineTB", "Break Line"},
        {"m_pFeatureSelectionTB", "Feature Selection"},
        {"m_pRectSelectionTB", "Rectangle Selection"},
        {"m_pPolygonSelectionTB", "Polygon Selection"},
        {"m_pMeasureTB", "Measure"},
        {"m_pSelectPolylineTB", "Select Layer Net"},
    };
    return names;
}

}  // namespace

class TestStripAndCanvas : public QObject {
    Q_OBJECT

    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<WorkbenchWindow> m_window;

    QToolButton& tool(const QString& name) const { return findNamed<QToolButton>(*m_window, name); }
    QString canvasTool() const
    {
        return findNamed<QLabel>(*m_window, "m_pActiveToolLB").text().remove("Tool: ");
    }
    /// What the strip's checked button means to the canvas; "none" if no button is checked.
    QString stripTool() const
    {
        QStringList checked;
        for (auto name = toolNames().begin(); name != toolNames().end(); ++name) {
            if (tool(name.key()).isChecked()) {
                checked.append(name.value());
            }
        }
        return checked.isEmpty() ? QString("none") : checked.join('+');
    }
    void tell(int code) const { m_window->host()->send({code, {}, qint64(0)}); }
    /// A mouse click in the middle of the board, on a trace.
    QString afterAClick() const
    {
        auto& board = findNamed<QAbstractScrollArea>(*m_window, "m_pBoardView");
        QPoint place;
        QMetaObject::invokeMethod(&board, "viewPoint", Q_RETURN_ARG(QPoint, place),
                                  Q_ARG(double, 16000), Q_ARG(double, 11000));
        QTest::mouseMove(board.viewport(), place);
        QTest::mouseClick(board.viewport(), Qt::LeftButton, {}, place);
        return findNamed<QToolButton>(*m_window, "m_pUndoTB").toolTip();
    }
    void openDialog() const
    {
        tool("m_pAddFeatureTB").click();
        findNamed<QAbstractButton>(*m_window, "m_pPadTB").click();
    }

private Q_SLOTS:
    void init()
    {
        m_log = std::make_unique<MessageLog>();
        m_window = startWorkbench(*m_log);
        m_window->resize(1200, 860);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    void cleanup()
    {
        m_window.reset();
        m_log.reset();
    }

    void theyStartAlike()
    {
        QVERIFY(tool("m_pAreaZoomTB").isChecked());
        QCOMPARE(canvasTool(), QString("Area Zoom"));
    }

    void aStripMadeAnew()
    {
        tool("m_pDeleteFeatTB").click();
        QCOMPARE(canvasTool(), QString("Delete Feature"));
        findNamed<QCheckBox>(*m_window, "m_pHostEqCB").click();
        QVERIFY(tool("m_pAreaZoomTB").isChecked());
        QCOMPARE(canvasTool(), QString("Area Zoom"));
        QCOMPARE(afterAClick(), QString("Undo: "));
    }

    void aStripMadeAnewAsksWhenSomethingWouldBeLost()
    {
        auto& eq = findNamed<QCheckBox>(*m_window, "m_pHostEqCB");
        QStringList asked;
        const char* button = "m_pNewStripPB";
        QTimer answers;
        connect(&answers, &QTimer::timeout, [&] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                asked.append(box->text());
                if (auto* const named = box->findChild<QAbstractButton*>(button)) {
                    named->click();
                } else {
                    box->reject();
                }
            }
        });
        answers.start(10);
        const bool first = eq.isChecked();
        tool("m_pAddFeatureTB").click();
        eq.click();
        QCOMPARE(eq.isChecked(), !first);
        QCOMPARE(asked, QStringList());  // nothing was entered

        openDialog();
        button = "none";
        eq.click();
        QCOMPARE(asked, QStringList("The edit tools are made anew.\n"
                                    "The entries in Add Feature are lost."));
        QCOMPARE(eq.isChecked(), !first);
        QVERIFY(findNamed(*m_window, "AddFeature").isVisible());
        findNamed<QAbstractButton>(*m_window, "m_pLineTB").click();
        afterAClick();
        eq.click();
        QVERIFY(asked.last().endsWith("What has been begun on the board is lost."));
        QCOMPARE(canvasTool(), QString("Add Feature"));

        button = "m_pNewStripPB";
        eq.click();
        QCOMPARE(eq.isChecked(), first);
        QVERIFY(!m_window->findChild<QWidget*>("AddFeature"));
        QCOMPARE(asked.size(), 3);
        eq.click();
        QCOMPARE(asked.size(), 3);
    }

    void toldToReleaseAll()
    {
        tool("m_pDeleteFeatTB").click();
        tell(Accepted::ReleaseAll);
        QCOMPARE(stripTool(), QString("none"));
        QCOMPARE(canvasTool(), QString("none"));
        QCOMPARE(afterAClick(), QString("Undo: "));
    }

    void toldToShowAddFeature()
    {
        tool("m_pDeleteFeatTB").click();
        m_log->clear();
        tell(Accepted::AddFeatureActive);
        QVERIFY(tool("m_pAddFeatureTB").isChecked());
        QCOMPARE(canvasTool(), QString("Add Feature"));
        QCOMPARE(int(m_log->messages().size()), 1);  // nobody answers what was not a question
        QVERIFY(afterAClick() != QString("Undo: Delete feature"));
    }

    void whatWasBegunGoesOnWhenTheToolIsTheSame()
    {
        openDialog();
        const QString hint = findNamed<QLabel>(*m_window, "m_pPickHintLB").text();
        findNamed<QAbstractButton>(*m_window, "m_pLineTB").click();
        afterAClick();
        const QString begun = findNamed<QLabel>(*m_window, "m_pPickHintLB").text();
        QVERIFY(begun != hint);
        tell(Accepted::AddFeatureActive);
        QCOMPARE(findNamed<QLabel>(*m_window, "m_pPickHintLB").text(), begun);
    }

    void theDialogUsedWhileAnotherToolIsShown()
    {
        openDialog();
        tool("m_pDeleteFeatTB").click();
        QCOMPARE(canvasTool(), QString("Delete Feature"));
        findNamed<QAbstractButton>(*m_window, "m_pLineTB").click();
        QCOMPARE(canvasTool(), QString("Add Feature"));
        QCOMPARE(stripTool(), QString("Add Feature"));
    }

    void noModeOfSelectByNet()
    {
        tool("m_pDeleteFeatTB").click();
        auto* const strip = m_window->findChild<QWidget*>("m_pStripPanel")->layout();
        QVERIFY(QMetaObject::invokeMethod(strip, "On_SelectPolyline_Clicked", Q_ARG(int, 7)));
        QCOMPARE(canvasTool(), QString("none"));
    }

    void whateverIsDone()
    {
        m_window->canvas()->files().setMayAsk([] { return false; });
        std::mt19937 random(7);
        const QStringList buttons = toolNames().keys();
        const QVector<int> codes{
            Accepted::ReleaseAll,       Accepted::AreaZoom,       Accepted::FeatureSelection,
            Accepted::AddFeatureActive, Accepted::SelectLayerNet, Accepted::CheckAndMeasure,
            Accepted::Measure,          Accepted::AddFeature,     Accepted::DeleteFeature,
            Accepted::MoveFeature,      Accepted::UnitChanged,    Accepted::LanguageChanged};
        QStringList done;
        for (int i = 0; i < 400; ++i) {
            const int choice = int(random() % 100);
            if (choice < 40) {
                done.append(buttons[int(random() % size_t(buttons.size()))]);
                tool(done.last()).click();
            } else if (choice < 90) {
                const int code = codes[int(random() % size_t(codes.size()))];
                done.append(QString::number(code));
                tell(code);
            } else if (QWidget* const dialog = m_window->findChild<QWidget*>("AddFeature")) {
                done.append("pad");
                findNamed<QAbstractButton>(*dialog, "m_pPadTB").click();
            } else if (choice > 97) {
                done.append("EQ");
                findNamed<QCheckBox>(*m_window, "m_pHostEqCB").click();
            }
            QVERIFY2(canvasTool() == stripTool(),
                     qPrintable(canvasTool() + " is not " + stripTool() + " after " +
                                QStringList(done.mid(done.size() - 5)).join(", ")));
        }
    }
};

CTS_TEST(TestStripAndCanvas);
#include "test_strip_and_canvas.moc"
