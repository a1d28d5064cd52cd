#include "GlogCatcher.h"

GlogCatcher::GlogCatcher()
{
    google::AddLogSink(this);
}

GlogCatcher::~GlogCatcher()
{
    google::RemoveLogSink(this);
}

void GlogCatcher::send(google::LogSeverity severity, const char* /*fullFilename*/,
                       const char* baseFilename, int /*line*/,
                       const google::LogMessageTime& /*time*/, const char* message, size_t length)
{
    if (severity == google::GLOG_ERROR) {
        m_errors.append(QByteArray(message, static_cast<int>(length)));
        m_files.append(QByteArray(baseFilename));
    }
}
