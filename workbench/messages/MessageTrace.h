#pragma once

#include "messages/MessageRecord.h"

#include <QFile>

/// A trace file: one JSON object per line, written while the messages pass.
class MessageTrace {
public:
    /// Empties `file`, or makes it. Throws a CanvasHost::FileError when it cannot be written.
    void open(const QString& file);

    /// Each line reaches the file at once, so that a trace survives whatever comes after.
    void append(const MessageRecord& message);

private:
    QFile m_file;
};
