// The canvas: the tool that it names, and what it sends back when something is picked on it.

#include "FindChild.h"
#include "Main.h"
#include "ToolRows.h"
#include "messages/MessageLog.h"
#include "messages/MessageNames.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/RecordKeys.h"
#include "viewer/BoardView.h"
#include "viewer/ViewerPane.h"

#include <common_widgets.h>

#include <QLabel>
#include <QTableWidget>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

namespace {

using Pairs = QMap<QString, QString>;

}  // namespace

class TestViewer : public QObject {
    Q_OBJECT

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<MessageLog> m_log;
    ViewerPane* m_viewer = nullptr;

    void receive(int code, qint64 extra = 0, const QMap<QString, QVariant>& payload = {})
    {
        PluginMetaData message(ModuleNames::toolStrip, ModuleNames::viewer);
        message.code = code;
        message.extra = extra;
        message.payload = payload;
        m_viewer->receive(message);
    }
    QString text(const char* label) const { return findNamed<QLabel>(*m_viewer, label).text(); }
    /// In millimetres.
    void clickBoard(double x, double y)
    {
        const auto& view = findNamed<BoardView>(*m_viewer, "m_pBoardView");
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.viewPoint(x * 1000, y * 1000));
    }

private Q_SLOTS:
    void initTestCase()
    {
        CanvasHost::addInstance("Canvas_Tool_Strip.dll", this, [](void*, PluginMetaData) {});
    }
    void cleanupTestCase() { CanvasHost::removeInstance(this); }
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->resize(900, 600);
        m_log = std::make_unique<MessageLog>();
        m_viewer = new ViewerPane(m_window.get());
        m_viewer->resize(m_window->size());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    void cleanup()
    {
        m_window.reset();
        m_log.reset();
    }

    void namesTheTool()
    {
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: Area Zoom"));  // as the strip starts
        receive(Sent::MoveFeature);
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: Move Feature"));
        receive(Sent::DeleteFeature, 1);
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: Delete Feature, mode 1"));
        receive(Sent::AddFeature);
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: Add Feature"));
        receive(Sent::FeatureSelection);
        // The dialog was open: it is not announced again.
        receive(Sent::Record, 0, {{RecordKeys::features, FeatureKind::line.toInt()}});
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: Add Feature"));
        receive(Sent::BreakLine);
        receive(Sent::BreakLineOff);  // the same tool's second code
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: none"));
        receive(12345);
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: none"));
    }

    /// By the name that strip and monitor show, whether the canvas has it or not.
    void followsEachTool()
    {
        for (const ToolRow& tool : toolRows()) {
            receive(Sent::MoveFeature);
            if (tool.code < 0) {
                continue;  // announced by no message
            }
            receive(tool.code);
            // The button of the nets is called after all of its variants.
            const bool isNet = tool.code == Sent::SelectLayerNet;
            QCOMPARE(text("m_pActiveToolLB"),
                     "Tool: " + (isNet ? QString("Select Layer Net") : tool.tip));
            QCOMPARE(text("m_pActiveToolLB"),
                     "Tool: " + MessageNames::text(ModuleNames::viewer, tool.code));
            if (tool.offCode != tool.code) {
                receive(tool.offCode);
                QCOMPARE(text("m_pActiveToolLB"), QString("Tool: none"));
            }
        }
    }

    void answersAddFeatureWithTheUnit()
    {
        receive(Sent::AddFeature);
        QCOMPARE(int(m_log->messages().size()), 1);
        const MessageRecord& answer = m_log->messages()[0];
        QCOMPARE(answer.code, Accepted::UnitChanged);
        QCOMPARE(answer.sender, ModuleNames::viewer);
        QCOMPARE(answer.receiver, QString("Canvas_Tool_Strip.dll"));
    }

    void symbol()
    {
        clickBoard(16, 11);
        QVERIFY(m_log->messages().empty());  // nobody asked
        receive(Sent::SelectSymbol);
        clickBoard(0.3, 0.3);
        QVERIFY(m_log->messages().empty());  // no feature there
        QVERIFY(!text("m_pPickHintLB").isEmpty());
        clickBoard(16, 11);
        clickBoard(16, 11);
        QCOMPARE(int(m_log->messages().size()), 1);
        QCOMPARE(m_log->messages()[0].code, Accepted::SymbolsPicked);
        QCOMPARE(m_log->messages()[0].pointedAt.values(), QStringList("r100"));
        // The previous tool continues.
        QCOMPARE(text("m_pPickHintLB"), QString("Click the opposite corner."));
    }

    void aSurfaceHasNoSymbol()
    {
        receive(Sent::SelectSymbol);
        clickBoard(2, 2);
        QCOMPARE(m_log->messages().at(0).code, Accepted::SymbolsPicked);
        QVERIFY(m_log->messages()[0].hasAddress());
        QCOMPARE(m_log->messages()[0].pointedAt, Pairs());
    }

    void attributes()
    {
        receive(Sent::SelectFromEditor);
        clickBoard(17.5, 5.4);
        QCOMPARE(int(m_log->messages().size()), 1);
        QCOMPARE(m_log->messages()[0].code, Accepted::AttributesPicked);
        QCOMPARE(m_log->messages()[0].pointedAt,
                 (Pairs{{".drill", "plated"}, {".pad_usage", "via"}}));
    }

    void picksAreGivenUp_data()
    {
        QTest::addColumn<int>("code");
        QTest::newRow("another tool") << int(Sent::MoveFeature);
        QTest::newRow("tool off") << int(Sent::BreakLineOff);
        QTest::newRow("dialogs closed") << int(Sent::DialogsClosed);
    }

    void picksAreGivenUp()
    {
        QFETCH(int, code);
        receive(Sent::SelectSymbol);
        const QString hint = text("m_pPickHintLB");
        receive(code);
        QVERIFY(text("m_pPickHintLB") != hint);
        clickBoard(16, 11);
        QVERIFY(m_log->messages().empty());
    }

    void measuring()
    {
        Grc_Tbe_measurepopup popup(nullptr, m_window.get());
        receive(Sent::MoveFeature);
        popup.onMeasureButtonClicked();
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: Measure"));
        const QString first = text("m_pPickHintLB");
        clickBoard(2, 2);
        QVERIFY(!first.isEmpty() && text("m_pPickHintLB") != first);
        clickBoard(12, 2);
        QCOMPARE(text("m_pPickHintLB"), first);
        QVERIFY(m_log->messages().empty());
        receive(Sent::CopyFeature);
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: Copy Feature"));
        QCOMPARE(text("m_pPickHintLB"), QString("Click a feature to copy it."));
    }

    void attributeMap()
    {
        const std::map<std::string, std::string> map{{".net", "gnd"}};
        receive(Sent::AttributeMap, ExtraWord::pointingAt(map));
        const auto& table = findNamed<QTableWidget>(*m_viewer, "m_pAttributesTW");
        QCOMPARE(table.rowCount(), 1);
        QCOMPARE(table.item(0, 0)->text(), QString(".net"));
        QCOMPARE(table.item(0, 1)->text(), QString("gnd"));
        receive(Sent::AttributeMap, 0);  // no map at all
        QCOMPARE(table.rowCount(), 1);
    }

    void recordWithItsCode()
    {
        const auto& table = findNamed<QTableWidget>(*m_viewer, "m_pRecordTW");
        receive(Sent::Record, 0, {{RecordKeys::features, FeatureKind::line.toInt()}});
        QCOMPARE(text("m_pRecordLB"), QString("Feature record (message 50)"));
        receive(Sent::DirectionRecord, 0,
                {{RecordKeys::features, FeatureKind::line.toInt()},
                 {RecordKeys::angleGroup, LineDirection::vertical}});
        QCOMPARE(text("m_pRecordLB"), QString("Feature record (message 52)"));
        QCOMPARE(table.rowCount(), 2);
        QVERIFY(table.item(0, 0)->font().bold());
        QVERIFY(!table.item(1, 0)->font().bold());
    }
};

CTS_TEST(TestViewer);
#include "test_viewer.moc"
