#include "ToolRows.h"

#include "ContractList.h"

namespace {

/// "code name"; false for "-".
bool readCode(const QString& cell, int* code, QString* name)
{
    *name = cell.section(' ', 1);
    if (!name->isEmpty()) {
        *code = cell.section(' ', 0, 0).toInt();
    }
    return !name->isEmpty();
}

void readExtra(const QString& cell, ToolRow* row)
{
    const QString name = cell.section('=', 0, 0);
    const QString value = cell.section('=', 1);
    if (name == "menu") {
        row->hasMenu = true;
    } else if (name == "window") {
        row->opensWindow = true;
    } else if (name == "note") {
        row->note = value;
    } else if (name == "later") {
        row->laterTip = value;
    } else if (name == "property") {
        row->property = value;
    } else if (name == "sender") {
        row->sender = value;
    } else {
        qFatal("tools.txt: %s", qPrintable(cell));
    }
}

ToolRow readRow(const QString& line)
{
    const QStringList cells = line.split(" | ");
    if (cells.size() < 7 || (cells[2] != "enabled" && cells[2] != "grey")) {
        qFatal("tools.txt: %s", qPrintable(line));
    }
    ToolRow row;
    row.objectName = cells[0];
    row.tip = cells[1];
    row.isEnabled = cells[2] == "enabled";
    row.picture = cells[3].section(", ", 0, 0);
    row.checkedPicture = cells[3].section(", ", -1);
    row.slot = cells[4].toLatin1();
    readCode(cells[5], &row.code, &row.codeName);
    if (!readCode(cells[6], &row.offCode, &row.offCodeName)) {
        row.offCode = row.code;
    }
    for (const QString& extra : cells.mid(7)) {
        readExtra(extra, &row);
    }
    return row;
}

}  // namespace

QString ToolRow::styleSheet() const
{
    return QStringLiteral(
               "QToolButton{%1:url(:/Canvas_Tool_Strip/Resources/%2);}"
               "QToolButton::checked{%1:url(:/Canvas_Tool_Strip/Resources/%3);}")
        .arg(property, picture, checkedPicture);
}

const QVector<ToolRow>& toolRows()
{
    static const QVector<ToolRow> all = [] {
        QVector<ToolRow> rows;
        for (const QString& line : linesOf("tools.txt")) {
            rows.append(readRow(line));
        }
        return rows;
    }();
    return all;
}
