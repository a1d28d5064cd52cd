#include "BoxCounter.h"
#include "Checks.h"
#include "Names.h"
#include "RandomNumbers.h"
#include "Report.h"

#include <ui_api.h>

#include <limits>

using namespace ZENTRA::UIAPI;

namespace {

constexpr double micrometresOfMil = 25.4;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

/// A name as it is stored, in mil, and as a metric user reads it.
constexpr const char* symbolNames[][2] = {
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

struct NumberBound {
    double value;
    double minimum;
    double maximum;
    bool isLegal;
};

constexpr NumberBound numberBounds[] = {
    {0, 0, 50, true},           {50, 0, 50, true},         {25, 0, 50, true},
    {-1e-6, 0, 50, false},      {50 + 1e-6, 0, 50, false}, {-100, -100, 100, true},
    {100, -100, 100, true},     {0, -100, 100, true},      {-100.5, -100, 100, false},
    {100.5, -100, 100, false},  {360, 0, 360, true},       {361, 0, 360, false},
    {notANumber, 0, 50, false}, {infinity, 0, 50, false},  {-infinity, 0, 50, false},
};

struct SymbolBound {
    const char* name;
    bool isLegalInMil;
    bool isLegalInMetric;
    double minimum = 0;
};

constexpr double largestSymbol = 50000;
constexpr SymbolBound symbolBounds[] = {
    {"", true, true},
    {"r", true, true},
    {"s", true, true},
    {"r0", true, true},
    {"r0", false, false, 0.5},
    {"r10", true, true},
    {"r10", true, false, 1},
    {"r25.4", true, true, 1},
    {"r50000", true, true},
    {"r50000.1", false, true},
    {"r60000", false, true},
    {"s60000", false, true},
    {"r1270000", false, true},
    {"r1270001", false, false},
    {"r1270000.1", false, false},
    {"rect20x40", true, true},
    {"rect20x60000", false, true},
    {"rect1270001x20", false, false},
    {"octagon20x40x1270001", false, false},
    {"ring_r60x30", true, true},
    {"ring_r1270001x30", false, false},
    {"r10_45", true, true},
    {"r10_9999999", true, true},
    {"r60000_45", false, true},
    {"r10_4x", true, true},
    {"r9999999_4x", true, true},
    {"r10x9999999", true, true},
    {"logo9999999", true, true},
    {"fiducial", true, true},
    {"R9999999", true, true},
    {"9999999", true, true},
    {"nan", true, true},
};

void checkUnits(Report& report, const Situation& situation)
{
    QWidget* const context = situation.context;
    const double factor = situation.isMetric ? micrometresOfMil : 1;
    report.run(QStringLiteral("getEQVisible()"), [] { getEQVisible(); });
    report.run(QStringLiteral("getUnit()"), [&] {
        report.expect(QStringLiteral("getUnit()"), situation.isMetric ? 1 : 0, getUnit(context));
    });
    for (const double mils : {0.0, 10.0, 0.5, -100.0, 50000.0}) {
        const QString data = QStringLiteral("getUnitData(%1)").arg(mils);
        report.run(data, [&] { report.expect(data, mils * factor, getUnitData(context, mils)); });
        const QString bound = QStringLiteral("getUnitJudgeDouble(%1)").arg(mils);
        report.run(bound,
                   [&] { report.expect(bound, mils * factor, getUnitJudgeDouble(context, mils)); });
    }
    for (const bool before : {false, true}) {
        const QString what = QStringLiteral("getShowPara(): metric, %1 before").arg(int(before));
        report.run(what, [&] {
            ZENTRA::API::show_param shown;
            shown.metric = before;
            getShowPara(context, shown);
            report.expect(what, situation.isMetric, shown.metric);
        });
    }
}

/// The one operation that may throw.
void checkUnitString(Report& report, const Situation& situation)
{
    const QString expected = situation.isMetric ? QStringLiteral("MM") : QStringLiteral("INCH");
    bool hasThrown = true;
    report.step(QStringLiteral("getUnitString()"));
    try {
        const QString got = getUnitString(situation.context);
        hasThrown = false;
        report.expect(QStringLiteral("getUnitString()"), expected, got);
    } catch (...) {
    }
    if (hasThrown) {
        report.untried(QStringLiteral("the text of getUnitString()"), QStringLiteral("it throws"));
    } else {
        report.untried(QStringLiteral("getUnitString() that throws"),
                       QStringLiteral("it throws nothing here"));
    }
}

void expectName(Report& report, const QString& name, Direction direction, const QString& expected)
{
    const QString what =
        QStringLiteral("setSymbolUIData(\"%1\", %2)").arg(name).arg(int(direction));
    report.run(what, [&] { report.expect(what, expected, setSymbolUIData(name, direction)); });
}

void checkSymbolNames(Report& report)
{
    for (const auto& [stored, metric] : symbolNames) {
        expectName(report, QLatin1String(stored), StoredToMetric, QLatin1String(metric));
        expectName(report, QLatin1String(metric), TypedToStored, QLatin1String(stored));
    }
    for (const char* const name : otherNames) {
        expectName(report, QLatin1String(name), StoredToMetric, QLatin1String(name));
        expectName(report, QLatin1String(name), TypedToStored, QLatin1String(name));
    }
}

/// Round trips in both directions, until the first name that changes.
void checkSymbolsComeBack(Report& report)
{
    RandomNumbers numbers;
    bool isSame = true;
    report.run(QStringLiteral("setSymbolUIData() of any size"), [&] {
        for (int i = 0; i < 2000 && isSame; ++i) {
            const QString name = 'r' + numbers.next(6);
            for (const Direction there : {TypedToStored, StoredToMetric}) {
                const Direction back = there == StoredToMetric ? TypedToStored : StoredToMetric;
                report.step(
                    QStringLiteral("setSymbolUIData(\"%1\", %2) and back").arg(name).arg(there));
                const QString other = setSymbolUIData(name, there);
                isSame &= report.expect(QStringLiteral("setSymbolUIData(\"%1\", %2) of what "
                                                       "setSymbolUIData(\"%3\", %4) gave")
                                            .arg(other)
                                            .arg(int(back))
                                            .arg(name)
                                            .arg(int(there)),
                                        name, setSymbolUIData(other, back));
                isSame &=
                    report.expect(QStringLiteral("setSymbolUIData(\"%1\", %2) has an exponent")
                                      .arg(name)
                                      .arg(int(there)),
                                  false, other.contains('e'));
            }
        }
    });
}

/// What `check` returns, and that it opens one box if it refuses and none otherwise.
template <class Check>
void expectJudged(Report& report, const QString& what, bool isLegal, Check check)
{
    report.run(what, [&] {
        BoxCounter boxes;
        report.expect(what, isLegal, check());
        report.expect(what + QStringLiteral(": modal boxes"), isLegal ? 0 : 1, boxes.take());
    });
}

void checkBounds(Report& report, const Situation& situation)
{
    for (const NumberBound& row : numberBounds) {
        const QString what = QStringLiteral("isNumValueLegal(%1, %2, %3)")
                                 .arg(row.value, 0, 'g', 9)
                                 .arg(row.minimum)
                                 .arg(row.maximum);
        expectJudged(report, what, row.isLegal, [&] {
            return isNumValueLegal(row.value, row.minimum, row.maximum, situation.context);
        });
    }
    for (const SymbolBound& row : symbolBounds) {
        const QString what = QStringLiteral("isSymbolValueLegal(\"%1\", %2, %3)")
                                 .arg(QLatin1String(row.name))
                                 .arg(row.minimum)
                                 .arg(largestSymbol);
        const bool isLegal = situation.isMetric ? row.isLegalInMetric : row.isLegalInMil;
        expectJudged(report, what, isLegal, [&] {
            return isSymbolValueLegal(QLatin1String(row.name), row.minimum, largestSymbol,
                                      situation.context);
        });
    }
    // More than a double can hold
    const QString huge = 'r' + QString(400, '9');
    expectJudged(report, QStringLiteral("isSymbolValueLegal() of r and 400 nines"), false,
                 [&] { return isSymbolValueLegal(huge, 0, largestSymbol, situation.context); });
}

}  // namespace

void checkUiApi(Report& report, const Situation& situation)
{
    checkUnits(report, situation);
    checkUnitString(report, situation);
    checkSymbolNames(report);
    checkSymbolsComeBack(report);
    checkBounds(report, situation);
}
