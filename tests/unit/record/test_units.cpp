// What the record holds for a length, and what stands beside it.

#include "Main.h"
#include "addfeature/record/Units.h"

class TestUnits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// In mil with at most six significant digits; in the metric unit as typed.
    void stored()
    {
        const struct {
            const char* typed;
            const char* mil;
        } rows[] = {{"0", "0"},          {"10", "254"},         {"12.5", "317.5"},
                    {"1e3", "25400"},    {" 10 ", "254"},       {"-10", "-254"},
                    {"12.50", "317.5"},  {".5", "12.7"},        {"9999.5", "253987"},
                    {"10000", "254000"}, {"50000", "1.27e+06"}, {"49999", "1.26997e+06"}};
        for (const auto& row : rows) {
            QCOMPARE(Units::toStored(row.typed, false), QString(row.mil));
            QCOMPARE(Units::toStored(row.typed, true), QString(row.typed));
        }
    }

    void labels()
    {
        QCOMPARE(Units::lengthLabel(false), QString("mil"));
        QCOMPARE(Units::lengthLabel(true), QString("my"));
        QCOMPARE(Units::largeLengthLabel(false), QString("\""));
        QCOMPARE(Units::largeLengthLabel(true), QString("mm"));
    }
};

CTS_TEST(TestUnits);
#include "test_units.moc"
