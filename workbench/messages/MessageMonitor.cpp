#include "messages/MessageMonitor.h"

#include <FileError.h>
#include "messages/MessageDialog.h"
#include "messages/MessageLog.h"
#include "messages/MessageModel.h"
#include "messages/MessageNames.h"
#include "shared/ErrorBox.h"
#include "shared/FileQuestion.h"
#include "shared/Named.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

MessageMonitor::MessageMonitor(MessageLog* log, QWidget* parent)
    : Retranslated(parent),
      m_log(log),
      m_model(new MessageModel(log, this)),
      m_filtered(new QSortFilterProxyModel(this))
{
    setObjectName(QStringLiteral("m_pMonitor"));
    m_filtered->setSourceModel(m_model);
    m_filtered->setFilterKeyColumn(-1);
    m_filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    auto* const splitter = named(new QSplitter(this), "m_pMonitorSplitter");
    splitter->addWidget(createTable());
    splitter->addWidget(createDetail());
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 6);
    layout->addWidget(splitter);
    connectAll();
    retranslate();
}

QWidget* MessageMonitor::createTable()
{
    auto* const side = new QWidget(this);
    m_pMonitorFilterLE = named(new QLineEdit(side), "m_pMonitorFilterLE");
    m_pMonitorFilterLE->setClearButtonEnabled(true);
    m_pMonitorFilterLE->setMinimumWidth(9 * fontMetrics().averageCharWidth());
    m_pMonitorCountLB = named(new QLabel(side), "m_pMonitorCountLB");
    m_pMonitorComposePB = named(new QPushButton(side), "m_pMonitorComposePB");
    m_pMonitorClearPB = named(new QPushButton(side), "m_pMonitorClearPB");
    m_pMonitorSavePB = named(new QPushButton(side), "m_pMonitorSavePB");
    m_pMonitorTV = named(new QTableView(side), "m_pMonitorTV");
    m_pMonitorTV->setModel(m_filtered);
    dressRows(m_pMonitorTV);
    m_pMonitorTV->setSelectionMode(QAbstractItemView::SingleSelection);
    const int character = fontMetrics().averageCharWidth();
    const int widths[MessageModel::ColumnCount] = {15, 23, 23, 12, 24, 44, 14, 11};
    for (int column = 0; column < MessageModel::ColumnCount; ++column) {
        m_pMonitorTV->setColumnWidth(column, widths[column] * character);
    }
    m_pMonitorTV->horizontalHeader()->setSectionResizeMode(MessageModel::Payload,
                                                           QHeaderView::Stretch);
    auto* const row = new QHBoxLayout;
    row->addWidget(m_pMonitorFilterLE, 1);
    row->addWidget(m_pMonitorCountLB);
    row->addSpacing(8);
    row->addWidget(m_pMonitorComposePB);
    row->addWidget(m_pMonitorClearPB);
    row->addWidget(m_pMonitorSavePB);
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addWidget(m_pMonitorTV);
    return side;
}

QWidget* MessageMonitor::createDetail()
{
    auto* const side = new QWidget(this);
    m_pMessageLB = named(new QLabel(side), "m_pMessageLB");
    m_pMessageLB->setWordWrap(true);
    m_pMessageLB->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_pMessageLB->setMinimumHeight(m_pMonitorFilterLE->sizeHint().height());
    m_pMessageTW = new RecordTable("m_pMessageTW", side);
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(6, 0, 0, 0);
    layout->addWidget(m_pMessageLB);
    layout->addWidget(m_pMessageTW);
    side->setMinimumWidth(112);
    return side;
}

void MessageMonitor::connectAll()
{
    connect(m_pMonitorFilterLE, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_filtered->setFilterFixedString(text);
        showCount();
    });
    connect(m_pMonitorComposePB, &QPushButton::clicked, this, &MessageMonitor::composeAsked);
    connect(m_pMonitorTV, &QTableView::doubleClicked, this, &MessageMonitor::showWhole);
    connect(m_pMonitorClearPB, &QPushButton::clicked, m_log, &MessageLog::clear);
    connect(m_pMonitorSavePB, &QPushButton::clicked, this, &MessageMonitor::saveTrace);
    connect(m_pMonitorTV->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &MessageMonitor::showSelected);
    connect(m_filtered, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
        const QScrollBar* const bar = m_pMonitorTV->verticalScrollBar();
        m_follow = bar->value() == bar->maximum();
        const QModelIndex current = m_pMonitorTV->currentIndex();
        m_selectNewest =
            m_follow && (!current.isValid() || current.row() == m_filtered->rowCount() - 1);
    });
    connect(m_filtered, &QAbstractItemModel::rowsInserted, this, &MessageMonitor::followNewest);
    connect(m_filtered, &QAbstractItemModel::modelReset, this, [this] {
        showCount();
        showSelected();
    });
}

void MessageMonitor::followNewest()
{
    showCount();
    if (m_selectNewest) {
        m_pMonitorTV->selectRow(m_filtered->rowCount() - 1);
    }
    if (m_follow) {
        m_pMonitorTV->scrollToBottom();
    }
}

void MessageMonitor::showCount()
{
    const int all = m_model->rowCount();
    const int shown = m_filtered->rowCount();
    m_pMonitorCountLB->setText(shown == all ? tr("%n message(s)", "", all)
                                            : tr("%1 of %n message(s)", "", all).arg(shown));
}

void MessageMonitor::showSelected()
{
    const QModelIndex current = m_pMonitorTV->currentIndex();
    if (!current.isValid()) {
        m_pMessageTW->showRows({});
        m_pMessageLB->setText(tr("Select a message to see it in full."));
        return;
    }
    const MessageRecord& message = m_model->message(m_filtered->mapToSource(current).row());
    m_pMessageLB->setText(QStringLiteral("<b>%1</b> %2")
                              .arg(message.code)
                              .arg(MessageNames::text(message.receiver, message.code)));
    m_pMessageTW->showRows(rowsOf(message));
}

void MessageMonitor::showWhole(const QModelIndex& index)
{
    auto* const dialog =
        new MessageDialog(m_model->message(m_filtered->mapToSource(index).row()), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

void MessageMonitor::saveTrace()
{
    const FileQuestion question{FileQuestion::For::Saving,
                                tr("Save Trace"),
                                {tr("Message traces (*.jsonl)"), tr("All files (*)")},
                                QStringLiteral("messages.jsonl")};
    const QString file = question.ask(this);
    if (file.isEmpty()) {
        return;
    }
    try {
        m_log->save(file);
        LastFolder::remember(file);
    } catch (const CanvasHost::FileError& error) {
        showError(this, tr("Cannot save the trace"), error);
    }
}

void MessageMonitor::retranslate()
{
    m_pMonitorFilterLE->setPlaceholderText(tr("Filter: any text of a message"));
    // Room for a count of three digits: a new message must not widen the window.
    m_pMonitorCountLB->setMinimumWidth(
        m_pMonitorCountLB->fontMetrics().horizontalAdvance(tr("%n message(s)", "", 999)));
    m_pMonitorComposePB->setText(tr("Compose..."));
    m_pMonitorClearPB->setText(tr("Clear"));
    m_pMonitorSavePB->setText(tr("Save..."));
    m_pMessageTW->retranslate();
    m_model->retranslate();
    showCount();
    showSelected();
}
