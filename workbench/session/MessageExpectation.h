#pragma once

#include "messages/MessageRecord.h"

#include <QStringList>

#include <functional>
#include <vector>

/// What a session expects of a message that the module sends.
class MessageExpectation {
public:
    /// Of the words "CODE [to=RECEIVER] [from=SENDER] [key[:type]=value ...] [extra[:kind]=value]
    /// [total=N]". Throws a WordError for any other words.
    static MessageExpectation read(const QStringList& words);

    bool matches(const MessageRecord& message) const;
    int code() const { return m_code; }

    /// "message 50 to Canvas_Viewer.dll with SymbolText=r10"
    QString text() const;
    /// `message` described in the same way, by the parts that are expected.
    QString textOf(const MessageRecord& message) const;

private:
    /// A part of a message besides code and receiver, as a session writes it. It is as expected if
    /// it reads the same.
    struct Part {
        enum Place { Sender, Entry, Extra, Total } place;  ///< the order in which parts are listed
        QString wanted;
        std::function<QString(const MessageRecord&)> got;
    };

    void readWord(const QString& text);
    void readExtra(const QString& type, const QString& text);

    int m_code = -1;
    QString m_receiver;
    std::vector<Part> m_parts;
};
