// The message monitor: what passes through the manager, filtered, cleared and saved.

#include "FindChild.h"
#include "Main.h"
#include "messages/MessageLog.h"
#include "messages/MessageMonitor.h"

#include <QTpluginsManger4CAM.h>

#include <QJsonDocument>
#include <QLineEdit>
#include <QTableView>
#include <QTableWidget>
#include <QTemporaryDir>

namespace {

void send(int code, const QMap<QString, QVariant>& payload = {})
{
    PluginMetaData message("Canvas_Tool_Strip.dll", "Canvas_Viewer.dll");
    message.code = code;
    message.payload = payload;
    QTpluginsManger4CAM::instance()->recMegToPlugin(nullptr, message);
}

}  // namespace

class TestMonitor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsFiltersAndClears()
    {
        MessageLog log;
        MessageMonitor monitor(&log);
        auto& table = findNamed<QTableView>(monitor, "m_pMonitorTV");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no module"));
        send(20000207);
        send(20000208);
        send(50, {{"SymbolText", QString("r10")}});
        QCOMPARE(table.model()->rowCount(), 3);
        QStringList first;
        for (int column = 0; column < table.model()->columnCount(); ++column) {
            first.append(table.model()->index(0, column).data().toString());
        }
        QVERIFY(first.contains("Canvas_Tool_Strip.dll"));
        QVERIFY(first.contains("20000207"));

        auto& filter = findNamed<QLineEdit>(monitor, "m_pMonitorFilterLE");
        QTest::keyClicks(&filter, "SymbolText");
        QCOMPARE(table.model()->rowCount(), 1);
        filter.clear();
        QCOMPARE(table.model()->rowCount(), 3);
        QTest::mouseClick(&findNamed(monitor, "m_pMonitorClearPB"), Qt::LeftButton);
        QCOMPARE(table.model()->rowCount(), 0);
    }

    void showsTheSelectedMessageInFull()
    {
        MessageLog log;
        MessageMonitor monitor(&log);
        send(50, {{"Features", 2}, {"SymbolText", QString("r10")}});
        auto& table = findNamed<QTableView>(monitor, "m_pMonitorTV");
        table.selectRow(0);
        const auto& detail = findNamed<QTableWidget>(monitor, "m_pMessageTW");
        QCOMPARE(detail.rowCount(), 2);
        QCOMPARE(detail.item(0, 0)->text(), QString("Features"));
        QCOMPARE(detail.item(0, 1)->text(), QString("2"));
        QCOMPARE(detail.item(0, 2)->text(), QString("integer"));
        QCOMPARE(detail.item(1, 2)->text(), QString("text"));
    }

    void savesATrace()
    {
        MessageLog log;
        send(20000207);
        send(20000208);
        const QTemporaryDir folder;
        QString error;
        QVERIFY2(log.save(folder.filePath("trace.jsonl"), &error), qPrintable(error));
        QFile file(folder.filePath("trace.jsonl"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArrayList lines = file.readAll().trimmed().split('\n');
        QCOMPARE(lines.size(), 2);
        QCOMPARE(QJsonDocument::fromJson(lines[1])["code"].toInt(), 20000208);
        QVERIFY(!log.save(folder.filePath("no/trace.jsonl"), &error));
        QVERIFY(!error.isEmpty());
    }
};

CTS_MAIN(TestMonitor)
#include "test_monitor.moc"
