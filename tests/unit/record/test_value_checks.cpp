// What the checks accept, and the box in which each refuses the rest.

#include "BoxCatcher.h"
#include "Main.h"
#include "addfeature/record/HostUnits.h"
#include "addfeature/record/RefusalGuard.h"
#include "addfeature/record/ValueChecks.h"

#include <UiApiStandIn.h>

#include <cmath>
#include <limits>

namespace {

using CanvasHost::DisplayUnit;

/// The checks of a dialog that has been told the unit in which the host shows everything.
struct Told {
    explicit Told(bool isMetric)
    {
        CanvasHost::setDisplayUnit(isMetric ? DisplayUnit::Micrometre : DisplayUnit::Mil);
        units.tell(isMetric);
    }

    RefusalGuard refusals;
    HostUnits units{nullptr};
    ValueChecks checks{refusals, units, nullptr, nullptr};
    BoxCatcher boxes;
};

}  // namespace

class TestValueChecks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        CanvasHost::setDisplayUnit(DisplayUnit::Mil);
        CanvasHost::uiApiOverrides() = {};
    }

    void length_data()
    {
        QTest::addColumn<bool>("isMetric");
        QTest::addColumn<int>("maximum");  // in mil
        QTest::addColumn<QStringList>("accepted");
        QTest::addColumn<QStringList>("refused");
        const QStringList numbers = {"0", "10", "12.5", "12.50", "1e3", " 10 "};
        const QStringList none = {"-0.001", "-1",  "",    "   ",  "abc",  "1 0",
                                  "1,5",    "nan", "inf", "-inf", "1e400"};
        QTest::newRow("mil") << false << 50000 << numbers + QStringList{"50000", "49999"}
                             << none + QStringList{"50000.1", "50001"};
        QTest::newRow("mil, less")
            << false << 10000 << QStringList{"10000", "9999.5"} << QStringList{"10000.5", "-1"};
        QTest::newRow("metric") << true << 50000 << numbers + QStringList{"1270000", "1269999"}
                                << none + QStringList{"1270000.1", "1270001"};
        QTest::newRow("metric, less")
            << true << 10000 << QStringList{"254000", "253999.5"} << QStringList{"254001", "-1"};
    }

    void length()
    {
        QFETCH(bool, isMetric);
        QFETCH(int, maximum);
        QFETCH(QStringList, accepted);
        QFETCH(QStringList, refused);
        Told told(isMetric);
        for (const QString& text : accepted) {
            QVERIFY2(told.checks.length(text, maximum), qPrintable(text));
        }
        const int bound = isMetric ? maximum / 10 * 254 : maximum;
        for (const QString& text : refused) {
            QVERIFY2(!told.checks.length(text, maximum), qPrintable(text));
            const auto boxes = told.boxes.take();
            QCOMPARE(boxes.size(), 1);
            QCOMPARE((BoxText{boxes[0].title, boxes[0].text}), BoxTexts::length(bound));
            QCOMPARE(boxes[0].icon, QMessageBox::Information);
        }
    }

    void coordinate()
    {
        for (const bool isMetric : {false, true}) {
            Told told(isMetric);
            const int bound = isMetric ? 2540000 : 100000;
            for (const double value : {0.0, 1.5, double(bound), double(-bound)}) {
                QVERIFY(told.checks.coordinate(value));
            }
            const double infinity = std::numeric_limits<double>::infinity();
            for (const double value :
                 {bound + 0.5, -bound - 0.5, infinity, -infinity, std::nan("")}) {
                QVERIFY(!told.checks.coordinate(value));
                const auto boxes = told.boxes.take();
                QCOMPARE(boxes.size(), 1);
                QCOMPARE((BoxText{boxes[0].title, boxes[0].text}), BoxTexts::coordinate(bound));
                QCOMPARE(boxes[0].icon, QMessageBox::Warning);
                QCOMPARE(boxes[0].buttons.size(), 1);
            }
        }
    }

    void theHostChecksNumbers()
    {
        Told told(false);
        QVERIFY(told.checks.number(-100, -100, 50) && told.checks.number(50, -100, 50));
        for (const double value : {50.01, -100.1, std::nan("")}) {
            QVERIFY(!told.checks.number(value, -100, 50));
            QCOMPARE(told.boxes.takeTexts(), BoxTextList{BoxTexts::number(-100, 50)});
        }
    }

    void theHostChecksSymbols()
    {
        Told told(false);
        QVERIFY(told.checks.symbolSizes("r50000"));
        QVERIFY(!told.checks.symbolSizes("r50000.5"));
        QCOMPARE(told.boxes.takeTexts(), BoxTextList{BoxTexts::number(0, 50000)});
    }
};

CTS_TEST(TestValueChecks);
#include "test_value_checks.moc"
