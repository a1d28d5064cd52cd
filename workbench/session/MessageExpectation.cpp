#include "session/MessageExpectation.h"

#include "messages/MessageWords.h"
#include "shared/Values.h"

#include <algorithm>

namespace {

/// The entry as a session writes it: "key=text", "key:int=7".
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

QString extraText(qint64 number)
{
    return QStringLiteral("extra=%1").arg(number);
}

/// As MessageRecord::pointedAt has it.
QString extraText(const QMap<QString, QString>& object)
{
    QStringList pairs;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        pairs.append(entry.key().isEmpty() ? entry.value()
                                           : entry.key() + QLatin1Char('=') + entry.value());
    }
    return QStringLiteral("extra={%1}").arg(pairs.join(QLatin1Char(',')));
}

QString extraText(const std::string& text)
{
    return extraText({{QString(), QString::fromStdString(text)}});
}

QString extraText(const HostMessage::Symbols& symbols)
{
    QMap<QString, QString> object;
    for (const auto& [number, symbol] : symbols) {
        object.insert(QString::number(number), QString::fromStdString(symbol));
    }
    return extraText(object);
}

QString extraText(const HostMessage::Attributes& attributes)
{
    QMap<QString, QString> object;
    for (const auto& [name, value] : attributes) {
        object.insert(QString::fromStdString(name), QString::fromStdString(value));
    }
    return extraText(object);
}

QString joined(int code, const QString& receiver, const QStringList& parts)
{
    const QString head = QStringLiteral("message %1").arg(code) +
                         (receiver.isEmpty() ? QString() : QStringLiteral(" to ") + receiver);
    return parts.isEmpty() ? head
                           : QStringLiteral("%1 with %2").arg(head, parts.join(QLatin1Char(' ')));
}

}  // namespace

MessageExpectation MessageExpectation::read(const QStringList& words)
{
    MessageExpectation expectation;
    expectation.m_code = MessageWords::readCode(words.value(0));
    for (const QString& word : words.mid(1)) {
        try {
            expectation.readWord(word);
        } catch (const WordError&) {
            malformed(QStringLiteral("\"%1\" cannot be expected of a message").arg(word));
        }
    }
    std::stable_sort(expectation.m_parts.begin(), expectation.m_parts.end(),
                     [](const Part& a, const Part& b) { return a.place < b.place; });
    return expectation;
}

void MessageExpectation::readWord(const QString& text)
{
    const MessageWords::Word word = MessageWords::split(text);
    const bool plain = word.type.isEmpty();
    if (word.key == QLatin1String("extra")) {
        readExtra(word.type, word.value);
    } else if (plain && word.key == QLatin1String("to")) {
        m_receiver = word.value;
    } else if (plain && word.key == QLatin1String("from")) {
        m_parts.push_back(
            {Part::Sender, QStringLiteral("from=") + word.value, [](const MessageRecord& message) {
                 return QStringLiteral("from=") + message.sender;
             }});
    } else if (plain && word.key == QLatin1String("total")) {
        const auto total = [](int count) { return QStringLiteral("total=%1").arg(count); };
        m_parts.push_back(
            {Part::Total,
             total(MessageWords::payloadValue(QStringLiteral("int"), word.value).toInt()),
             [total](const MessageRecord& message) { return total(message.payload.size()); }});
    } else {
        const QVariant value = MessageWords::payloadValue(word.type, word.value);
        m_parts.push_back({Part::Entry, entryText(word.key, value, !plain),
                           [key = word.key, plain](const MessageRecord& message) {
                               return message.payload.contains(key)
                                          ? entryText(key, message.payload[key], !plain)
                                          : QStringLiteral("no %1").arg(key);
                           }});
    }
}

void MessageExpectation::readExtra(const QString& type, const QString& text)
{
    const HostMessage::ExtraWord extra =
        MessageWords::extraValue(MessageWords::extraKind(type), text);
    m_parts.push_back(
        {Part::Extra, std::visit([](const auto& value) { return extraText(value); }, extra),
         [](const MessageRecord& message) {
             return message.hasAddress() ? extraText(message.pointedAt) : extraText(message.extra);
         }});
}

bool MessageExpectation::matches(const MessageRecord& message) const
{
    return message.code == m_code && (m_receiver.isEmpty() || message.receiver == m_receiver) &&
           std::all_of(m_parts.begin(), m_parts.end(),
                       [&](const Part& part) { return part.got(message) == part.wanted; });
}

QString MessageExpectation::text() const
{
    QStringList texts;
    for (const Part& part : m_parts) {
        texts.append(part.wanted);
    }
    return joined(m_code, m_receiver, texts);
}

QString MessageExpectation::textOf(const MessageRecord& message) const
{
    QStringList texts;
    for (const Part& part : m_parts) {
        texts.append(part.got(message));
    }
    return joined(message.code, m_receiver.isEmpty() ? QString() : message.receiver, texts);
}
