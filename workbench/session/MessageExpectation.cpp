#include "session/MessageExpectation.h"

#include <Values.h>
#include "messages/MessageWords.h"

#include <algorithm>

namespace {

using MessageNames::Extra;

/// The value as a session writes it: "key=text", "key:int=7".
QString entryText(const QString& key, const QVariant& value, bool typed)
{
    static const QMap<QString, QString> types{
        {QStringLiteral("text"), QStringLiteral("text")},
        {QStringLiteral("integer"), QStringLiteral("int")},
        {QStringLiteral("decimal"), QStringLiteral("decimal")},
        {QStringLiteral("truth"), QStringLiteral("bool")}};
    const QString name = Values::typeName(value);
    const QString type = typed ? QLatin1Char(':') + types.value(name, name) : QString();
    return QStringLiteral("%1%2=%3").arg(key, type, value.toString());
}

QString objectText(const QMap<QString, QString>& object)
{
    QStringList pairs;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        pairs.append(entry.key().isEmpty() ? entry.value()
                                           : entry.key() + QLatin1Char('=') + entry.value());
    }
    return QStringLiteral("extra={%1}").arg(pairs.join(QLatin1Char(',')));
}

QString joined(int code, const QString& receiver, const QStringList& parts)
{
    const QString head = QStringLiteral("message %1").arg(code) +
                         (receiver.isEmpty() ? QString() : QStringLiteral(" to ") + receiver);
    return parts.isEmpty() ? head
                           : QStringLiteral("%1 with %2").arg(head, parts.join(QLatin1Char(' ')));
}

}  // namespace

bool MessageExpectation::read(const QStringList& words, MessageExpectation* expectation,
                              QString* reason)
{
    bool ok = false;
    expectation->m_code = words.value(0).toInt(&ok);
    if (!ok) {
        *reason = QStringLiteral("\"%1\" is no message code").arg(words.value(0));
        return false;
    }
    for (const QString& word : words.mid(1)) {
        if (!expectation->readWord(word)) {
            *reason = QStringLiteral("\"%1\" cannot be expected of a message").arg(word);
            return false;
        }
    }
    return true;
}

bool MessageExpectation::readWord(const QString& text)
{
    MessageWords::Word word;
    bool ok = MessageWords::take(text, &word);
    if (!ok) {
        return false;
    }
    if (word.key == QLatin1String("extra")) {
        return readExtra(word.type, word.value);
    }
    const bool plain = word.type.isEmpty();
    if (plain && word.key == QLatin1String("to")) {
        m_receiver = word.value;
    } else if (plain && word.key == QLatin1String("from")) {
        m_sender = word.value;
    } else if (plain && word.key == QLatin1String("total")) {
        m_total = word.value.toInt(&ok);
    } else {
        const QVariant value = MessageWords::payloadValue(word.type, word.value, &ok);
        m_entries.append({word.key, word.type, word.value, value});
    }
    return ok;
}

bool MessageExpectation::readExtra(const QString& type, const QString& text)
{
    Extra kind = Extra::Number;
    HostMessage::ExtraWord extra;
    if (!MessageWords::extraKind(type, &kind) || !MessageWords::extraValue(kind, text, &extra)) {
        return false;
    }
    QMap<QString, QString> object;
    if (const auto* const number = std::get_if<qint64>(&extra)) {
        m_extra = *number;
        return true;
    }
    if (const auto* const string = std::get_if<std::string>(&extra)) {
        object.insert(QString(), QString::fromStdString(*string));
    } else if (const auto* const symbols = std::get_if<HostMessage::Symbols>(&extra)) {
        for (const auto& [number, symbol] : *symbols) {
            object.insert(QString::number(number), QString::fromStdString(symbol));
        }
    } else {
        for (const auto& [name, value] : std::get<HostMessage::Attributes>(extra)) {
            object.insert(QString::fromStdString(name), QString::fromStdString(value));
        }
    }
    m_object = object;
    return true;
}

bool MessageExpectation::matches(const MessageRecord& message) const
{
    const auto holds = [&](const Entry& entry) {
        const auto found = message.payload.find(entry.key);
        if (found == message.payload.end() || found->toString() != entry.value.toString()) {
            return false;
        }
        return entry.type.isEmpty() || Values::typeName(*found) == Values::typeName(entry.value);
    };
    return message.code == m_code && (m_receiver.isEmpty() || message.receiver == m_receiver) &&
           (m_sender.isEmpty() || message.sender == m_sender) &&
           (!m_extra || (!message.hasAddress() && message.extra == *m_extra)) &&
           (!m_object || (message.hasAddress() && message.pointedAt == *m_object)) &&
           (!m_total || message.payload.size() == *m_total) &&
           std::all_of(m_entries.begin(), m_entries.end(), holds);
}

QString MessageExpectation::text() const
{
    QStringList parts;
    if (!m_sender.isEmpty()) {
        parts.append(QStringLiteral("from=") + m_sender);
    }
    for (const Entry& entry : m_entries) {
        parts.append(entryText(entry.key, entry.value, !entry.type.isEmpty()));
    }
    if (m_extra) {
        parts.append(QStringLiteral("extra=%1").arg(*m_extra));
    }
    if (m_object) {
        parts.append(objectText(*m_object));
    }
    if (m_total) {
        parts.append(QStringLiteral("total=%1").arg(*m_total));
    }
    return joined(m_code, m_receiver, parts);
}

QString MessageExpectation::textOf(const MessageRecord& message) const
{
    QStringList parts;
    if (!m_sender.isEmpty()) {
        parts.append(QStringLiteral("from=") + message.sender);
    }
    for (const Entry& entry : m_entries) {
        parts.append(message.payload.contains(entry.key)
                         ? entryText(entry.key, message.payload[entry.key], !entry.type.isEmpty())
                         : QStringLiteral("no %1").arg(entry.key));
    }
    if (m_extra || m_object) {
        parts.append(message.hasAddress() ? objectText(message.pointedAt)
                                          : QStringLiteral("extra=%1").arg(message.extra));
    }
    if (m_total) {
        parts.append(QStringLiteral("total=%1").arg(message.payload.size()));
    }
    return joined(message.code, m_receiver.isEmpty() ? QString() : message.receiver, parts);
}
