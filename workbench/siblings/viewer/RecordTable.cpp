#include "viewer/RecordTable.h"

#include "messages/Values.h"

#include <QHeaderView>

RecordTable::RecordTable(const char* name, QWidget* parent) : QTableWidget(0, 3, parent)
{
    setObjectName(QLatin1String(name));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
    const int character = fontMetrics().averageCharWidth();
    setColumnWidth(0, 22 * character);
    setColumnWidth(1, 14 * character);
    retranslate();
}

void RecordTable::showValues(const QMap<QString, QVariant>& values)
{
    const QMap<QString, QVariant> before = m_values;
    m_values = values;
    setRowCount(values.size());
    int row = 0;
    QTableWidgetItem* firstChanged = nullptr;
    for (auto entry = values.begin(); entry != values.end(); ++entry, ++row) {
        // QVariant compares texts and numbers by value; the type counts here as well.
        const QVariant old = before.value(entry.key());
        const bool changed = !before.isEmpty() &&
                             (old.userType() != entry.value().userType() || old != entry.value());
        const QString cells[] = {entry.key(), entry.value().toString(),
                                 Values::typeName(entry.value())};
        for (int column = 0; column < 3; ++column) {
            auto* const item = new QTableWidgetItem(cells[column]);
            item->setToolTip(cells[column]);
            if (changed) {
                QFont bold = font();
                bold.setBold(true);
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

void RecordTable::retranslate()
{
    setHorizontalHeaderLabels({tr("Key"), tr("Value"), tr("Type")});
}
