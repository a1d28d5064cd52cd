#include "messages/MessageLog.h"

#include <QSaveFile>

MessageLog::MessageLog(QObject* parent) : QObject(parent)
{
    CanvasHost::setObserver([this](const CanvasHost::Transfer& transfer) {
        m_messages.push_back(MessageRecord::of(transfer));
        // A copy: a slot may clear the log.
        const MessageRecord message = m_messages.back();
        Q_EMIT appended(message);
    });
}

MessageLog::~MessageLog()
{
    CanvasHost::setObserver({});
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
