#include "messages/MessageTrace.h"

bool MessageTrace::open(const QString& file)
{
    m_file.setFileName(file);
    return m_file.open(QIODevice::WriteOnly | QIODevice::Truncate);
}

void MessageTrace::append(const MessageRecord& message)
{
    if (!m_file.isOpen()) {
        return;
    }
    m_file.write(message.toJson() + '\n');
    m_file.flush();
}
