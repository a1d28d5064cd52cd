#include "BoxCounter.h"
#include "Checks.h"
#include "Numbers.h"
#include "Report.h"

#include <cam_api.h>
#include <ui_api.h>

#include <QTest>

using namespace ZENTRA::UIAPI;

namespace {

constexpr int settlingTime = 20;  // milliseconds in which a box would open that is late

/// A bound as the module shows it.
QString shown(double bound)
{
    return QString::number(bound, 'f', 0);
}

/// What `check` answers, and that it opens one box if it refuses and none otherwise.
template <class Check>
void expectJudged(Report& report, Row answer, Row box, const QString& what, bool isLegal,
                  Check check)
{
    report.run(answer, what, [&] {
        BoxCounter boxes;
        const bool came = check();
        const int inTime = boxes.take();
        QTest::qWait(came ? 0 : settlingTime);
        report.expect(answer, what, isLegal, came);
        report.expect(box, what + QStringLiteral(": boxes"), came ? 0 : 1, inTime);
        report.expect(box, what + QStringLiteral(": boxes after it returned"), 0, boxes.take());
    });
}

struct Bounds {
    double minimum;
    double maximum;
    std::vector<double> legal;
    std::vector<double> refused;
};

// Those of the dialog.
const Bounds numberBounds[] = {
    {0, 50, {0, 1, 50}, {-1, 51, 500}},
    {-100, 100, {-100, -0.5, 0, 100}, {-100.5, -101, 100.5, 101}},
    {0, 360, {0, 45.5, 360}, {-1, 361, 400}},
};

void checkNumbers(Report& report, const Situation& situation)
{
    for (const Bounds& bounds : numberBounds) {
        const auto expectNumber = [&](double value, bool isLegal) {
            const QString what =
                QStringLiteral("%1 in %2 to %3").arg(value).arg(bounds.minimum).arg(bounds.maximum);
            expectJudged(report, Row::NumberAnswer, Row::NumberBox, what, isLegal, [&] {
                return isNumValueLegal(value, bounds.minimum, bounds.maximum, situation.context);
            });
        };
        for (const double value : bounds.legal) {
            expectNumber(value, true);
        }
        for (const double value : bounds.refused) {
            expectNumber(value, false);
        }
    }
}

struct SymbolName {
    const char* inMil;
    const char* inMetric;
    bool isLegal;
    Row row = Row::SymbolAnswer;
};

constexpr SymbolName symbolNames[] = {
    {"r10", "r254", true},
    {"s10.5", "s266.7", true},
    {"r50000", "r1270000", true},
    {"s50000", "s1270000", true},
    {"r50001", "r1270026", false},
    {"s60000", "s1524000", false},
    {"", "", true, Row::SymbolExceptions},
    {"r", "r", true, Row::SymbolExceptions},
    {"s", "s", true, Row::SymbolExceptions},
    {"logo", "logo", true, Row::SymbolExceptions},
    {"r10_45", "r254_45", true, Row::SymbolExceptions},
};

void checkSymbolSizes(Report& report, const Situation& situation)
{
    constexpr double largest = 50000;
    for (const SymbolName& row : symbolNames) {
        const QString name = QLatin1String(situation.isMetric ? row.inMetric : row.inMil);
        expectJudged(report, row.row, Row::SymbolBox, '"' + name + '"', row.isLegal,
                     [&] { return isSymbolValueLegal(name, 0, largest, situation.context); });
    }
}

void checkUnitString(Report& report, const Situation& situation)
{
    report.step(QStringLiteral("getUnitString()"));
    try {
        const QString came = getUnitString(situation.context);
        const bool isMetric = came == QLatin1String("MM");
        report.judge(Row::UnitString, QStringLiteral("getUnitString()"),
                     isMetric == situation.isMetric,
                     situation.isMetric ? QStringLiteral("\"MM\"") : QStringLiteral("not \"MM\""),
                     '"' + came + '"');
    } catch (...) {
        report.untried(Row::UnitString, QStringLiteral("it throws"));
    }
}

}  // namespace

void checkUnits(Report& report, const Situation& situation)
{
    QWidget* const context = situation.context;
    report.expectReturn(Row::EqVisible, QStringLiteral("getEQVisible()"), [] { getEQVisible(); });
    checkUnitString(report, situation);
    report.run(Row::Unit, QStringLiteral("getUnit()"), [&] {
        const int came = getUnit(context);
        report.judge(Row::Unit, QStringLiteral("getUnit()"), (came != 0) == situation.isMetric,
                     situation.isMetric ? QStringLiteral("not 0") : QStringLiteral("0"),
                     QString::number(came));
    });
    report.run(Row::ShowPara, QStringLiteral("getShowPara()"), [&] {
        ZENTRA::API::show_param came{};
        getShowPara(context, came);
        report.expect(Row::ShowPara, QStringLiteral("metric"), situation.isMetric, came.metric);
    });
    for (const double bound : {10000.0, 50000.0}) {
        const QString what = QStringLiteral("getUnitJudgeDouble(%1)").arg(bound);
        report.run(Row::BoundInUnit, what, [&] {
            report.expect(Row::BoundInUnit, what,
                          shown(situation.isMetric ? bound * factor : bound),
                          shown(getUnitJudgeDouble(context, bound)));
        });
    }
}

void checkLegal(Report& report, const Situation& situation)
{
    checkNumbers(report, situation);
    checkSymbolSizes(report, situation);
}
