// A symbol that the host refuses at the send is removed from record and field.

#include "DialogFixture.h"
#include "Expect.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <QLineEdit>

namespace Accepted = MessageCodes::Accepted;
namespace Sent = MessageCodes::Sent;

using Opened = DialogFixture::Opened;

class TestRefusedSymbol : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leavesTheRecord_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<Unit>("unit");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("rotation");
        QTest::newRow("line") << "m_pLineTB" << Unit::Mil << "r60000"
                              << "0";
        QTest::newRow("pad") << "m_pPadTB" << Unit::Mil << "s60000"
                             << "0";
        QTest::newRow("arc") << "m_pArcTB" << Unit::Mil << "r60000"
                             << "0";
        QTest::newRow("suffix") << "m_pPadTB" << Unit::Mil << "r60000_45"
                                << "45";
        QTest::newRow("line, metric") << "m_pLineTB" << Unit::Metric << "r1524000"
                                      << "0";
        QTest::newRow("suffix, metric") << "m_pPadTB" << Unit::Metric << "r1524000_45"
                                        << "45";
    }

    void leavesTheRecord()
    {
        QFETCH(QString, type);
        QFETCH(Unit, unit);
        QFETCH(QString, typed);
        QFETCH(QString, rotation);
        for (const By way : {By::Tab, By::Enter}) {
            DialogFixture fixture(unit, Opened::ByTheStrip);
            fixture.click(type);
            fixture.type("m_pSymbolTextLE", typed);
            fixture.recorder.clear();
            fixture.leave(way);
            QCOMPARE(fixture.boxes.take().size(), 1);
            QCOMPARE(fixture.text("m_pSymbolTextLE"), QString());
            Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "")});
            if (way == By::Tab) {
                QVERIFY(fixture.recorder.messages().isEmpty());
                Expect::holds(fixture, {Expect::record(RecordKeys::mirrorRotate, rotation)});
            }
            fixture.choose("m_pPolarityCMB", "Negative");
            Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "")});
            QCOMPARE(fixture.agreement->faultOf(fixture.record()), QString());
        }
    }

    void anEarlierOneStays_data()
    {
        QTest::addColumn<Unit>("unit");
        QTest::addColumn<QString>("accepted");
        QTest::addColumn<QString>("refused");
        QTest::newRow("mil") << Unit::Mil << "r10"
                             << "r60000";
        QTest::newRow("metric") << Unit::Metric << "r254"
                                << "r1524000";
        QTest::newRow("suffix") << Unit::Mil << "r10_45"
                                << "r60000_45";
    }

    /// The refused one was never entered: only the check sees it.
    void anEarlierOneStays()
    {
        QFETCH(Unit, unit);
        QFETCH(QString, accepted);
        QFETCH(QString, refused);
        DialogFixture fixture(unit, Opened::ByTheStrip);
        fixture.click("m_pPadTB");
        fixture.type("m_pSymbolTextLE", accepted);
        fixture.leave();
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r10")});
        fixture.type("m_pSymbolTextLE", refused);
        fixture.recorder.clear();
        fixture.receive(Accepted::AddFeature);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::AddFeatureStarted});
        QCOMPARE(fixture.boxes.take().size(), 1);
        QCOMPARE(fixture.text("m_pSymbolTextLE"), QString());
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r10")});
        QCOMPARE(fixture.agreement->faultOf(fixture.record()), QString());
        fixture.leave();
        QVERIFY(fixture.boxes.take().isEmpty());
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::AddFeatureStarted});
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r10")});
    }

    /// A chosen or picked name is refused as well.
    void chosenOrPicked()
    {
        for (const bool isPicked : {false, true}) {
            DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
            fixture.click("m_pPadTB");
            fixture.recorder.clear();
            if (isPicked) {
                fixture.pick("r60000");
            } else {
                fixture.dialog->receive_text("r60000");
            }
            QCOMPARE(fixture.boxes.take().size(), 1);
            QVERIFY(fixture.recorder.messages().isEmpty());
            Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "")});
            QCOMPARE(fixture.text("m_pSymbolTextLE"), QString());
        }
    }
};

CTS_TEST(TestRefusedSymbol);
#include "test_refused_symbol.moc"
