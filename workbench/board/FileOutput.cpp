#include "board/FileOutput.h"

#include <QSaveFile>

namespace Pcb {

bool writeWhole(const QString& file, const QByteArray& content, QString* error)
{
    QSaveFile device(file);
    const bool isWritten = device.open(QIODevice::WriteOnly) &&
                           device.write(content) == content.size() && device.commit();
    if (!isWritten && error) {
        *error = QStringLiteral("%1: %2").arg(file, device.errorString());
    }
    return isWritten;
}

}  // namespace Pcb
