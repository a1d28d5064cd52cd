// The message monitor: what passes through the manager, filtered, cleared and saved.

#include "ErrorOf.h"
#include "FindChild.h"
#include "Main.h"
#include "messages/MessageDialog.h"
#include "messages/MessageLog.h"
#include "messages/MessageModel.h"
#include "messages/MessageMonitor.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/RecordKeys.h"

#include <QTpluginsManger4CAM.h>

#include <QClipboard>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTableView>
#include <QTableWidget>
#include <QTemporaryDir>

namespace Sent = MessageCodes::Sent;

namespace {

void send(int code, const QMap<QString, QVariant>& payload = {})
{
    PluginMetaData message(ModuleNames::toolStrip, ModuleNames::viewer);
    message.code = code;
    message.payload = payload;
    QTpluginsManger4CAM::instance()->recMegToPlugin(nullptr, message);
}

/// The keys of the rows that the detail table marks.
QStringList marked(const MessageMonitor& monitor)
{
    const auto& detail = findNamed<QTableWidget>(monitor, "m_pMessageTW");
    QStringList keys;
    for (int row = 0; row < detail.rowCount(); ++row) {
        if (detail.item(row, 0)->background().style() != Qt::NoBrush) {
            keys.append(detail.item(row, 0)->text());
        }
    }
    return keys;
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
        send(Sent::MoveFeature);
        send(Sent::CopyFeature);
        send(Sent::Record, {{RecordKeys::symbolText, QString("r10")}});
        QCOMPARE(table.model()->rowCount(), 3);
        QStringList first;
        for (int column = 0; column < table.model()->columnCount(); ++column) {
            first.append(table.model()->index(0, column).data().toString());
        }
        QVERIFY(first.contains("Canvas_Tool_Strip.dll"));
        QVERIFY(first.contains(QString::number(Sent::MoveFeature)));

        auto& filter = findNamed<QLineEdit>(monitor, "m_pMonitorFilterLE");
        QTest::keyClicks(&filter, RecordKeys::symbolText);
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
        send(Sent::Record, {{RecordKeys::features, FeatureKind::pad.toInt()},
                            {RecordKeys::symbolText, QString("r10")}});
        findNamed<QTableView>(monitor, "m_pMonitorTV").selectRow(0);
        const auto& detail = findNamed<QTableWidget>(monitor, "m_pMessageTW");
        QCOMPARE(detail.rowCount(), 2);
        QCOMPARE(detail.item(0, 0)->text(), QString("Features"));
        QCOMPARE(detail.item(0, 1)->text(), QString("2"));
        QCOMPARE(detail.item(0, 2)->text(), QString("integer"));
        QCOMPARE(detail.item(1, 2)->text(), QString("text"));
    }

    void marksWhatChanged()
    {
        MessageLog log;
        MessageMonitor monitor(&log);
        auto& table = findNamed<QTableView>(monitor, "m_pMonitorTV");
        const auto payloadOf = [&](int row) {
            return table.model()->index(row, MessageModel::Payload).data().toString();
        };
        send(Sent::Record, {{RecordKeys::features, FeatureKind::pad.toInt()},
                            {RecordKeys::symbolText, QString()}});
        QCOMPARE(marked(monitor), QStringList());  // nothing to compare with
        send(Sent::Record, {{RecordKeys::features, FeatureKind::pad.toInt()},
                            {RecordKeys::symbolText, QString("r10")}});
        QCOMPARE(marked(monitor), QStringList{RecordKeys::symbolText});
        QCOMPARE(payloadOf(1), QString("SymbolText=r10, Features=2"));
        send(Sent::MoveFeature);  // another message in between
        QCOMPARE(marked(monitor), QStringList());
        send(Sent::DirectionRecord,
             {{RecordKeys::features, FeatureKind::pad}, {RecordKeys::symbolText, QString("r10")}});
        QCOMPARE(marked(monitor), QStringList{RecordKeys::features});  // the type counts
        send(Sent::Record,
             {{RecordKeys::features, FeatureKind::pad}, {RecordKeys::symbolText, QString("r10")}});
        QCOMPARE(marked(monitor), QStringList());
        QCOMPARE(payloadOf(4), QString("Features=2, SymbolText=r10"));
        table.selectRow(1);
        QCOMPARE(marked(monitor), QStringList{RecordKeys::symbolText});
        // Clearing keeps the record that the next one is compared with.
        log.clear();
        QCOMPARE(findNamed<QTableWidget>(monitor, "m_pMessageTW").rowCount(), 0);
        send(Sent::Record, {{RecordKeys::features, FeatureKind::surface.toInt()},
                            {RecordKeys::symbolText, QString("r10")}});
        QCOMPARE(marked(monitor), QStringList{RecordKeys::features});
    }

    void showsTheNewestUntilAnotherIsSelected()
    {
        MessageLog log;
        MessageMonitor monitor(&log);
        auto& table = findNamed<QTableView>(monitor, "m_pMonitorTV");
        const auto& head = findNamed<QLabel>(monitor, "m_pMessageLB");
        send(Sent::MoveFeature);
        send(Sent::CopyFeature);
        QVERIFY2(head.text().contains(QString::number(Sent::CopyFeature)), qPrintable(head.text()));
        table.selectRow(0);
        send(Sent::FeatureSelection);
        QCOMPARE(table.currentIndex().row(), 0);
        QVERIFY2(head.text().contains(QString::number(Sent::MoveFeature)), qPrintable(head.text()));
        table.selectRow(2);
        send(Sent::RectangleSelection);
        QCOMPARE(table.currentIndex().row(), 3);
    }

    void showsAMessageWhole()
    {
        MessageLog log;
        MessageMonitor monitor(&log);
        monitor.resize(1200, 300);
        monitor.show();
        auto& table = findNamed<QTableView>(monitor, "m_pMonitorTV");
        send(Sent::MoveFeature);
        send(Sent::Record, {{RecordKeys::features, FeatureKind::pad.toInt()},
                            {RecordKeys::symbolText, QString("r10")},
                            {"On", true}});
        const QPoint place = table.visualRect(table.model()->index(1, 0)).center();
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, place);
        const auto* const dialog = monitor.findChild<MessageDialog*>();
        QVERIFY(dialog && dialog->isVisible());
        const auto text = [&](const char* name) { return findNamed<QLabel>(*dialog, name).text(); };
        QCOMPARE(text("m_pMessageFromLB"), QString("Canvas_Tool_Strip.dll"));
        QCOMPARE(text("m_pMessageToLB"), ModuleNames::viewer);
        QCOMPARE(text("m_pMessageCodeLB"), QString("50 Record (Feature Record)"));
        QCOMPARE(text("m_pMessageExtraLB"), QString("0"));
        QVERIFY(
            dialog->text().endsWith("Features\t2\tinteger\nOn\ttrue\ttruth\n"
                                    "SymbolText\tr10\ttext"));
        QTest::mouseClick(&findNamed(*dialog, "m_pMessageCopyPB"), Qt::LeftButton);
        QCOMPARE(QApplication::clipboard()->text(), dialog->text());
    }

    void savesATrace()
    {
        MessageLog log;
        send(Sent::MoveFeature);
        send(Sent::CopyFeature);
        const QTemporaryDir folder;
        const auto save = [&](const QString& name) {
            return errorOf([&] { log.save(folder.filePath(name)); });
        };
        QCOMPARE(save("trace.jsonl"), QString());
        QFile file(folder.filePath("trace.jsonl"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArrayList lines = file.readAll().trimmed().split('\n');
        QCOMPARE(lines.size(), 2);
        QCOMPARE(QJsonDocument::fromJson(lines[1])["code"].toInt(), Sent::CopyFeature);
        QVERIFY(save("no/trace.jsonl").startsWith(folder.filePath("no/trace.jsonl") + ": "));
    }
};

CTS_TEST(TestMonitor);
#include "test_monitor.moc"
