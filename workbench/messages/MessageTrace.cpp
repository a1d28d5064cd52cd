#include "messages/MessageTrace.h"

#include <Files.h>

void MessageTrace::open(const QString& file)
{
    m_file.setFileName(file);
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        throw CanvasHost::fileError(m_file);
    }
}

void MessageTrace::append(const MessageRecord& message)
{
    if (!m_file.isOpen()) {
        return;
    }
    m_file.write(message.toJson() + '\n');
    m_file.flush();
}
