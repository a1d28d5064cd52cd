#include "Table.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <cstdio>

namespace {

QString duration(double nanoseconds)
{
    struct Unit {
        double size;
        const char* name;
    };
    static constexpr Unit units[] = {{1e9, "s"}, {1e6, "ms"}, {1e3, "us"}, {1, "ns"}};
    for (const Unit& unit : units) {
        if (nanoseconds >= unit.size || unit.size == 1) {
            return QString::number(nanoseconds / unit.size, 'g', 4) + ' ' + unit.name;
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

}  // namespace

QString resultTable(const std::vector<Result>& results)
{
    QVector<QStringList> lines = {{"what", "project", "floor", "ratio", "target", "holds"}};
    for (const Result& result : results) {
        lines.append(QStringList{title(result)} + numbers(result) +
                     QStringList{result.holds() ? "yes" : "NO"});
    }
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
    QJsonArray rows;
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
        rows.append(row);
    }
    const QJsonObject document{{"repetitions", effort.repetitions}, {"figures", rows}};
    QFile output(file);
    const QByteArray text = QJsonDocument(document).toJson();
    if (!output.open(QIODevice::WriteOnly) || output.write(text) != text.size()) {
        std::fprintf(stderr, "%s: %s\n", qUtf8Printable(file),
                     qUtf8Printable(output.errorString()));
        return false;
    }
    return true;
}
