#include "AttributePane.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QRegExpValidator>
#include <QSignalBlocker>
#include <QTableWidget>

using CanvasHost::AttributeDefinition;
using CanvasHost::AttributeKind;

namespace {

enum Column { Name, Value };

}  // namespace

AttributePane::AttributePane(QWidget* window)
    : QWidget(window),
      m_table(new QTableWidget(0, 2, this)),
      m_fromEditor(new QPushButton(this)),
      m_clear(new QPushButton(this)),
      m_apply(new QPushButton(this))
{
    setObjectName(QStringLiteral("m_pAttributesPane"));
    m_table->setObjectName(QStringLiteral("m_pAttributesTable"));
    m_fromEditor->setObjectName(QStringLiteral("m_pFromEditorPB"));
    m_clear->setObjectName(QStringLiteral("m_pClearPB"));
    m_apply->setObjectName(QStringLiteral("m_pApplyPB"));
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);

    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_fromEditor);
    buttons->addStretch();
    buttons->addWidget(m_clear);
    buttons->addWidget(m_apply);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    layout->addLayout(buttons);

    if (const CanvasHost::Job* const job = CanvasHost::currentJob()) {
        for (const AttributeDefinition& definition : job->attributes) {
            addRow(definition);
        }
    }
    retranslate();
    connect(m_table, &QTableWidget::itemChanged, this, &AttributePane::changed);
    connect(m_fromEditor, &QPushButton::clicked, this, &AttributePane::editorAsked);
    connect(m_clear, &QPushButton::clicked, this, [this] { setValues({}); });
    connect(m_apply, &QPushButton::clicked, this, &AttributePane::applied);
}

int AttributePane::addRow(const AttributeDefinition& definition)
{
    const QSignalBlocker blocker(m_table);
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    auto* const name = new QTableWidgetItem(QString::fromStdString(definition.name));
    name->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    name->setCheckState(Qt::Unchecked);
    m_table->setItem(row, Name, name);
    if (QWidget* const editor = createEditor(definition, row)) {
        editor->setObjectName(QStringLiteral("m_pValueEditor%1").arg(row));
        editor->setAccessibleName(name->text());
        m_table->setCellWidget(row, Value, editor);
    } else {
        auto* const none = new QTableWidgetItem;
        none->setFlags(Qt::ItemIsEnabled);
        m_table->setItem(row, Value, none);
    }
    return row;
}

/// Null for a flag, which has no value.
QWidget* AttributePane::createEditor(const AttributeDefinition& definition, int row)
{
    if (definition.kind == AttributeKind::Flag) {
        return nullptr;
    }
    if (definition.kind == AttributeKind::Choice) {
        auto* const combo = new QComboBox(m_table);
        for (const std::string& choice : definition.choices) {
            combo->addItem(QString::fromStdString(choice));
        }
        connect(combo, qOverload<int>(&QComboBox::activated), this, [=] { tick(row); });
        return combo;
    }
    auto* const edit = new QLineEdit(m_table);
    edit->setFrame(false);
    if (definition.kind != AttributeKind::Text) {
        const auto pattern = definition.kind == AttributeKind::Integer
                                 ? QStringLiteral("-?[0-9]*")
                                 : QStringLiteral("-?[0-9]*\\.?[0-9]*");
        edit->setValidator(new QRegExpValidator(QRegExp(pattern), edit));
    }
    connect(edit, &QLineEdit::textEdited, this, [=] { tick(row); });
    return edit;
}

void AttributePane::tick(int row)
{
    const QSignalBlocker blocker(m_table);
    m_table->item(row, Name)->setCheckState(Qt::Checked);
    Q_EMIT changed();
}

QString AttributePane::valueAt(int row) const
{
    const QWidget* const editor = m_table->cellWidget(row, Value);
    if (const auto* const combo = qobject_cast<const QComboBox*>(editor)) {
        return combo->currentText();
    }
    const auto* const edit = qobject_cast<const QLineEdit*>(editor);
    return edit ? edit->text() : QString();
}

void AttributePane::setValueAt(int row, const QString& value)
{
    QWidget* const editor = m_table->cellWidget(row, Value);
    if (auto* const combo = qobject_cast<QComboBox*>(editor)) {
        if (combo->findText(value) < 0) {
            combo->addItem(value);
        }
        combo->setCurrentText(value);
    } else if (auto* const edit = qobject_cast<QLineEdit*>(editor)) {
        edit->setText(value);
    }
}

AttributePane::Values AttributePane::values() const
{
    Values values;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const QTableWidgetItem* const name = m_table->item(row, Name);
        if (name->checkState() == Qt::Checked) {
            values.emplace_back(name->text().toStdString(), valueAt(row).toStdString());
        }
    }
    return values;
}

int AttributePane::rowOf(const QString& name)
{
    for (int row = 0; row < m_table->rowCount(); ++row) {
        if (m_table->item(row, Name)->text() == name) {
            return row;
        }
    }
    return addRow({name.toStdString(), AttributeKind::Text, {}});
}

void AttributePane::setValues(const Values& values)
{
    const QSignalBlocker blocker(m_table);
    for (int row = 0; row < m_table->rowCount(); ++row) {
        m_table->item(row, Name)->setCheckState(Qt::Unchecked);
    }
    for (const auto& [name, value] : values) {
        const int row = rowOf(QString::fromStdString(name));
        m_table->item(row, Name)->setCheckState(Qt::Checked);
        setValueAt(row, QString::fromStdString(value));
    }
    Q_EMIT changed();
}

void AttributePane::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void AttributePane::retranslate()
{
    window()->setWindowTitle(tr("Attributes"));
    m_table->setHorizontalHeaderLabels({tr("Attribute"), tr("Value")});
    m_table->setAccessibleName(tr("Attributes"));
    m_fromEditor->setText(tr("From Editor"));
    m_clear->setText(tr("Clear"));
    m_apply->setText(tr("Apply"));
}
