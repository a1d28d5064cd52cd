#pragma once

#include "messages/HostMessage.h"
#include "messages/MessageNames.h"
#include "messages/WordError.h"

#include <QStringList>

/// The words of which messages are made: "CODE [key[:type]=value ...] [extra[:kind]=value]". What
/// cannot be read is thrown as a WordError.
namespace MessageWords {

int readCode(const QString& word);

/// A word "key:type=value" split up; the type may be absent.
struct Word {
    QString key;
    QString type;
    QString value;
};
Word split(const QString& word);

/// The value that `text` stands for: `type` is "text", "int", "decimal", "bool", or empty for text.
QVariant payloadValue(const QString& type, const QString& text);

/// `type` is empty for a number, or "string", "symbols", "attributes".
MessageNames::Extra extraKind(const QString& type);
/// Maps are written "1=r10,2=s20".
HostMessage::ExtraWord extraValue(MessageNames::Extra kind, const QString& text);

/// A message to the tool strip.
HostMessage read(const QStringList& words);

}  // namespace MessageWords
