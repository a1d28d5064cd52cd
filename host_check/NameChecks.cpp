#include "Checks.h"
#include "Numbers.h"
#include "RandomNumbers.h"
#include "Report.h"

#include <cam_api.h>
#include <ui_api.h>

#include <QRegularExpression>

#include <cmath>

using ZENTRA::UIAPI::setSymbolUIData;

namespace {

enum Direction { TypedToStored, StoredToMetric };

void expectSymbol(Report& report, Row row, const char* name, bool arc, bool expected)
{
    const QString what =
        QStringLiteral("\"%1\"%2").arg(QLatin1String(name), arc ? " for an arc" : "");
    report.run(row, what, [&] {
        ZENTRA::API::symbol_type type{};
        int a = 0;
        int b = 0;
        report.expect(row, what, expected, ZENTRA::API::identify_symbol(name, type, a, b, arc));
    });
}

void checkSymbols(Report& report)
{
    for (const char* const name : {"r10", "r10.5", "r0.5", "r1000", "s10", "s10.5"}) {
        expectSymbol(report, Row::SymbolsAccepted, name, false, true);
    }
    for (const char* const name : {"r10", "r10.5"}) {
        expectSymbol(report, Row::SymbolsForArcs, name, true, true);
    }
    for (const char* const name : {"r", "s", "no such symbol"}) {
        expectSymbol(report, Row::SymbolsRefused, name, false, false);
    }
    expectSymbol(report, Row::SymbolsRefused, "r", true, false);
}

using NamesOf = void (*)(const std::string& job, std::vector<std::string>& names);

/// Whether a user can type it, or a window show it, exactly so.
bool isExact(const std::string& name)
{
    const QString text = QString::fromStdString(name);
    return !name.empty() && text.trimmed() == text && text.toStdString() == name;
}

void checkNamesOfJob(Report& report, Row row, NamesOf namesOf, const Situation& situation)
{
    if (situation.job.isEmpty()) {
        report.untried(row, QStringLiteral("no --job is given"));
        return;
    }
    const QString job = QStringLiteral("the job \"%1\"").arg(situation.job);
    report.run(row, job, [&] {
        std::vector<std::string> names;
        namesOf(situation.job.toStdString(), names);
        std::vector<std::string> again;
        namesOf(situation.job.toStdString(), again);
        report.expect(row, job + QStringLiteral(": the same at each call"), true, names == again);
        for (const std::string& name : names) {
            report.expect(row, job + QStringLiteral(": exact: ") + QString::fromStdString(name),
                          true, isExact(name));
        }
        if (names.empty()) {
            report.untried(row, job + QStringLiteral(" has none"));
        }
    });
}

/// The size in a name of that shape; nan if it is another name, or written with an exponent.
double sizeIn(const QString& name, QChar shape)
{
    static const QRegularExpression pattern(QStringLiteral("\\A[a-z]([0-9]+(\\.[0-9]+)?)\\z"));
    const QRegularExpressionMatch match = pattern.match(name);
    return match.hasMatch() && name[0] == shape ? match.captured(1).toDouble() : std::nan("");
}

void checkConversion(Report& report, Row row, Direction direction)
{
    for (const char* const name : {"r10", "s10", "r0.5", "r254", "s1000", "r39.3701", "r50000"}) {
        const QString given = QLatin1String(name);
        report.run(row, given, [&] {
            const double size = sizeIn(given, given[0]);
            const double expected = direction == StoredToMetric ? size * factor : size / factor;
            const QString came = setSymbolUIData(given, direction);
            report.judge(row, given, isSameToSixDigits(sizeIn(came, given[0]), expected),
                         given[0] + QString::number(expected, 'g', 12), came);
        });
    }
}

void checkOtherNames(Report& report)
{
    for (const char* const name : {"", "r", "s", "logo", "fiducial_cross"}) {
        for (const Direction direction : {TypedToStored, StoredToMetric}) {
            const QString given = QLatin1String(name);
            const QString what = QStringLiteral("\"%1\" in direction %2").arg(given).arg(direction);
            report.run(Row::NamesOfOthers, what, [&] {
                report.expect(Row::NamesOfOthers, what, given, setSymbolUIData(given, direction));
            });
        }
    }
}

/// What is picked on the board and left as it is; until the first name that changes.
void checkNamesComeBack(Report& report)
{
    RandomNumbers numbers;
    bool isSame = true;
    for (int i = 0; i < 500 && isSame; ++i) {
        const QString name = 'r' + numbers.next();
        const QString what = QStringLiteral("\"%1\" to metric units and back").arg(name);
        report.run(Row::NamesComeBack, what, [&] {
            isSame = report.expect(
                Row::NamesComeBack, what, name,
                setSymbolUIData(setSymbolUIData(name, StoredToMetric), TypedToStored));
        });
    }
}

}  // namespace

void checkNames(Report& report, const Situation& situation)
{
    checkSymbols(report);
    checkNamesOfJob(report, Row::SpecialSymbols, ZENTRA::API::get_special_symbol_names, situation);
    checkNamesOfJob(report, Row::Fonts, ZENTRA::API::get_fonts, situation);
    checkConversion(report, Row::NamesToMetric, StoredToMetric);
    checkConversion(report, Row::NamesToStored, TypedToStored);
    checkOtherNames(report);
    checkNamesComeBack(report);
}
