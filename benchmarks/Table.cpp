#include "Table.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QSysInfo>
#include <QThread>

#include <algorithm>
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

QString number(double value)
{
    return QString::number(value, 'f', 0);
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
            return {number(result.value) + " B", {}, {}, number(target) + " B"};
        case Kind::Count:
            return {number(result.value), {}, {}, number(target)};
    }
    return {};
}

QString title(const Result& result)
{
    const QString what = QString::fromUtf8(result.figure->what);
    return result.part.empty() ? what : what + ": " + QString::fromStdString(result.part);
}

QString line(const QStringList& cells, const std::vector<int>& widths)
{
    QString text;
    for (int column = 0; column < cells.size(); ++column) {
        const int width = widths[static_cast<size_t>(column)];
        text += column == 0 ? cells[column].leftJustified(width)
                            : "  " + cells[column].rightJustified(width);
    }
    return text.trimmed() + '\n';
}

QVector<QStringList> rows(const std::vector<Result>& results)
{
    QVector<QStringList> all = {{"What", "Project", "Floor", "Ratio", "Target", "Holds"}};
    for (const Result& result : results) {
        all.append(QStringList{title(result)} + numbers(result) +
                   QStringList{result.holds() ? "yes" : "NO"});
    }
    return all;
}

bool writeFile(const QString& name, const QByteArray& text)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        std::fprintf(stderr, "%s: %s\n", qUtf8Printable(name), qUtf8Printable(file.errorString()));
        return false;
    }
    return true;
}

QString markdownTable(const std::vector<Result>& results, const Effort& effort)
{
    QString table;
    for (const QStringList& cells : rows(results)) {
        table += "| " + cells.join(" | ") + " |\n";
        if (table.count('\n') == 1) {
            table += "|---|---|---|---|---|---|\n";
        }
    }
    return table + QStringLiteral("\nRepetitions: %1. %2, Qt %3, %4, %5 processors.\n")
                       .arg(effort.repetitions)
                       .arg(QSysInfo::prettyProductName(), qVersion(), compiler)
                       .arg(QThread::idealThreadCount());
}

}  // namespace

QString resultTable(const std::vector<Result>& results)
{
    const QVector<QStringList> lines = rows(results);
    std::vector<int> widths(static_cast<size_t>(lines.first().size()), 0);
    for (const QStringList& cells : lines) {
        for (int column = 0; column < cells.size(); ++column) {
            int& width = widths[static_cast<size_t>(column)];
            width = std::max(width, cells[column].size());
        }
    }
    QString table;
    for (const QStringList& cells : lines) {
        table += line(cells, widths);
    }
    return table;
}

bool writeJson(const std::vector<Result>& results, const Effort& effort, const QString& file)
{
    static constexpr const char* kinds[] = {"ratio", "exponent", "bytes", "count"};
    QJsonArray figures;
    for (const Result& result : results) {
        QJsonObject row{{"id", result.figure->id},
                        {"what", title(result)},
                        {"kind", kinds[static_cast<int>(result.figure->kind)]},
                        {"value", result.value},
                        {"target", result.figure->target},
                        {"holds", result.holds()}};
        if (result.figure->kind == Kind::Ratio) {
            row["project_ns"] = result.project;
            row["floor_ns"] = result.floor;
            row["spread"] = result.spread;
        } else if (result.figure->kind == Kind::Exponent) {
            row["least_ns"] = result.floor;
            row["most_ns"] = result.project;
        }
        figures.append(row);
    }
    const QJsonObject document{{"repetitions", effort.repetitions}, {"figures", figures}};
    return writeFile(file, QJsonDocument(document).toJson());
}

bool writeMarkdown(const std::vector<Result>& results, const Effort& effort, const QString& file)
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
    text.replace(start, (end < 0 ? text.size() : end) - start,
                 '\n' + markdownTable(results, effort));
    return writeFile(file, text.toUtf8());
}
