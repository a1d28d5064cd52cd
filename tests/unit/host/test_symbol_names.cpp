// What the stand-ins know of symbol names beyond what the module relies on: the shapes, their sizes
// and conversions, and which names are none.

#include "BoxCatcher.h"
#include "Main.h"

#include <UiApiStandIn.h>
#include <cam_api.h>
#include <ui_api.h>

#include <QRandomGenerator>

#include <limits>

using ZENTRA::API::show_param;
using ZENTRA::API::symbol_type;
using namespace ZENTRA::UIAPI;
using CanvasHost::DisplayUnit;

namespace {

enum Direction { TypedToStored, StoredToMetric };

struct ShapeAnswer {
    bool isKnown = false;
    symbol_type type = symbol_type::user;
    int a = -7;
    int b = -7;
};

ShapeAnswer shapeOf(const char* name, bool arc)
{
    ShapeAnswer answer;
    answer.isKnown = ZENTRA::API::identify_symbol(name, answer.type, answer.a, answer.b, arc);
    return answer;
}

struct StandardName {
    const char* name;
    symbol_type type;
    int a;
    int b;
};

constexpr StandardName standardNames[] = {
    {"r10", symbol_type::round, 1000, 1000},
    {"r10.5", symbol_type::round, 1050, 1050},
    {"r0.001", symbol_type::round, 0, 0},
    {"r0.005", symbol_type::round, 1, 1},
    {"r60000", symbol_type::round, 6000000, 6000000},
    {"s10", symbol_type::square, 1000, 1000},
    {"rect20x40", symbol_type::rectangle, 2000, 4000},
    {"rect20.25x40.5", symbol_type::rectangle, 2025, 4050},
    {"oval20x40", symbol_type::oval, 2000, 4000},
    {"diamond20x40", symbol_type::diamond, 2000, 4000},
    {"octagon20x40", symbol_type::octagon, 2000, 4000},
    {"octagon20x40x5", symbol_type::octagon, 2000, 4000},
    {"hexagon20x40", symbol_type::hexagon, 2000, 4000},
    {"hexagon20x40x5.5", symbol_type::hexagon, 2000, 4000},
    {"triangle20x40", symbol_type::triangle, 2000, 4000},
    {"ellipse20x40", symbol_type::ellipse, 2000, 4000},
    {"ring_r60x30", symbol_type::round_ring, 6000, 3000},
    {"ring_r60x59.9", symbol_type::round_ring, 6000, 5990},
    {"ring_s60x30", symbol_type::square_ring, 6000, 3000},
};

constexpr const char* refusedNames[] = {
    "",
    // No size, or none above 0
    "r", "s", "rect", "10", "x10", "r0", "r0.0", "s0", "r-1", "rect0x40", "rect20x0",
    "octagon20x40x0",
    // A number of sizes other than the shape's
    "r10x20", "rect20", "rect20x", "rectx20", "rect20x40x5", "oval20", "oval20x40x5", "diamond20",
    "diamond1x2x3", "octagon20", "octagon20x40x5x5", "hexagon20", "triangle20", "triangle1x2x3",
    "ellipse20", "ellipse1x2x3", "ring_r60",
    // A ring whose inner size is not the smaller one
    "ring_r60x60", "ring_r30x60", "ring_r60x0", "ring_s60x60",
    // Another spelling
    "R10", "rect20X40", "r1,5", "r1.2.3", "r1e3", "di20x40", "oct20x40x5", "ring60x30",
    "ring_t60x30", "user", " r10", "r10 ", "r 10", "r10\n",
    // With a rotation suffix
    "r10_45", "rect20x40_90"};

/// A name as it is stored, in mil, and as a metric user reads it.
constexpr const char* storedAndMetric[][2] = {
    {"r10", "r254"},
    {"r0.5", "r12.7"},
    {"s39.3701", "s1000"},
    {"rect20x40", "rect508x1016"},
    {"oval60x30", "oval1524x762"},
    {"diamond20x40", "diamond508x1016"},
    {"octagon20x40x5", "octagon508x1016x127"},
    {"hexagon20x40", "hexagon508x1016"},
    {"triangle20x40", "triangle508x1016"},
    {"ellipse20x40", "ellipse508x1016"},
    {"ring_r60x30", "ring_r1524x762"},
    {"ring_s10x5", "ring_s254x127"},
    {"r10_45", "r254_45"},
    {"ring_r60x30_90", "ring_r1524x762_90"},
};

constexpr const char* otherNames[] = {"",    "r",      "s",      "logo",   "logo10",
                                      "R10", "rect20", "r10x20", "r10_4x", "fiducial_cross",
                                      "r-5", "r1e3",   "_",      "10"};

struct Bound {
    const char* name;
    bool isLegalInMil;
    bool isLegalInMetric;
    double minimum = 0;
};

constexpr Bound bounds[] = {
    {"r0", true, true},
    {"r0", false, false, 0.5},
    {"r10", true, false, 1},
    {"r25.4", true, true, 1},
    {"r50000.1", false, true},
    {"r1270000.1", false, false},
    {"rect20x40", true, true},
    {"rect20x60000", false, true},
    {"rect1270001x20", false, false},
    {"octagon20x40x1270001", false, false},
    {"ring_r60x30", true, true},
    {"ring_r1270001x30", false, false},
    {"r10_9999999", true, true},
    {"r60000_45", false, true},
    {"r10_4x", true, true},
    {"r9999999_4x", true, true},
    {"r10x9999999", true, true},
    {"logo9999999", true, true},
    {"R9999999", true, true},
    {"9999999", true, true},
    {"nan", true, true},
};

/// What `check` answers; boxes are closed.
template <class Check>
bool answer(Check check)
{
    BoxCatcher boxes;
    const bool isLegal = check();
    boxes.take();
    return isLegal;
}

/// Up to `mostDigits` digits with the point anywhere, without needless zeros.
QString someNumber(QRandomGenerator& random, int mostDigits)
{
    const int digits = random.bounded(1, mostDigits + 1);
    QString text;
    for (int i = 0; i < digits; ++i) {
        text += QString::number(random.bounded(i == 0 || i == digits - 1 ? 1 : 0, 10));
    }
    const int place = random.bounded(-4, digits + 5);
    if (place <= 0) {
        return "0." + QString(-place, '0') + text;
    }
    return place < digits ? text.insert(place, '.') : text.leftJustified(place, '0');
}

}  // namespace

class TestSymbolNames : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { CanvasHost::setDisplayUnit(DisplayUnit::Mil); }

    void standardShapes()
    {
        for (const StandardName& row : standardNames) {
            for (const bool arc : {false, true}) {
                const ShapeAnswer answer = shapeOf(row.name, arc);
                const bool isKnown = !arc || row.type == symbol_type::round;
                QVERIFY2(answer.isKnown == isKnown, row.name);
                QCOMPARE(answer.type, isKnown ? row.type : symbol_type::unknown);
                QCOMPARE(answer.a, isKnown ? row.a : 0);
                QCOMPARE(answer.b, isKnown ? row.b : 0);
            }
        }
    }

    void refusedShapes()
    {
        for (const char* const name : refusedNames) {
            for (const bool arc : {false, true}) {
                const ShapeAnswer answer = shapeOf(name, arc);
                QVERIFY2(!answer.isKnown, name);
                QCOMPARE(answer.type, symbol_type::unknown);
                QCOMPARE(answer.a, 0);
                QCOMPARE(answer.b, 0);
            }
        }
    }

    void eachShapeIsConverted()
    {
        for (const auto& [stored, metric] : storedAndMetric) {
            QCOMPARE(setSymbolUIData(stored, StoredToMetric), QString(metric));
            QCOMPARE(setSymbolUIData(metric, TypedToStored), QString(stored));
        }
        for (const char* const name : otherNames) {
            QCOMPARE(setSymbolUIData(name, StoredToMetric), QString(name));
            QCOMPARE(setSymbolUIData(name, TypedToStored), QString(name));
        }
    }

    /// Whatever the size: the interface promises six digits.
    void anySizeComesBack()
    {
        QRandomGenerator random(20261121);
        for (int i = 0; i < 2000; ++i) {
            const QString name = 'r' + someNumber(random, 6);
            for (const Direction there : {TypedToStored, StoredToMetric}) {
                const QString other = setSymbolUIData(name, there);
                QVERIFY2(!other.contains('e'), qPrintable(other));
                QCOMPARE(setSymbolUIData(other, 1 - there), name);
            }
        }
    }

    void bounds_data()
    {
        QTest::addColumn<bool>("isMetric");
        QTest::newRow("mil") << false;
        QTest::newRow("metric") << true;
    }

    void bounds()
    {
        QFETCH(bool, isMetric);
        CanvasHost::setDisplayUnit(isMetric ? DisplayUnit::Micrometre : DisplayUnit::Mil);
        for (const Bound& row : ::bounds) {
            const bool came =
                answer([&] { return isSymbolValueLegal(row.name, row.minimum, 50000, nullptr); });
            QVERIFY2(came == (isMetric ? row.isLegalInMetric : row.isLegalInMil), row.name);
        }
        // More than a double can hold
        const QString huge = 'r' + QString(400, '9');
        QVERIFY(!answer([&] { return isSymbolValueLegal(huge, 0, 50000, nullptr); }));
    }

    void boundsAreExact()
    {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        for (const double value : {-1e-6, 50 + 1e-6, infinity, -infinity}) {
            QVERIFY(!answer([&] { return isNumValueLegal(value, 0, 50, nullptr); }));
        }
    }

    void unitsAreTold()
    {
        for (const DisplayUnit unit : {DisplayUnit::Mil, DisplayUnit::Inch, DisplayUnit::Micrometre,
                                       DisplayUnit::Millimetre}) {
            CanvasHost::setDisplayUnit(unit);
            const bool isMetric =
                unit == DisplayUnit::Micrometre || unit == DisplayUnit::Millimetre;
            QCOMPARE(getUnit(nullptr), isMetric ? 1 : 0);
            QCOMPARE(getUnitString(nullptr), QString(isMetric ? "MM" : "INCH"));
            for (const double mils : {0.0, 10.0, 0.5, -100.0, 50000.0}) {
                QCOMPARE(getUnitData(nullptr, mils), isMetric ? mils * 25.4 : mils);
                QCOMPARE(getUnitJudgeDouble(nullptr, mils), isMetric ? mils * 25.4 : mils);
            }
            show_param shown;
            shown.metric = !isMetric;
            getShowPara(nullptr, shown);
            QCOMPARE(shown.metric, isMetric);
        }
    }
};

CTS_TEST(TestSymbolNames);
#include "test_symbol_names.moc"
