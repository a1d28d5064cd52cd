#include "Table.h"

#include <QFile>
#include <QStringList>
#include <QSysInfo>
#include <QThread>

#include <cstdio>

namespace {

#ifdef __clang__
constexpr char compiler[] = __VERSION__;  // includes its name
#else
constexpr char compiler[] = "GCC " __VERSION__;
#endif

QString duration(double nanoseconds)
{
    struct Unit {
        double size;
        const char* name;
    };
    static constexpr Unit units[] = {{1e9, "s"}, {1e6, "ms"}, {1e3, "\u00b5s"}, {1, "ns"}};
    for (const Unit& unit : units) {
        if (nanoseconds >= unit.size || unit.size == 1) {
            return QString::number(nanoseconds / unit.size, 'g', 4) + ' ' +
                   QString::fromUtf8(unit.name);
        }
    }
    return {};
}

/// Project, floor, value and target, as this kind of figure shows them.
QStringList numbers(const Result& result)
{
    const double target = result.figure->target;
    switch (result.figure->kind) {
        case Kind::Ratio:
            return {duration(result.project), duration(result.floor),
                    QString::number(result.value, 'f', 2) +
                        QStringLiteral(" +-%1").arg(result.spread, 0, 'f', 2),
                    QString::number(target, 'f', 2)};
        case Kind::Exponent:
            return {duration(result.project),
                    {},
                    "n^" + QString::number(result.value, 'f', 2),
                    "n^" + QString::number(target, 'f', 1)};
        case Kind::Bytes:
            return {QString::number(result.value, 'f', 0) + " B",
                    {},
                    {},
                    QString::number(target, 'f', 0) + " B"};
    }
    return {};
}

QString title(const Result& result)
{
    const QString what = QString::fromUtf8(result.figure->what);
    return result.part.empty() ? what : what + ": " + QString::fromStdString(result.part);
}

}  // namespace

QString markdownTable(const std::vector<Result>& results, const Effort& effort)
{
    QString table =
        "| What | Project | Floor | Ratio | Target | Holds |\n|---|---|---|---|---|---|\n";
    for (const Result& result : results) {
        const QString why = *result.figure->why ? QStringLiteral(": ") + result.figure->why : "";
        const QStringList cells = QStringList{title(result)} + numbers(result) +
                                  QStringList{result.holds() ? "yes" : "NO" + why};
        table += "| " + cells.join(" | ") + " |\n";
    }
    return table + QStringLiteral("\nRepetitions: %1. %2, Qt %3, %4, %5 processors.\n")
                       .arg(effort.repetitions)
                       .arg(QSysInfo::prettyProductName(), qVersion(), compiler)
                       .arg(QThread::idealThreadCount());
}

bool putInto(const QString& file, const QString& table)
{
    QFile page(file);
    page.open(QIODevice::ReadOnly);
    QString text = QString::fromUtf8(page.readAll());
    page.close();
    const QString heading = QStringLiteral("\n## Table\n");
    const int start = text.indexOf(heading) + heading.size();
    if (start < heading.size()) {
        std::fprintf(stderr, "%s: no section \"Table\"\n", qUtf8Printable(file));
        return false;
    }
    const int end = text.indexOf(QStringLiteral("\n## "), start);
    text.replace(start, (end < 0 ? text.size() : end) - start, '\n' + table);
    if (!page.open(QIODevice::WriteOnly) || page.write(text.toUtf8()) < 0) {
        std::fprintf(stderr, "%s: %s\n", qUtf8Printable(file), qUtf8Printable(page.errorString()));
        return false;
    }
    return true;
}
