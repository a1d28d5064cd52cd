#pragma once

#include <QByteArray>
#include <QString>

namespace Pcb {

/// Writes a whole file or leaves the one that is there; an `error` reads "<file>: <reason>".
bool writeWhole(const QString& file, const QByteArray& content, QString* error);

}  // namespace Pcb
