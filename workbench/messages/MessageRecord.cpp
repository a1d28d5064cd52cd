#include "messages/MessageRecord.h"

#include "messages/MessageNames.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "shared/Values.h"

#include <Json.h>
#include <TimeToWrite.h>

#include <QJsonObject>
#include <QStringList>

#include <map>
#include <string>

namespace {

using MessageNames::Extra;
using MessageNames::extraOf;

QMap<QString, QString> readExtra(Extra kind, qint64 address)
{
    QMap<QString, QString> read;
    switch (kind) {
        case Extra::Number:
            break;
        case Extra::String:
            read.insert(QString(),
                        QString::fromStdString(*ExtraWord::object<std::string>(address)));
            break;
        case Extra::Symbols:
            for (const auto& [number, symbol] :
                 *ExtraWord::object<std::map<int, std::string>>(address)) {
                read.insert(QString::number(number), QString::fromStdString(symbol));
            }
            break;
        case Extra::Attributes:
            for (const auto& [name, value] :
                 *ExtraWord::object<std::map<std::string, std::string>>(address)) {
                read.insert(QString::fromStdString(name), QString::fromStdString(value));
            }
            break;
    }
    return read;
}

QString pairs(const QMap<QString, QString>& map)
{
    QStringList list;
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        list.append(entry.key().isEmpty()
                        ? QStringLiteral("\"%1\"").arg(entry.value())
                        : QStringLiteral("%1=%2").arg(entry.key(), entry.value()));
    }
    return list.join(QStringLiteral(", "));
}

}  // namespace

MessageRecord MessageRecord::of(const CanvasHost::Transfer& transfer)
{
    const PluginMetaData& message = transfer.message;
    MessageRecord record;
    record.time = CanvasHost::timeToWrite();
    record.sender = message.sender;
    record.receiver = message.receiver;
    record.code = message.code;
    record.payload = message.payload;
    record.extra = message.extra;
    record.delivered = transfer.delivered;
    record.module = transfer.module;
    if (message.extra != 0) {
        record.pointedAt = readExtra(extraOf(message.receiver, message.code), message.extra);
    }
    return record;
}

QString MessageRecord::name() const
{
    return MessageNames::name(receiver, code);
}

bool MessageRecord::hasAddress() const
{
    return extra != 0 && extraOf(receiver, code) != Extra::Number;
}

bool MessageRecord::isFeatureRecord() const
{
    return receiver == ModuleNames::viewer &&
           (code == MessageCodes::Sent::Record || code == MessageCodes::Sent::DirectionRecord);
}

QString MessageRecord::summary() const
{
    QMap<QString, QString> first;
    QMap<QString, QString> rest;
    for (auto entry = payload.begin(); entry != payload.end(); ++entry) {
        QMap<QString, QString>& texts = changed.contains(entry.key()) ? first : rest;
        texts.insert(entry.key(), entry.value().toString());
    }
    const QString separator = first.isEmpty() || rest.isEmpty() ? QString() : QStringLiteral(", ");
    return pairs(first) + separator + pairs(rest);
}

QString MessageRecord::extraText() const
{
    if (!hasAddress()) {
        return QString::number(extra);
    }
    return QStringLiteral("{%1}").arg(pairs(pointedAt));
}

QByteArray MessageRecord::toJson() const
{
    QJsonObject values;
    for (auto entry = payload.begin(); entry != payload.end(); ++entry) {
        values.insert(entry.key(), QJsonObject{{"type", Values::typeName(entry.value())},
                                               {"value", Values::toJson(entry.value())}});
    }
    // A QJsonObject would put its keys in alphabetical order; a reader wants the time first.
    QList<QPair<QByteArray, QJsonValue>> fields{
        {"time", time.toString(Qt::ISODateWithMs)},
        {"sender", sender},
        {"receiver", receiver},
        {"code", code},
        {"name", name()},
        {"payload", values},
        {"extra", extra},
        {"delivered", delivered},
    };
    if (hasAddress()) {
        QJsonObject map;
        for (auto entry = pointedAt.begin(); entry != pointedAt.end(); ++entry) {
            map.insert(entry.key(), entry.value());
        }
        static const QMap<Extra, QByteArray> names{{Extra::Symbols, "symbols"},
                                                   {Extra::Attributes, "attributes"}};
        const Extra kind = extraOf(receiver, code);
        fields.append({names.value(kind, "text"),
                       kind == Extra::String ? QJsonValue(pointedAt.value(QString())) : map});
    }
    QByteArrayList parts;
    for (const auto& [key, value] : fields) {
        parts.append('"' + key + "\":" + CanvasHost::compactJson(value));
    }
    return '{' + parts.join(',') + '}';
}
