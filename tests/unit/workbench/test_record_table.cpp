// The table in which the canvas shows the feature record.

#include "Main.h"
#include "plugin/RecordKeys.h"
#include "shared/RecordTable.h"

namespace {

QStringList marked(const RecordTable& table)
{
    QStringList keys;
    for (int row = 0; row < table.rowCount(); ++row) {
        if (table.item(row, 0)->font().bold()) {
            keys.append(table.item(row, 0)->text());
        }
    }
    return keys;
}

}  // namespace

class TestRecordTable : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void values()
    {
        RecordTable table("m_pRecordTW");
        table.showValues({{RecordKeys::features, FeatureKind::pad.toInt()},
                          {RecordKeys::symbolText, QString("r10")}});
        QCOMPARE(table.rowCount(), 2);
        const QString expected[2][3] = {{RecordKeys::features, "2", "integer"},
                                        {RecordKeys::symbolText, "r10", "text"}};
        for (int row = 0; row < 2; ++row) {
            for (int column = 0; column < 3; ++column) {
                QCOMPARE(table.item(row, column)->text(), expected[row][column]);
            }
        }
    }

    void marks()
    {
        RecordTable table("m_pRecordTW");
        table.showValues({{"A", QString("1")}, {"B", QString("1")}});
        QCOMPARE(marked(table), QStringList());
        table.showValues({{"A", QString("1")}, {"B", QString("2")}});
        QCOMPARE(marked(table), QStringList("B"));
        // Enter sends the record twice.
        table.showValues({{"A", QString("1")}, {"B", QString("2")}});
        QCOMPARE(marked(table), QStringList("B"));
        table.showValues({{"A", 1}, {"B", QString("2")}});
        QCOMPARE(marked(table), QStringList("A"));
        table.showValues({{"A", 1}, {"B", QString("2")}, {"C", QString()}});
        QCOMPARE(marked(table), QStringList("C"));
        table.showValues({{"A", 1}});
        QCOMPARE(table.rowCount(), 1);
        QCOMPARE(marked(table), QStringList());
        table.showValues({});
        QCOMPARE(table.rowCount(), 0);
    }
};

CTS_TEST(TestRecordTable);
#include "test_record_table.moc"
