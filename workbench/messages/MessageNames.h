#pragma once

#include <QString>

#include <vector>

/// The message codes by name, for people to read.
namespace MessageNames {

/// What the extra word of a message points at.
enum class Extra { Number, String, Symbols, Attributes };

struct Row {
    int code;
    const char* text;  ///< to be translated in the context "MessageNames"
    Extra extra = Extra::Number;
    bool tool = false;           ///< the message announces the tool that is active now
    const char* name = nullptr;  ///< as in MessageCodes.h, from there
};

/// The messages that the tool strip accepts, in the order in which a menu offers them.
const std::vector<Row>& accepted();
/// The messages that the tool strip sends.
const std::vector<Row>& sent();

/// The row of a message to `receiver`; null for a code that is not known there.
const Row* find(const QString& receiver, int code);
/// As in MessageCodes.h; empty for a code that is not known.
QString name(const QString& receiver, int code);
/// In the user's language; empty for a code that is not known.
QString text(const QString& receiver, int code);
QString text(const Row& row);

}  // namespace MessageNames
