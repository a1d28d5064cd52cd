#include "viewer/Inspector.h"

#include "shared/RecordTable.h"

#include <QLabel>
#include <QVBoxLayout>

Inspector::Inspector(QWidget* parent) : QSplitter(Qt::Vertical, parent)
{
    setObjectName(QStringLiteral("m_pInspectorSplitter"));
    setChildrenCollapsible(false);
    m_record = addTable(m_pRecordLB, "m_pRecordLB", "m_pRecordTW");
    m_attributes = addTable(m_pAttributesLB, "m_pAttributesLB", "m_pAttributesTW");
    setStretchFactor(0, 2);
    setStretchFactor(1, 1);
    setMinimumWidth(140);
    retranslate();
}

RecordTable* Inspector::addTable(QLabel*& label, const char* labelName, const char* tableName)
{
    auto* const box = new QWidget(this);
    label = new QLabel(box);
    label->setObjectName(QLatin1String(labelName));
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setMinimumWidth(1);
    auto* const table = new RecordTable(tableName, box);
    table->setMinimumHeight(table->fontMetrics().height());  // where the board needs the room
    auto* const layout = new QVBoxLayout(box);
    layout->setContentsMargins(6, 2, 6, 4);
    layout->addWidget(label);
    layout->addWidget(table);
    return table;
}

void Inspector::showRecord(const PluginMetaData& message)
{
    m_recordCode = message.code;
    m_record->showValues(message.payload);
    retranslate();
}

void Inspector::showAttributes(const QMap<QString, QVariant>& attributes)
{
    m_attributes->showValues(attributes);
}

void Inspector::retranslate()
{
    m_record->retranslate();
    m_attributes->retranslate();
    m_pRecordLB->setText(m_recordCode ? tr("Feature record (message %1)").arg(*m_recordCode)
                                      : tr("Feature record (none yet)"));
    m_pAttributesLB->setText(tr("Attributes"));
}
