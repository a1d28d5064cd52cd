#pragma once

#include "messages/MessageRecord.h"

#include <QObject>

#include <deque>

class MessageExpectation;
class MessageLog;

/// The messages that the module sent and no expectation has taken yet, the oldest first. What host
/// and siblings send, and what the module says to itself, does not count.
class SentMessages : public QObject {
    Q_OBJECT

public:
    /// `log` is not owned. Only what it gets from now on counts.
    explicit SentMessages(const MessageLog* log, QObject* parent = nullptr);

    /// Takes the first message that matches, and all before it. False when there is none.
    bool take(const MessageExpectation& expectation);
    bool isEmpty() const { return m_messages.empty(); }

    /// What there is instead of `expectation`: the messages of its code, or the codes of all.
    QString insteadOf(const MessageExpectation& expectation) const;
    /// The codes of all, with their receivers.
    QString text() const;

private:
    std::deque<MessageRecord> m_messages;
};
