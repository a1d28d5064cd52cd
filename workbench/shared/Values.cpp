#include "shared/Values.h"

namespace Values {

QString typeName(const QVariant& value)
{
    switch (static_cast<QMetaType::Type>(value.userType())) {
        case QMetaType::QString:
            return QStringLiteral("text");
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
            return QStringLiteral("integer");
        case QMetaType::Double:
        case QMetaType::Float:
            return QStringLiteral("decimal");
        case QMetaType::Bool:
            return QStringLiteral("truth");
        case QMetaType::UnknownType:
            return QStringLiteral("nothing");
        default:
            return QString::fromLatin1(value.typeName());
    }
}

QJsonValue toJson(const QVariant& value)
{
    const QJsonValue json = QJsonValue::fromVariant(value);
    return json.isNull() && value.isValid() ? QJsonValue(value.toString()) : json;
}

QStringList changedKeys(const QMap<QString, QVariant>& before, const QMap<QString, QVariant>& after)
{
    QStringList keys;
    for (auto entry = after.begin(); entry != after.end(); ++entry) {
        const QVariant old = before.value(entry.key());
        // QVariant compares texts and numbers by value; here the type counts as well.
        if (old.userType() != entry.value().userType() || old != entry.value()) {
            keys.append(entry.key());
        }
    }
    return keys;
}

}  // namespace Values
