#include "session/SentMessages.h"

#include "messages/MessageLog.h"
#include "plugin/ModuleNames.h"
#include "session/MessageExpectation.h"

#include <algorithm>

namespace {

/// Not by the name of the sender: the module uses more than one as its own.
bool isFromModule(const MessageRecord& message)
{
    return message.module == ModuleNames::toolStrip && message.receiver != ModuleNames::toolStrip;
}

}  // namespace

SentMessages::SentMessages(const MessageLog* log, QObject* parent) : QObject(parent)
{
    connect(log, &MessageLog::appended, this, [this](const MessageRecord& message) {
        if (isFromModule(message)) {
            m_messages.push_back(message);
        }
    });
}

bool SentMessages::take(const MessageExpectation& expectation)
{
    const auto found =
        std::find_if(m_messages.begin(), m_messages.end(),
                     [&](const MessageRecord& message) { return expectation.matches(message); });
    if (found == m_messages.end()) {
        return false;
    }
    m_messages.erase(m_messages.begin(), found + 1);
    return true;
}

QString SentMessages::insteadOf(const MessageExpectation& expectation) const
{
    QStringList alike;
    for (const MessageRecord& message : m_messages) {
        if (message.code == expectation.code()) {
            alike.append(expectation.textOf(message));
        }
    }
    alike.removeDuplicates();
    return alike.isEmpty() ? text() : alike.join(QStringLiteral(", then "));
}

QString SentMessages::text() const
{
    QStringList texts;
    for (const MessageRecord& message : m_messages) {
        texts.append(QStringLiteral("message %1 to %2").arg(message.code).arg(message.receiver));
    }
    return texts.isEmpty() ? QStringLiteral("no message") : texts.join(QStringLiteral(", then "));
}
