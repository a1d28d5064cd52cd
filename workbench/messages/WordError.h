#pragma once

#include <QString>

/// What is wrong with words that cannot be read. Who reads a file adds its name and the line.
struct WordError {
    QString place;   ///< "Row 2" of a table; empty where one line is read
    QString reason;  ///< a sentence without a full stop, which names the word

    QString text() const
    {
        return place.isEmpty() ? reason : place + QStringLiteral(": ") + reason;
    }
};

[[noreturn]] inline void malformed(const QString& reason)
{
    throw WordError{{}, reason};
}
