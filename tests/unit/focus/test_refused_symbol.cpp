// A symbol that the host refuses at the send leaves the record with the field.

#include "FocusFixture.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <QLineEdit>

namespace Accepted = MessageCodes::Accepted;
namespace Sent = MessageCodes::Sent;

class TestRefusedSymbol : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leavesTheRecord_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("metric");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("rotation");
        QTest::newRow("line") << "m_pLineTB" << false << "r60000"
                              << "0";
        QTest::newRow("pad") << "m_pPadTB" << false << "s60000"
                             << "0";
        QTest::newRow("arc") << "m_pArcTB" << false << "r60000"
                             << "0";
        QTest::newRow("suffix") << "m_pPadTB" << false << "r60000_45"
                                << "45";
        QTest::newRow("line, metric") << "m_pLineTB" << true << "r1524000"
                                      << "0";
        QTest::newRow("suffix, metric") << "m_pPadTB" << true << "r1524000_45"
                                        << "45";
    }

    void leavesTheRecord()
    {
        QFETCH(QString, type);
        QFETCH(bool, metric);
        QFETCH(QString, typed);
        QFETCH(QString, rotation);
        for (const Qt::Key way : {Qt::Key_Tab, Qt::Key_Return}) {
            FocusFixture fixture(metric);
            fixture.click(type);
            fixture.type("m_pSymbolTextLE", typed);
            fixture.recorder.clear();
            fixture.key(way);
            QCOMPARE(fixture.boxes.take().size(), 1);
            QCOMPARE(fixture.find<QLineEdit>("m_pSymbolTextLE").text(), QString());
            QCOMPARE(fixture.value(RecordKeys::symbolText), QString());
            if (way == Qt::Key_Tab) {
                QVERIFY(fixture.recorder.messages().isEmpty());
                QCOMPARE(fixture.value(RecordKeys::mirrorRotate), rotation);
            }
            fixture.choose("m_pPolarityCMB", 1);
            QCOMPARE(
                fixture.recorder.last(Sent::Record).message.payload.value(RecordKeys::symbolText),
                QVariant(QString()));
            QCOMPARE(fixture.agreement->faultOf(fixture.record()), QString());
        }
    }

    void anEarlierOneStays_data()
    {
        QTest::addColumn<bool>("metric");
        QTest::addColumn<QString>("accepted");
        QTest::addColumn<QString>("refused");
        QTest::newRow("mil") << false << "r10"
                             << "r60000";
        QTest::newRow("metric") << true << "r254"
                                << "r1524000";
        QTest::newRow("suffix") << false << "r10_45"
                                << "r60000_45";
    }

    /// The refused one was never entered: it is seen by the check alone.
    void anEarlierOneStays()
    {
        QFETCH(bool, metric);
        QFETCH(QString, accepted);
        QFETCH(QString, refused);
        FocusFixture fixture(metric);
        fixture.click("m_pPadTB");
        fixture.type("m_pSymbolTextLE", accepted);
        fixture.leave();
        QCOMPARE(fixture.value(RecordKeys::symbolText), QString("r10"));
        fixture.type("m_pSymbolTextLE", refused);
        fixture.recorder.clear();
        fixture.receive(Accepted::AddFeature);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::AddFeatureStarted});
        QCOMPARE(fixture.boxes.take().size(), 1);
        QCOMPARE(fixture.find<QLineEdit>("m_pSymbolTextLE").text(), QString());
        QCOMPARE(fixture.value(RecordKeys::symbolText), QString("r10"));
        QCOMPARE(fixture.agreement->faultOf(fixture.record()), QString());
        fixture.leave();
        QVERIFY(fixture.boxes.take().isEmpty());
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::AddFeatureStarted});
        QCOMPARE(fixture.value(RecordKeys::symbolText), QString("r10"));
    }

    /// A chosen or picked name is refused as well.
    void chosenOrPicked()
    {
        for (const bool isPicked : {false, true}) {
            FocusFixture fixture;
            fixture.click("m_pPadTB");
            fixture.recorder.clear();
            if (isPicked) {
                fixture.pick("r60000");
            } else {
                fixture.dialog->receive_text("r60000");
            }
            QCOMPARE(fixture.boxes.take().size(), 1);
            QVERIFY(fixture.recorder.messages().isEmpty());
            QCOMPARE(fixture.value(RecordKeys::symbolText), QString());
            QCOMPARE(fixture.find<QLineEdit>("m_pSymbolTextLE").text(), QString());
        }
    }
};

CTS_TEST(TestRefusedSymbol);
#include "test_refused_symbol.moc"
