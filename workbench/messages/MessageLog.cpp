#include "messages/MessageLog.h"

#include <Values.h>

#include <QSaveFile>

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

bool MessageLog::save(const QString& file, QString* error) const
{
    QSaveFile out(file);
    if (out.open(QIODevice::WriteOnly)) {
        for (const MessageRecord& message : m_messages) {
            out.write(message.toJson() + '\n');
        }
        if (out.commit()) {
            return true;
        }
    }
    *error = out.errorString();
    return false;
}
