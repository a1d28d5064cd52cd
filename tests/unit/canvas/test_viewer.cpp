// The canvas: the tool that it names, and what it sends back when something is picked on it.

#include "FindChild.h"
#include "Main.h"
#include "messages/MessageLog.h"
#include "messages/MessageNames.h"
#include "viewer/BoardView.h"
#include "viewer/ToolSet.h"
#include "viewer/ViewerPane.h"

#include <common_widgets.h>

#include <QLabel>
#include <QTableWidget>

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
        PluginMetaData message("Canvas_Tool_Strip.dll", "Canvas_Viewer.dll");
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
    void everyToolMessageHasItsMeaning()
    {
        for (const MessageNames::Row& row : MessageNames::sent()) {
            const ToolSet::Row* const tool = ToolSet::find(row.code);
            QVERIFY2((tool != nullptr) == row.tool, row.name);
            QVERIFY2(!tool || ToolSet::text(*tool) == MessageNames::text(row), row.name);
            const bool ends = QByteArray(row.name).endsWith("Off");
            QVERIFY2((ToolSet::ended(row.code) != nullptr) == ends, row.name);
        }
    }

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
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: none"));
        receive(20000207);
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: Move feature"));
        receive(20000206, 1);
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: Delete feature, mode 1"));
        receive(20000241);
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: Add feature"));
        receive(20000202);
        receive(50, 0, {{"Features", 1}});  // the dialog was there: no second 20000241
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: Add feature"));
        receive(20000216);
        receive(20000237);  // the same tool's second code
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: none"));
        receive(12345);
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: none"));
    }

    void answersAddFeatureWithTheUnit()
    {
        receive(20000241);
        QCOMPARE(int(m_log->messages().size()), 1);
        const MessageRecord& answer = m_log->messages()[0];
        QCOMPARE(answer.code, 20002200);
        QCOMPARE(answer.sender, QString("Canvas_Viewer.dll"));
        QCOMPARE(answer.receiver, QString("Canvas_Tool_Strip.dll"));
    }

    void symbol()
    {
        clickBoard(16, 11);
        QVERIFY(m_log->messages().empty());  // nobody asked
        receive(20001405);
        clickBoard(0.3, 0.3);
        QVERIFY(m_log->messages().empty());  // no feature there
        QVERIFY(!text("m_pPickHintLB").isEmpty());
        clickBoard(16, 11);
        clickBoard(16, 11);
        QCOMPARE(int(m_log->messages().size()), 1);
        QCOMPARE(m_log->messages()[0].code, 20001811);
        QCOMPARE(m_log->messages()[0].pointedAt.values(), QStringList("r100"));
        QCOMPARE(text("m_pPickHintLB"), QString());
    }

    void aSurfaceHasNoSymbol()
    {
        receive(20001405);
        clickBoard(2, 2);
        QCOMPARE(m_log->messages().at(0).code, 20001811);
        QVERIFY(m_log->messages()[0].hasAddress());
        QCOMPARE(m_log->messages()[0].pointedAt, Pairs());
    }

    void attributes()
    {
        receive(20002838);
        clickBoard(17.5, 5.4);
        QCOMPARE(int(m_log->messages().size()), 1);
        QCOMPARE(m_log->messages()[0].code, 20001807);
        QCOMPARE(m_log->messages()[0].pointedAt,
                 (Pairs{{".drill", "plated"}, {".pad_usage", "via"}}));
    }

    void picksAreGivenUp_data()
    {
        QTest::addColumn<int>("code");
        QTest::newRow("another tool") << 20000207;
        QTest::newRow("tool off") << 20000237;
        QTest::newRow("dialogs closed") << 20003950;
    }

    void picksAreGivenUp()
    {
        QFETCH(int, code);
        receive(20001405);
        const QString hint = text("m_pPickHintLB");
        receive(code);
        QVERIFY(text("m_pPickHintLB") != hint);
        clickBoard(16, 11);
        QVERIFY(m_log->messages().empty());
    }

    void measuring()
    {
        Grc_Tbe_measurepopup popup(nullptr, m_window.get());
        receive(20000207);
        popup.onMeasureButtonClicked();
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: Measure"));
        const QString first = text("m_pPickHintLB");
        clickBoard(2, 2);
        QVERIFY(!first.isEmpty() && text("m_pPickHintLB") != first);
        clickBoard(12, 2);
        QCOMPARE(text("m_pPickHintLB"), first);
        QVERIFY(m_log->messages().empty());
        receive(20000208);
        QCOMPARE(text("m_pActiveToolLB"), QString("Tool: Copy feature"));
        QCOMPARE(text("m_pPickHintLB"), QString("Click a feature to copy it."));
    }

    void attributeMap()
    {
        const std::map<std::string, std::string> map{{".net", "gnd"}};
        receive(51, qint64(reinterpret_cast<quintptr>(&map)));
        const auto& table = findNamed<QTableWidget>(*m_viewer, "m_pAttributesTW");
        QCOMPARE(table.rowCount(), 1);
        QCOMPARE(table.item(0, 0)->text(), QString(".net"));
        QCOMPARE(table.item(0, 1)->text(), QString("gnd"));
        receive(51, 0);  // no map at all
        QCOMPARE(table.rowCount(), 1);
    }

    void recordWithItsCode()
    {
        const auto& table = findNamed<QTableWidget>(*m_viewer, "m_pRecordTW");
        receive(50, 0, {{"Features", 1}});
        QCOMPARE(text("m_pRecordLB"), QString("Feature record (message 50)"));
        receive(52, 0, {{"Features", 1}, {"AngleGroup", QString("2")}});
        QCOMPARE(text("m_pRecordLB"), QString("Feature record (message 52)"));
        QCOMPARE(table.rowCount(), 2);
        QVERIFY(table.item(0, 0)->font().bold());
        QVERIFY(!table.item(1, 0)->font().bold());
    }
};

CTS_MAIN(TestViewer)
#include "test_viewer.moc"
