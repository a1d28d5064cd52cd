#pragma once

#include <QJsonValue>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

/// Values of a payload, as text to read and for the trace.
namespace Values {

/// "text", "integer", "decimal", "truth", or Qt's own name of any other type.
QString typeName(const QVariant& value);
/// The value as JSON; text for a type that JSON does not have.
QJsonValue toJson(const QVariant& value);

/// The keys of `after` that `before` lacks, or has with another value or type.
QStringList changedKeys(const QMap<QString, QVariant>& before,
                        const QMap<QString, QVariant>& after);

}  // namespace Values
