#pragma once

#include "messages/MessageRecord.h"

#include <QStringList>
#include <QVector>

#include <optional>

/// What a session expects of a message that the module sends.
class MessageExpectation {
public:
    /// Of the words "CODE [to=RECEIVER] [from=SENDER] [key[:type]=value ...] [extra[:kind]=value]
    /// [total=N]". False, with a reason, for words that are none.
    static bool read(const QStringList& words, MessageExpectation* expectation, QString* reason);

    bool matches(const MessageRecord& message) const;
    int code() const { return m_code; }

    /// "message 50 to Canvas_Viewer.dll with SymbolText=r10"
    QString text() const;
    /// `message` told in the same way, by the parts that are expected.
    QString textOf(const MessageRecord& message) const;

private:
    /// An entry of the payload; without a type the value counts in any.
    struct Entry {
        QString key;
        QString type;
        QString text;
        QVariant value;
    };

    bool readWord(const QString& text);
    bool readExtra(const QString& type, const QString& text);

    int m_code = -1;
    QString m_receiver;
    QString m_sender;
    QVector<Entry> m_entries;
    std::optional<qint64> m_extra;
    std::optional<QMap<QString, QString>> m_object;  ///< as MessageRecord::pointedAt
    std::optional<int> m_total;                      ///< the number of entries of the payload
};
