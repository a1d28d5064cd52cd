#include "messages/MessageWords.h"

#include "plugin/ModuleNames.h"

#include <QCoreApplication>
#include <QHash>

namespace MessageWords {
namespace {

using MessageNames::Extra;

/// `word` unless `isRight`; then what is wrong with it, in the user's language.
void require(bool isRight, const char* reason, const QString& word)
{
    if (!isRight) {
        malformed(QCoreApplication::translate("MessageWords", reason).arg(word));
    }
}

/// "a=1,b=2"
QList<QPair<QString, QString>> readPairs(const QString& text, const char* reason)
{
    QList<QPair<QString, QString>> pairs;
    for (const QString& part : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const int equals = part.indexOf(QLatin1Char('='));
        require(equals >= 1, reason, text);
        pairs.append({part.left(equals), part.mid(equals + 1)});
    }
    return pairs;
}

HostMessage::Symbols readSymbols(const QString& text)
{
    const char* const reason =
        QT_TRANSLATE_NOOP("MessageWords", "\"%1\" is not a list NUMBER=SYMBOL,...");
    HostMessage::Symbols symbols;
    for (const auto& [number, symbol] : readPairs(text, reason)) {
        bool ok = false;
        symbols[number.toInt(&ok)] = symbol.toStdString();
        require(ok, reason, text);
    }
    return symbols;
}

HostMessage::Attributes readAttributes(const QString& text)
{
    HostMessage::Attributes attributes;
    for (const auto& [name, value] : readPairs(
             text, QT_TRANSLATE_NOOP("MessageWords", "\"%1\" is not a list NAME=VALUE,..."))) {
        attributes[name.toStdString()] = value.toStdString();
    }
    return attributes;
}

QString needed(Extra kind)
{
    switch (kind) {
        case Extra::String:
            return QStringLiteral("extra:string=...");
        case Extra::Symbols:
            return QStringLiteral("extra:symbols=...");
        case Extra::Attributes:
            return QStringLiteral("extra:attributes=...");
        default:
            return QStringLiteral("a number as extra, or none");
    }
}

}  // namespace

int readCode(const QString& word)
{
    bool ok = false;
    const int code = word.toInt(&ok);
    require(ok, QT_TRANSLATE_NOOP("MessageWords", "\"%1\" is not a message code"), word);
    return code;
}

Word split(const QString& word)
{
    const int equals = word.indexOf(QLatin1Char('='));
    const QString left = word.left(qMax(0, equals));
    // Keys may hold a colon themselves: the last one starts the type.
    const int colon = left.lastIndexOf(QLatin1Char(':'));
    const QString key = left.left(colon < 0 ? left.size() : colon);
    if (key.isEmpty()) {
        malformed(QStringLiteral("\"%1\" is not an entry KEY=VALUE").arg(word));
    }
    return {key, colon < 0 ? QString() : left.mid(colon + 1), word.mid(equals + 1)};
}

QVariant payloadValue(const QString& type, const QString& text)
{
    bool ok = true;
    if (type.isEmpty() || type == QLatin1String("text")) {
        return text;
    }
    if (type == QLatin1String("int")) {
        const int value = text.toInt(&ok);
        require(ok, QT_TRANSLATE_NOOP("MessageWords", "\"%1\" is not a whole number"), text);
        return value;
    }
    if (type == QLatin1String("decimal")) {
        const double value = text.toDouble(&ok);
        require(ok, QT_TRANSLATE_NOOP("MessageWords", "\"%1\" is not a number"), text);
        return value;
    }
    if (type != QLatin1String("bool")) {
        malformed(QStringLiteral("\"%1\" is not a type").arg(type));
    }
    ok = text == QLatin1String("true") || text == QLatin1String("false");
    require(ok, QT_TRANSLATE_NOOP("MessageWords", "\"%1\" is neither true nor false"), text);
    return text == QLatin1String("true");
}

Extra extraKind(const QString& type)
{
    static const QHash<QString, Extra> kinds{{QString(), Extra::Number},
                                             {QStringLiteral("string"), Extra::String},
                                             {QStringLiteral("symbols"), Extra::Symbols},
                                             {QStringLiteral("attributes"), Extra::Attributes}};
    if (!kinds.contains(type)) {
        malformed(QStringLiteral("\"%1\" is not a kind of extra word").arg(type));
    }
    return kinds.value(type);
}

HostMessage::ExtraWord extraValue(Extra kind, const QString& text)
{
    switch (kind) {
        case Extra::String:
            return text.toStdString();
        case Extra::Symbols:
            return readSymbols(text);
        case Extra::Attributes:
            return readAttributes(text);
        case Extra::Number:
            break;
    }
    bool ok = false;
    const qint64 number = text.toLongLong(&ok);
    require(ok, QT_TRANSLATE_NOOP("MessageWords", "\"%1\" is not a whole number"), text);
    return number;
}

HostMessage read(const QStringList& words)
{
    HostMessage message;
    message.code = readCode(words.value(0));
    Extra given = Extra::Number;
    for (const QString& text : words.mid(1)) {
        try {
            const Word word = split(text);
            if (word.key == QLatin1String("extra")) {
                given = extraKind(word.type);
                message.extra = extraValue(given, word.value);
            } else {
                message.payload.insert(word.key, payloadValue(word.type, word.value));
            }
        } catch (const WordError&) {
            malformed(QStringLiteral("\"%1\" is not an entry of a message").arg(text));
        }
    }
    // A wrong address would crash the program, not fail the step.
    const Extra wanted = MessageNames::extraOf(ModuleNames::toolStrip, message.code);
    if (given != wanted) {
        malformed(QStringLiteral("message %1 takes %2").arg(message.code).arg(needed(wanted)));
    }
    return message;
}

}  // namespace MessageWords
