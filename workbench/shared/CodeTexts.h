#pragma once

#include <QString>

/// What the codes of messages are called in the user's language, by their names in the protocol:
/// the monitor and the canvas call them the same. An unknown code has no text.
namespace CodeTexts {

/// What the tool strip sends.
QString sent(int code);
/// What the tool strip accepts.
QString accepted(int code);

}  // namespace CodeTexts
