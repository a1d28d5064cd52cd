#pragma once

#include "messages/MessageRecord.h"

#include <QAbstractTableModel>

class MessageLog;

/// The messages of a log as a table, one row each. The log must outlive the model.
class MessageModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Time, From, To, Code, Name, Payload, Extra, Delivered, ColumnCount };

    explicit MessageModel(MessageLog* log, QObject* parent = nullptr);

    /// The message of `row`, which must exist.
    const MessageRecord& message(int row) const;
    /// Reads headers and texts again in the current language.
    void retranslate();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const MessageRecord& message, int column) const;

    MessageLog* m_log;
    int m_rows = 0;
};
