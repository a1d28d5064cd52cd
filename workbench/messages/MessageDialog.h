#pragma once

#include "messages/MessageRecord.h"
#include "shared/RecordTable.h"
#include "shared/Retranslated.h"

#include <QDialog>

class QLabel;
class QPushButton;

/// Every entry of the payload, and what the extra word pointed at.
QVector<RecordTable::Row> rowsOf(const MessageRecord& message);

/// Shows one message in full: sender, receiver, code and name, extra word, and every entry of the
/// payload with its type.
class MessageDialog : public Retranslated<QDialog> {
    Q_OBJECT

public:
    explicit MessageDialog(const MessageRecord& message, QWidget* parent = nullptr);

    /// Everything the dialog shows, one entry per line, as it is copied.
    QString text() const;

private:
    /// A line above the table.
    struct Field {
        QLabel* title;
        QLabel* value;
    };

    void createFields();
    void createTable();
    Field addField(const char* titleName, const char* valueName);
    QString codeText() const;
    void copy() const;
    void retranslate() override;

    MessageRecord m_message;
    QVector<Field> m_fields;  ///< time, from, to, code, extra, delivered
    RecordTable* m_pMessageDialogTW = nullptr;
    QPushButton* m_pMessageCopyPB = nullptr;
    QPushButton* m_pMessageClosePB = nullptr;
};
