// Every control of the dialog but the symbol's, through its slot to the record and the canvas: an
// entry that is taken, and one that is refused.

#include "DialogFixture.h"
#include "Expect.h"
#include "Main.h"
#include "plugin/MessageCodes.h"

namespace {

/// What is not a type: the tests of the fields tell "5" from 5.
QMap<QString, QString> texts(const QVariantMap& record)
{
    QMap<QString, QString> texts;
    for (const QString& key : record.keys()) {
        texts[key] = record[key].toString();
    }
    return texts;
}

/// Each key that is taken is sent at once.
QVector<int> sentFor(const Entry& entry)
{
    return entry.isCheckedWhileTyped()
               ? QVector<int>(entry.stored().size(), MessageCodes::Sent::Record)
               : entry.codes();
}

}  // namespace

class TestWiring : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entry_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<By>("way");
        for (int number = 0; number < allEntries().size(); ++number) {
            const Entry& entry = allEntries()[number];
            if (entry.field() == "m_pSymbolTextLE") {
                continue;  // its entries have a file of their own
            }
            QTest::newRow(qPrintable(entry.words())) << number << By::Enter;
            if (entry.isRefused()) {
                QTest::newRow(qPrintable(entry.words() + ", Tab")) << number << By::Tab;
                QTest::newRow(qPrintable(entry.words() + ", mouse")) << number << By::Mouse;
            }
        }
    }

    void entry()
    {
        QFETCH(int, number);
        QFETCH(By, way);
        const Entry& entry = allEntries()[number];
        DialogFixture fixture;
        fixture.perform(entry.reach());
        fixture.recorder.clear();
        fixture.boxes.take();
        QMap<QString, QString> expected = texts(fixture.record());
        expected[entry.recordKey()] = entry.stored();
        fixture.make(entry);
        if (entry.isTyped()) {
            fixture.leave(way);
        }
        QCOMPARE(fixture.recorder.codes(), sentFor(entry));
        Expect::sameBoxes(fixture.boxes.takeTexts(), entry.boxes());
        QCOMPARE(texts(fixture.lastRecord()), expected);
        if (entry.isRefused()) {
            QCOMPARE(fixture.text(entry.field()), entry.stored());
        }
    }
};

CTS_TEST(TestWiring);
#include "test_wiring.moc"
