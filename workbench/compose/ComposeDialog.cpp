#include "compose/ComposeDialog.h"

#include "compose/PayloadTable.h"
#include "messages/HostState.h"
#include "messages/MessageNames.h"
#include "messages/MessageWords.h"
#include "plugin/ModuleNames.h"
#include "shared/Named.h"

#include <PluginManagerStandIn.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>

namespace {

using MessageNames::Extra;

/// A kind of extra word, in the order of the list.
struct ExtraChoice {
    Extra kind;
    const char* text;
    const char* example;
};
const ExtraChoice extras[] = {
    {Extra::Number, QT_TRANSLATE_NOOP("ComposeDialog", "Number"), "0"},
    {Extra::String, QT_TRANSLATE_NOOP("ComposeDialog", "Text"), "demo"},
    {Extra::Symbols, QT_TRANSLATE_NOOP("ComposeDialog", "Symbols"), "1=r10,2=s20"},
    {Extra::Attributes, QT_TRANSLATE_NOOP("ComposeDialog", "Attributes"), ".net=gnd,.smd="},
};

int indexOf(Extra kind)
{
    int index = 0;
    while (extras[index].kind != kind) {
        ++index;
    }
    return index;
}

/// A line for errors in the fields above; it takes no space while they are valid.
QLabel* createError(const char* name, QDialog* dialog)
{
    auto* const label = named(new QLabel(dialog), name);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, QColor(0xb0, 0x10, 0x10));
    label->setPalette(palette);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->hide();
    dialog->layout()->addWidget(label);
    return label;
}

void showError(QLabel* label, const QString& error)
{
    label->setText(error);
    label->setVisible(!error.isEmpty());
}

/// Does `read`, and shows its error at the field, which may be null. False: there is one.
bool shownRead(QWidget* field, QLabel* label, const std::function<void()>& read)
{
    QString error;
    try {
        read();
    } catch (const WordError& thrown) {
        error = thrown.text();
    }
    if (field) {
        markFault(field, error);
    }
    showError(label, error);
    return error.isEmpty();
}

/// The number at the start of the text: items of the list have the message's name after it.
QString codeWord(const QComboBox* combo)
{
    return combo->currentText().trimmed().section(QLatin1Char(' '), 0, 0);
}

}  // namespace

ComposeDialog::ComposeDialog(HostState* host, QWidget* parent) : Retranslated(parent), m_host(host)
{
    setObjectName(QStringLiteral("m_pComposeDialog"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    new QVBoxLayout(this);
    createCode();
    createPayload();
    createExtra();
    createButtons();
    connect(m_pComposeCodeCMB, &QComboBox::currentTextChanged, this, &ComposeDialog::codeChanged);
    connect(m_pComposeExtraCMB,
            static_cast<void (QComboBox::*)(int)>(&QComboBox::currentIndexChanged), this,
            &ComposeDialog::showExtraHint);
    retranslate();
    codeChanged();
    resize(520, 420);
}

void ComposeDialog::createCode()
{
    m_pComposeCodeTitleLB = named(new QLabel(this), "m_pComposeCodeTitleLB");
    m_pComposeCodeCMB = named(new QComboBox(this), "m_pComposeCodeCMB");
    m_pComposeCodeCMB->setEditable(true);
    m_pComposeCodeCMB->setInsertPolicy(QComboBox::NoInsert);
    m_pComposeCodeCMB->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    for (const QVector<int>& group : MessageNames::accepted()) {
        for (const int code : group) {
            m_pComposeCodeCMB->addItem(QStringLiteral("%1 %2").arg(
                QString::number(code), MessageNames::name(ModuleNames::toolStrip, code)));
        }
    }
    m_pComposeSenderTitleLB = named(new QLabel(this), "m_pComposeSenderTitleLB");
    m_pComposeSenderLE = named(new QLineEdit(CanvasHost::hostName, this), "m_pComposeSenderLE");
    m_pComposeCodeTitleLB->setBuddy(m_pComposeCodeCMB);
    m_pComposeSenderTitleLB->setBuddy(m_pComposeSenderLE);
    auto* const row = new QHBoxLayout;
    row->addWidget(m_pComposeCodeTitleLB);
    row->addWidget(m_pComposeCodeCMB, 1);
    row->addSpacing(8);
    row->addWidget(m_pComposeSenderTitleLB);
    row->addWidget(m_pComposeSenderLE, 1);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    m_pComposeCodeErrorLB = createError("m_pComposeCodeErrorLB", this);
}

void ComposeDialog::createPayload()
{
    m_pComposePayloadTitleLB = named(new QLabel(this), "m_pComposePayloadTitleLB");
    m_pComposeAddPB = named(new QPushButton(this), "m_pComposeAddPB");
    m_pComposeRemovePB = named(new QPushButton(this), "m_pComposeRemovePB");
    // A click leaves the focus in the row that is to be removed.
    m_pComposeRemovePB->setFocusPolicy(Qt::TabFocus);
    auto* const row = new QHBoxLayout;
    row->addWidget(m_pComposePayloadTitleLB, 1);
    for (QPushButton* const button : {m_pComposeAddPB, m_pComposeRemovePB}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    m_pComposePayloadTW = new PayloadTable("m_pComposePayloadTW", this);
    layout()->addWidget(m_pComposePayloadTW);
    m_pComposePayloadErrorLB = createError("m_pComposePayloadErrorLB", this);
    connect(m_pComposeAddPB, &QPushButton::clicked, m_pComposePayloadTW, &PayloadTable::addEntry);
    connect(m_pComposeRemovePB, &QPushButton::clicked, m_pComposePayloadTW,
            &PayloadTable::removeEntry);
}

void ComposeDialog::createExtra()
{
    m_pComposeExtraTitleLB = named(new QLabel(this), "m_pComposeExtraTitleLB");
    m_pComposeExtraCMB = named(new QComboBox(this), "m_pComposeExtraCMB");
    m_pComposeExtraLE = named(new QLineEdit(this), "m_pComposeExtraLE");
    for (const ExtraChoice& choice : extras) {
        m_pComposeExtraCMB->addItem(tr(choice.text));
    }
    m_pComposeExtraTitleLB->setBuddy(m_pComposeExtraCMB);
    auto* const row = new QHBoxLayout;
    row->addWidget(m_pComposeExtraTitleLB);
    row->addWidget(m_pComposeExtraCMB);
    row->addWidget(m_pComposeExtraLE, 1);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    m_pComposeExtraErrorLB = createError("m_pComposeExtraErrorLB", this);
}

void ComposeDialog::createButtons()
{
    m_pComposeSentLB = named(new QLabel(this), "m_pComposeSentLB");
    m_pComposeSendPB = named(new QPushButton(this), "m_pComposeSendPB");
    m_pComposeClosePB = named(new QPushButton(this), "m_pComposeClosePB");
    m_pComposeSendPB->setDefault(true);
    m_pComposeClosePB->setAutoDefault(false);
    auto* const row = new QHBoxLayout;
    row->addWidget(m_pComposeSentLB, 1);
    row->addWidget(m_pComposeSendPB);
    row->addWidget(m_pComposeClosePB);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    connect(m_pComposeSendPB, &QPushButton::clicked, this, &ComposeDialog::send);
    connect(m_pComposeClosePB, &QPushButton::clicked, this, &QDialog::reject);
}

void ComposeDialog::codeChanged()
{
    bool ok = false;
    const int code = codeWord(m_pComposeCodeCMB).toInt(&ok);
    if (ok) {
        m_pComposeExtraCMB->setCurrentIndex(
            indexOf(MessageNames::extraOf(ModuleNames::toolStrip, code)));
    }
    showExtraHint();
}

void ComposeDialog::showExtraHint()
{
    m_pComposeExtraLE->setPlaceholderText(
        QLatin1String(extras[m_pComposeExtraCMB->currentIndex()].example));
}

HostMessage::ExtraWord ComposeDialog::readExtra(int code) const
{
    const ExtraChoice& choice = extras[m_pComposeExtraCMB->currentIndex()];
    const Extra wanted = MessageNames::extraOf(ModuleNames::toolStrip, code);
    if (choice.kind != wanted) {
        // A wrong address would crash the program.
        malformed(tr("message %1 takes: %2").arg(code).arg(tr(extras[indexOf(wanted)].text)));
    }
    const QString text = m_pComposeExtraLE->text();
    const bool isLeftOut = choice.kind == Extra::Number && text.isEmpty();
    return MessageWords::extraValue(choice.kind, isLeftOut ? QStringLiteral("0") : text);
}

bool ComposeDialog::send()
{
    HostMessage message;
    message.sender = m_pComposeSenderLE->text().trimmed();
    const bool codeRight = shownRead(m_pComposeCodeCMB, m_pComposeCodeErrorLB, [&] {
        message.code = MessageWords::readCode(codeWord(m_pComposeCodeCMB));
    });
    const bool payloadRight = shownRead(nullptr, m_pComposePayloadErrorLB,
                                        [&] { message.payload = m_pComposePayloadTW->read(); });
    // The code determines what the extra word must be.
    const bool extraRight = codeRight && shownRead(m_pComposeExtraLE, m_pComposeExtraErrorLB, [&] {
                                message.extra = readExtra(message.code);
                            });
    m_pComposeSentLB->clear();
    if (!codeRight || !payloadRight || !extraRight) {
        return false;
    }
    m_host->send(message);
    m_pComposeSentLB->setText(tr("Message %1 was sent.").arg(message.code));
    return true;
}

void ComposeDialog::retranslate()
{
    setWindowTitle(tr("Compose Message"));
    m_pComposeCodeTitleLB->setText(tr("&Code"));
    m_pComposeSenderTitleLB->setText(tr("&Sender"));
    m_pComposePayloadTitleLB->setText(tr("Payload"));
    m_pComposeAddPB->setText(tr("&Add Entry"));
    m_pComposeRemovePB->setText(tr("&Remove Entry"));
    m_pComposeExtraTitleLB->setText(tr("&Extra word"));
    m_pComposeSendPB->setText(tr("Se&nd"));
    m_pComposeClosePB->setText(tr("Close"));
    for (int index = 0; index < m_pComposeExtraCMB->count(); ++index) {
        m_pComposeExtraCMB->setItemText(index, tr(extras[index].text));
    }
    m_pComposePayloadTW->retranslate();
    m_pComposeSentLB->clear();
    for (QLabel* const error :
         {m_pComposeCodeErrorLB, m_pComposePayloadErrorLB, m_pComposeExtraErrorLB}) {
        showError(error, QString());
    }
}
