#pragma once

#include <QString>

namespace CanvasHost {

/// What is wrong with a file, and where; thrown by whatever reads or writes one.
struct FileError {
    QString file;  ///< empty for a text that comes from no file
    int line = 0;  ///< counted from 1; 0: there is no line to name
    QString reason;

    /// "<file>:<line>: <reason>", without the parts that there are not.
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
