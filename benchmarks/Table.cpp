#include "Runner.h"

#include <QStringList>
#include <QSysInfo>
#include <QThread>

namespace {

#ifdef __clang__
constexpr char compiler[] = __VERSION__;  // includes its name
#else
constexpr char compiler[] = "GCC " __VERSION__;
#endif

QString duration(double nanoseconds)
{
    static constexpr std::pair<double, const char*> units[] = {
        {1e9, "s"}, {1e6, "ms"}, {1e3, "\u00b5s"}, {0, "ns"}};
    const auto* unit = std::begin(units);
    while (nanoseconds < unit->first) {
        ++unit;
    }
    return QString::number(nanoseconds / qMax(unit->first, 1.), 'g', 4) + ' ' +
           QString::fromUtf8(unit->second);
}

QStringList cells(const Result& result)
{
    const Figure& figure = result.figure;
    const bool grows = figure.timesAsMuch > 1;
    const QString ratio = QString::number(result.ratio, 'f', 2);
    const QString target = QString::number(figure.target, 'f', 2);
    const QString why = *figure.why ? QStringLiteral(": ") + figure.why : "";
    return {
        QString::fromStdString(figure.what),
        duration(result.project),
        duration(result.floor),
        grows ? "n^" + ratio : QStringLiteral("%1 +-%2").arg(ratio).arg(result.spread, 0, 'f', 2),
        grows ? "n^" + target : target,
        result.holds() ? "yes" : "NO" + why};
}

}  // namespace

std::string markdownTable(const std::vector<Result>& results, const Effort& effort)
{
    QString table =
        "| What | Project | Floor | Ratio | Target | Holds |\n|---|---|---|---|---|---|\n";
    for (const Result& result : results) {
        table += "| " + cells(result).join(" | ") + " |\n";
    }
    return QStringLiteral("%1\nRepetitions: %2. %3, Qt %4, %5, %6 processors.\n")
        .arg(table)
        .arg(effort.repetitions)
        .arg(QSysInfo::prettyProductName(), qVersion(), compiler)
        .arg(QThread::idealThreadCount())
        .toStdString();
}
