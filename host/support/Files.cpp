#include "Files.h"

#include <QFile>
#include <QSaveFile>

namespace CanvasHost {

QByteArray readWhole(const QString& file)
{
    QFile device(file);
    QByteArray content;
    if (device.open(QIODevice::ReadOnly)) {
        content = device.readAll();
    }
    if (device.error() != QFileDevice::NoError) {
        throw FileError{file, 0, device.errorString()};
    }
    return content;
}

void writeWhole(const QString& file, const QByteArray& content)
{
    QSaveFile device(file);
    if (!device.open(QIODevice::WriteOnly) || device.write(content) != content.size() ||
        !device.commit()) {
        throw FileError{file, 0, device.errorString()};
    }
}

}  // namespace CanvasHost
