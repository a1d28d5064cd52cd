#pragma once

#include "messages/HostMessage.h"
#include "messages/MessageNames.h"

#include <QStringList>

/// The words of which messages are made: "CODE [key[:type]=value ...] [extra[:kind]=value]".
namespace MessageWords {

/// Throws a CanvasHost::FileError without a place for a word that is not a number.
int readCode(const QString& word);

/// A word "key:type=value" split up; the type may be absent.
struct Word {
    QString key;
    QString type;
    QString value;
};
/// False for a word without a key or without an equals sign.
bool take(const QString& text, Word* word);

/// The value that `text` stands for: `type` is "text", "int", "decimal", "bool", or empty for text.
QVariant payloadValue(const QString& type, const QString& text, bool* ok);

/// `type` is empty for a number, or "string", "symbols", "attributes". False for another one.
bool extraKind(const QString& type, MessageNames::Extra* kind);
/// Maps are written "1=r10,2=s20". False for any other text.
bool extraValue(MessageNames::Extra kind, const QString& text, HostMessage::ExtraWord* extra);
/// What the extra word of a message to the tool strip must be.
MessageNames::Extra wantedExtra(int code);

/// Throws a CanvasHost::FileError without a place for words that are not a message to the tool
/// strip.
HostMessage read(const QStringList& words);

}  // namespace MessageWords
