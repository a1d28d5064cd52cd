#include "shared/RecordTable.h"

#include "shared/Values.h"

#include <QHeaderView>

void dressRows(QTableView* table)
{
    table->setTabKeyNavigation(false);  // the arrows walk the rows
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

RecordTable::RecordTable(const char* name, QWidget* parent) : QTableWidget(0, 3, parent)
{
    setObjectName(QLatin1String(name));
    dressRows(this);
    horizontalHeader()->setMinimumSectionSize(8 * fontMetrics().averageCharWidth());
    horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
    setColumnWidth(0, 18 * fontMetrics().averageCharWidth());
    retranslate();
}

void RecordTable::showRows(const QVector<Row>& rows)
{
    setRowCount(rows.size());
    QFont bold = font();
    bold.setBold(true);
    QTableWidgetItem* firstChanged = nullptr;
    for (int row = 0; row < rows.size(); ++row) {
        const QString cells[] = {rows[row].key, rows[row].value, rows[row].type};
        for (int column = 0; column < 3; ++column) {
            auto* const item = new QTableWidgetItem(cells[column]);
            item->setToolTip(cells[column]);
            if (rows[row].changed) {
                item->setFont(bold);
                item->setBackground(QColor(0xff, 0xe9, 0xa8));
                item->setForeground(QColor(0x3a, 0x2c, 0x00));
                firstChanged = firstChanged ? firstChanged : item;
            }
            setItem(row, column, item);
        }
    }
    if (firstChanged) {
        scrollToItem(firstChanged);
    }
}

void RecordTable::showValues(const QMap<QString, QVariant>& values)
{
    const QStringList changed =
        m_values.isEmpty() ? QStringList() : Values::changedKeys(m_values, values);
    const bool same = changed.isEmpty() && m_values.size() == values.size();
    m_values = values;
    if (!same) {
        showRows(rowsOf(values, changed));
    }
}

QVector<RecordTable::Row> RecordTable::rowsOf(const QMap<QString, QVariant>& values,
                                              const QStringList& changed)
{
    QVector<Row> rows;
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        rows.append({entry.key(), entry.value().toString(), Values::typeName(entry.value()),
                     changed.contains(entry.key())});
    }
    return rows;
}

void RecordTable::retranslate()
{
    setHorizontalHeaderLabels({tr("Key"), tr("Value"), tr("Type")});
}
