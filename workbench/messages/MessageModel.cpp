#include "messages/MessageModel.h"

#include "messages/MessageLog.h"
#include "messages/MessageNames.h"

#include <QBrush>
#include <QColor>

MessageModel::MessageModel(MessageLog* log, QObject* parent)
    : QAbstractTableModel(parent), m_log(log), m_rows(static_cast<int>(log->messages().size()))
{
    connect(log, &MessageLog::appended, this, [this] {
        beginInsertRows({}, m_rows, m_rows);
        ++m_rows;
        endInsertRows();
    });
    connect(log, &MessageLog::cleared, this, [this] {
        beginResetModel();
        m_rows = 0;
        endResetModel();
    });
}

const MessageRecord& MessageModel::message(int row) const
{
    return m_log->messages().at(static_cast<size_t>(row));
}

void MessageModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (m_rows > 0) {
        Q_EMIT dataChanged(index(0, 0), index(m_rows - 1, ColumnCount - 1));
    }
}

int MessageModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int MessageModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString MessageModel::text(const MessageRecord& message, int column) const
{
    switch (column) {
        case Time:
            return message.time.toString(QStringLiteral("HH:mm:ss.zzz"));
        case From:
            return message.sender;
        case To:
            return message.receiver;
        case Code:
            return QString::number(message.code);
        case Name:
            return MessageNames::text(message.receiver, message.code);
        case Payload:
            return message.summary();
        case Extra:
            return message.extraText();
        default:
            return message.delivered ? tr("yes") : tr("no");
    }
}

QVariant MessageModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows) {
        return {};
    }
    const MessageRecord& shown = message(index.row());
    switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:
            return text(shown, index.column());
        case Qt::ForegroundRole:
            return shown.delivered ? QVariant() : QBrush(QColor(0xb0, 0x30, 0x20));
        case Qt::TextAlignmentRole:
            return index.column() == Code ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                          : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
        default:
            return {};
    }
}

QVariant MessageModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    const QString heads[ColumnCount] = {tr("Time"),    tr("From"),    tr("To"),    tr("Code"),
                                        tr("Message"), tr("Payload"), tr("Extra"), tr("Delivered")};
    return section >= 0 && section < ColumnCount ? heads[section] : QVariant();
}
