#include "messages/MessageWords.h"

#include "messages/MessageNames.h"
#include "plugin/ModuleNames.h"

#include <FileError.h>

#include <QHash>

namespace MessageWords {
namespace {

using CanvasHost::FileError;
using MessageNames::Extra;

/// "a=1,b=2"
bool readPairs(const QString& text, QList<QPair<QString, QString>>* pairs)
{
    for (const QString& part : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const int equals = part.indexOf(QLatin1Char('='));
        if (equals < 1) {
            return false;
        }
        pairs->append({part.left(equals), part.mid(equals + 1)});
    }
    return true;
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
    if (!ok) {
        throw FileError{{}, 0, QStringLiteral("\"%1\" is not a message code").arg(word)};
    }
    return code;
}

bool take(const QString& text, Word* word)
{
    const int equals = text.indexOf(QLatin1Char('='));
    if (equals < 1) {
        return false;
    }
    const QString left = text.left(equals);
    // Keys may hold a colon themselves: the last one starts the type.
    const int colon = left.lastIndexOf(QLatin1Char(':'));
    word->key = left.left(colon < 0 ? left.size() : colon);
    word->type = colon < 0 ? QString() : left.mid(colon + 1);
    word->value = text.mid(equals + 1);
    return !word->key.isEmpty();
}

QVariant payloadValue(const QString& type, const QString& text, bool* ok)
{
    *ok = true;
    if (type.isEmpty() || type == QLatin1String("text")) {
        return text;
    }
    if (type == QLatin1String("int")) {
        return text.toInt(ok);
    }
    if (type == QLatin1String("decimal")) {
        return text.toDouble(ok);
    }
    if (type == QLatin1String("bool")) {
        *ok = text == QLatin1String("true") || text == QLatin1String("false");
        return text == QLatin1String("true");
    }
    *ok = false;
    return {};
}

bool extraKind(const QString& type, Extra* kind)
{
    static const QHash<QString, Extra> kinds{{QString(), Extra::Number},
                                             {QStringLiteral("string"), Extra::String},
                                             {QStringLiteral("symbols"), Extra::Symbols},
                                             {QStringLiteral("attributes"), Extra::Attributes}};
    *kind = kinds.value(type);
    return kinds.contains(type);
}

bool extraValue(Extra kind, const QString& text, HostMessage::ExtraWord* extra)
{
    bool ok = true;
    QList<QPair<QString, QString>> pairs;
    if (kind == Extra::Number) {
        *extra = text.toLongLong(&ok);
        return ok;
    }
    if (kind == Extra::String) {
        *extra = text.toStdString();
        return true;
    }
    if (!readPairs(text, &pairs)) {
        return false;
    }
    if (kind == Extra::Attributes) {
        HostMessage::Attributes attributes;
        for (const auto& [name, value] : pairs) {
            attributes[name.toStdString()] = value.toStdString();
        }
        *extra = attributes;
        return true;
    }
    HostMessage::Symbols symbols;
    for (const auto& [number, symbol] : pairs) {
        symbols[number.toInt(&ok)] = symbol.toStdString();
        if (!ok) {
            return false;
        }
    }
    *extra = symbols;
    return true;
}

Extra wantedExtra(int code)
{
    const MessageNames::Row* const row = MessageNames::find(ModuleNames::toolStrip, code);
    return row ? row->extra : Extra::Number;
}

HostMessage read(const QStringList& words)
{
    HostMessage message;
    message.code = readCode(words.value(0));
    Extra given = Extra::Number;
    for (const QString& text : words.mid(1)) {
        Word word;
        bool ok = take(text, &word);
        if (ok && word.key == QLatin1String("extra")) {
            ok = extraKind(word.type, &given) && extraValue(given, word.value, &message.extra);
        } else if (ok) {
            message.payload.insert(word.key, payloadValue(word.type, word.value, &ok));
        }
        if (!ok) {
            throw FileError{{}, 0, QStringLiteral("\"%1\" is not an entry of a message").arg(text)};
        }
    }
    // A wrong address would crash the program, not fail the step.
    const Extra wanted = wantedExtra(message.code);
    if (given != wanted) {
        throw FileError{
            {}, 0, QStringLiteral("message %1 takes %2").arg(message.code).arg(needed(wanted))};
    }
    return message;
}

}  // namespace MessageWords
