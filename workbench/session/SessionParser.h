#pragma once

#include "session/Session.h"

/// Reads session files: one step a line, words quoted as in a shell, '#' begins a comment.
class SessionParser {
public:
    /// The whole file is read and checked. On failure `error` reads "<file>:<line>: <reason>", or
    /// "<file>: <reason>" for a file that cannot be read.
    static bool readFile(const QString& file, Session* session, QString* error);
    /// The same from what a file holds; `session->file` names it.
    static bool readBytes(const QByteArray& bytes, Session* session, QString* error);
    /// The same from `text`; `session->file` names it.
    static bool read(const QString& text, Session* session, QString* error);

    /// Splits one line into words; a comment is left out. False, with a reason, for an open quote.
    static bool split(const QString& line, QStringList* words, QString* reason);
};
