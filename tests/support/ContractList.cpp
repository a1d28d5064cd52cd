#include "ContractList.h"

#include <QFile>

#include <algorithm>

QStringList linesOf(const char* name)
{
    QFile file(QStringLiteral(CONTRACT_DIR "/") + QLatin1String(name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qFatal("%s cannot be read", qPrintable(file.fileName()));
    }
    QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    lines.removeAll(QString());
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const QString& line) { return line.startsWith('#'); }),
                lines.end());
    return lines;
}
