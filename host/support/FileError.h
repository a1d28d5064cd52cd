#pragma once

#include <QString>

namespace CanvasHost {

/// What is wrong with a file, and where; thrown by whatever reads or writes one.
struct FileError {
    QString file;  ///< empty for a text that is not from a file
    int line = 0;  ///< from 1; 0: no line
    QString reason;

    /// "<file>:<line>", without parts that are not set.
    QString place() const
    {
        const QString number = line > 0 ? QString::number(line) : QString();
        return file.isEmpty() || line == 0 ? file + number : file + QStringLiteral(":") + number;
    }

    /// "<file>:<line>: <reason>", without parts that are not set.
    QString text() const
    {
        return place().isEmpty() ? reason : place() + QStringLiteral(": ") + reason;
    }
};

}  // namespace CanvasHost
