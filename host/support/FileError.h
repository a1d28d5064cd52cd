#pragma once

#include <QString>

namespace CanvasHost {

/// What is wrong with a file, and where; thrown by whatever reads or writes one.
struct FileError {
    QString file;  ///< empty for a text that is not from a file
    int line = 0;  ///< from 1; 0: no line
    QString reason;

    /// "<file>:<line>: <reason>", without parts that are not set.
    QString text() const
    {
        QString place = file;
        if (line > 0) {
            place += (file.isEmpty() ? QString() : QStringLiteral(":")) + QString::number(line);
        }
        return place.isEmpty() ? reason : place + QStringLiteral(": ") + reason;
    }
};

}  // namespace CanvasHost
