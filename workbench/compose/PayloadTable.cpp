#include "compose/PayloadTable.h"

#include "messages/MessageWords.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>

namespace {

enum Column { Key, Type, Value };

/// A type of an entry, by the word that sessions use for it.
struct TypeChoice {
    const char* word;
    const char* text;
};
const TypeChoice types[] = {
    {"text", QT_TRANSLATE_NOOP("PayloadTable", "text")},
    {"int", QT_TRANSLATE_NOOP("PayloadTable", "integer")},
    {"decimal", QT_TRANSLATE_NOOP("PayloadTable", "decimal")},
    {"bool", QT_TRANSLATE_NOOP("PayloadTable", "truth")},
};

}  // namespace

void markFault(QWidget* field, const QString& fault)
{
    QPalette palette;
    if (!fault.isEmpty()) {
        palette.setColor(QPalette::Base, QColor(0xff, 0xd6, 0xd6));
        palette.setColor(QPalette::Button, QColor(0xff, 0xd6, 0xd6));
        palette.setColor(QPalette::Text, QColor(0x5a, 0x00, 0x00));
    }
    field->setPalette(palette);
    field->setToolTip(fault);
}

PayloadTable::PayloadTable(const char* name, QWidget* parent) : QTableWidget(0, 3, parent)
{
    setObjectName(QLatin1String(name));
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setShowGrid(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 14);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(Value, QHeaderView::Stretch);
    setColumnWidth(Key, 20 * fontMetrics().averageCharWidth());
    setColumnWidth(Type, 14 * fontMetrics().averageCharWidth());
    retranslate();
}

QLineEdit* PayloadTable::field(int row, int column) const
{
    return static_cast<QLineEdit*>(cellWidget(row, column));
}

QComboBox* PayloadTable::type(int row) const
{
    return static_cast<QComboBox*>(cellWidget(row, Type));
}

void PayloadTable::addEntry()
{
    const int row = rowCount();
    insertRow(row);
    setCellWidget(row, Key, new QLineEdit(this));
    auto* const combo = new QComboBox(this);
    for (const TypeChoice& choice : types) {
        combo->addItem(tr(choice.text));
    }
    setCellWidget(row, Type, combo);
    setCellWidget(row, Value, new QLineEdit(this));
    nameFields();
    scrollToBottom();
    field(row, Key)->setFocus();
}

void PayloadTable::removeEntry()
{
    if (rowCount() == 0) {
        return;
    }
    int row = rowCount() - 1;
    for (int other = 0; other < rowCount(); ++other) {
        for (const int column : {Key, Type, Value}) {
            row = cellWidget(other, column)->hasFocus() ? other : row;
        }
    }
    removeRow(row);
    nameFields();
}

void PayloadTable::nameFields()
{
    for (int row = 0; row < rowCount(); ++row) {
        field(row, Key)->setObjectName(QStringLiteral("m_pComposeKeyLE%1").arg(row + 1));
        type(row)->setObjectName(QStringLiteral("m_pComposeTypeCMB%1").arg(row + 1));
        field(row, Value)->setObjectName(QStringLiteral("m_pComposeValueLE%1").arg(row + 1));
    }
}

QMap<QString, QVariant> PayloadTable::read()
{
    QMap<QString, QVariant> payload;
    WordError first;
    for (int row = 0; row < rowCount(); ++row) {
        const QString fault = readRow(row, &payload);
        if (!fault.isEmpty() && first.reason.isEmpty()) {
            first = {tr("Row %1").arg(row + 1), fault};
        }
    }
    if (!first.reason.isEmpty()) {
        throw first;
    }
    return payload;
}

QString PayloadTable::readRow(int row, QMap<QString, QVariant>* payload)
{
    const QString key = field(row, Key)->text();
    QString keyFault;
    if (key.isEmpty()) {
        keyFault = tr("the key is missing");
    } else if (payload->contains(key)) {
        keyFault = tr("the key \"%1\" appears twice").arg(key);
    }
    markFault(field(row, Key), keyFault);

    const TypeChoice& choice = types[type(row)->currentIndex()];
    QVariant value;
    QString valueFault;
    try {
        value = MessageWords::payloadValue(QLatin1String(choice.word), field(row, Value)->text());
    } catch (const WordError& error) {
        valueFault = error.text();
    }
    markFault(field(row, Value), valueFault);
    if (keyFault.isEmpty()) {
        payload->insert(key, value);
    }
    return keyFault.isEmpty() ? valueFault : keyFault;
}

void PayloadTable::retranslate()
{
    setHorizontalHeaderLabels({tr("Key"), tr("Type"), tr("Value")});
    for (int row = 0; row < rowCount(); ++row) {
        for (int index = 0; index < type(row)->count(); ++index) {
            type(row)->setItemText(index, tr(types[index].text));
        }
    }
}
