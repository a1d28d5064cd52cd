#include "messages/MessageLog.h"

#include "shared/Values.h"

#include <Files.h>

MessageLog::MessageLog(QObject* parent) : QObject(parent)
{
    CanvasHost::setObserver(
        [this](const CanvasHost::Transfer& transfer) { append(MessageRecord::of(transfer)); });
}

MessageLog::~MessageLog()
{
    CanvasHost::setObserver({});
}

// By value: a slot may clear the log.
void MessageLog::append(MessageRecord message)
{
    if (message.isFeatureRecord()) {
        if (!m_lastRecord.isEmpty()) {
            message.changed = Values::changedKeys(m_lastRecord, message.payload);
        }
        m_lastRecord = message.payload;
    }
    m_messages.push_back(message);
    Q_EMIT appended(message);
}

void MessageLog::clear()
{
    m_messages.clear();
    Q_EMIT cleared();
}

void MessageLog::save(const QString& file) const
{
    QByteArray trace;
    for (const MessageRecord& message : m_messages) {
        trace += message.toJson() + '\n';
    }
    CanvasHost::writeWhole(file, trace);
}
