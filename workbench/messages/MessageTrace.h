#pragma once

#include "messages/MessageRecord.h"

#include <QFile>

/// A trace file: one JSON object per line, written as the messages pass.
class MessageTrace {
public:
    /// Empties `file`, or creates it. Throws a CanvasHost::FileError when it cannot be written.
    void open(const QString& file);

    /// Each line is written to the file at once, so that a trace survives a crash.
    void append(const MessageRecord& message);

private:
    QFile m_file;
};
