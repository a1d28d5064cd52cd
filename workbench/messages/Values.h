#pragma once

#include <QJsonValue>
#include <QString>
#include <QVariant>

/// Values of a payload, for people and for the trace.
namespace Values {

/// "text", "integer", "decimal", "truth", or Qt's own name of any other type.
QString typeName(const QVariant& value);
/// The value as a JSON value of its own kind; text for a kind that JSON does not have.
QJsonValue toJson(const QVariant& value);

}  // namespace Values
