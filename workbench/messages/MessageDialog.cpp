#include "messages/MessageDialog.h"

#include "messages/MessageNames.h"
#include "shared/Named.h"

#include <QApplication>
#include <QClipboard>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

QVector<RecordTable::Row> rowsOf(const MessageRecord& message)
{
    auto rows = RecordTable::rowsOf(message.payload, message.changed);
    for (auto entry = message.pointedAt.begin(); entry != message.pointedAt.end(); ++entry) {
        rows.append({entry.key(), entry.value(), MessageDialog::tr("by address")});
    }
    return rows;
}

MessageDialog::MessageDialog(const MessageRecord& message, QWidget* parent)
    : Retranslated(parent), m_message(message)
{
    setObjectName(QStringLiteral("m_pMessageDialog"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    new QVBoxLayout(this);
    createFields();
    createTable();
    m_pMessageCopyPB = named(new QPushButton(this), "m_pMessageCopyPB");
    m_pMessageCopyPB->setAutoDefault(false);
    m_pMessageClosePB = named(new QPushButton(this), "m_pMessageClosePB");
    m_pMessageClosePB->setDefault(true);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_pMessageCopyPB);
    buttons->addStretch();
    buttons->addWidget(m_pMessageClosePB);
    static_cast<QVBoxLayout*>(layout())->addLayout(buttons);
    connect(m_pMessageCopyPB, &QPushButton::clicked, this, &MessageDialog::copy);
    connect(m_pMessageClosePB, &QPushButton::clicked, this, &QDialog::accept);
    retranslate();
    resize(520, 480);
}

void MessageDialog::createFields()
{
    auto* const form = new QFormLayout;
    m_fields = {addField("m_pMessageTimeTitleLB", "m_pMessageTimeLB"),
                addField("m_pMessageFromTitleLB", "m_pMessageFromLB"),
                addField("m_pMessageToTitleLB", "m_pMessageToLB"),
                addField("m_pMessageCodeTitleLB", "m_pMessageCodeLB"),
                addField("m_pMessageExtraTitleLB", "m_pMessageExtraLB"),
                addField("m_pMessageDeliveredTitleLB", "m_pMessageDeliveredLB")};
    for (const Field& field : m_fields) {
        form->addRow(field.title, field.value);
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(form);
}

MessageDialog::Field MessageDialog::addField(const char* titleName, const char* valueName)
{
    const Field field{named(new QLabel(this), titleName), named(new QLabel(this), valueName)};
    field.value->setTextFormat(Qt::PlainText);
    field.value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    field.value->setWordWrap(true);
    return field;
}

void MessageDialog::createTable()
{
    m_pMessageDialogTW = new RecordTable("m_pMessageDialogTW", this);
    m_pMessageDialogTW->showRows(rowsOf(m_message));
    layout()->addWidget(m_pMessageDialogTW);
}

QString MessageDialog::codeText() const
{
    const QString name = m_message.name();
    const QString text = MessageNames::text(m_message.receiver, m_message.code);
    return name.isEmpty()
               ? QString::number(m_message.code)
               : QStringLiteral("%1 %2 (%3)").arg(QString::number(m_message.code), name, text);
}

QString MessageDialog::text() const
{
    QStringList lines;
    for (const Field& field : m_fields) {
        lines.append(field.title->text() + QLatin1Char('\t') + field.value->text());
    }
    for (int row = 0; row < m_pMessageDialogTW->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < m_pMessageDialogTW->columnCount(); ++column) {
            cells.append(m_pMessageDialogTW->item(row, column)->text());
        }
        lines.append(cells.join(QLatin1Char('\t')));
    }
    return lines.join(QLatin1Char('\n'));
}

void MessageDialog::copy() const
{
    QApplication::clipboard()->setText(text());
}

void MessageDialog::retranslate()
{
    setWindowTitle(tr("Message %1").arg(m_message.code));
    const QString values[] = {m_message.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")),
                              m_message.sender,
                              m_message.receiver,
                              codeText(),
                              m_message.extraText(),
                              m_message.delivered ? tr("yes") : tr("no")};
    const QString titles[] = {tr("Time"), tr("From"),  tr("To"),
                              tr("Code"), tr("Extra"), tr("Delivered")};
    for (int index = 0; index < m_fields.size(); ++index) {
        m_fields[index].title->setText(titles[index]);
        m_fields[index].value->setText(values[index]);
    }
    m_pMessageDialogTW->retranslate();
    m_pMessageCopyPB->setText(tr("Copy"));
    m_pMessageClosePB->setText(tr("Close"));
}
