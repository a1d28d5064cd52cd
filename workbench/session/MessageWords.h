#pragma once

#include "window/HostMessage.h"

#include <QStringList>

/// The words of a step that sends a message: "CODE [key=value ...] [extra=N]".
namespace MessageWords {

/// False, with a reason, for words that are no message that the tool strip could take.
bool read(const QStringList& words, HostMessage* message, QString* reason);

}  // namespace MessageWords
