#pragma once

#include <QByteArray>
#include <QVector>

#include <glog/logging.h>

/// Keeps what is written to the log at error level while it lives.
class GlogCatcher : public google::LogSink {
public:
    GlogCatcher();
    ~GlogCatcher() override;

    /// The lines without their prefix, byte for byte.
    const QVector<QByteArray>& errors() const { return m_errors; }
    /// The source file name that each line was written with.
    const QVector<QByteArray>& files() const { return m_files; }

    void send(google::LogSeverity severity, const char* fullFilename, const char* baseFilename,
              int line, const google::LogMessageTime& time, const char* message,
              size_t length) override;

private:
    QVector<QByteArray> m_errors;
    QVector<QByteArray> m_files;
};
