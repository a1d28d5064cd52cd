#pragma once

#include "messages/MessageRecord.h"

#include <QFile>

/// A trace file: one JSON object a line, written while the messages pass.
class MessageTrace {
public:
    /// Empties `file`, or makes it. False when it cannot be written; see errorText().
    bool open(const QString& file);
    QString errorText() const { return m_file.errorString(); }

    /// Each line reaches the file at once, so that a trace survives whatever comes after.
    void append(const MessageRecord& message);

private:
    QFile m_file;
};
