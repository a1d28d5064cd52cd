#pragma once

#include "session/Step.h"

#include <QStringList>

/// The steps that expect something. Each reads the words of its line, its own name first.
namespace ExpectSteps {

/// "message CODE ...", "nothing" or "state NAME PROPERTY=VALUE ..."
StepActionList expect(const QStringList& words);
/// "accept|reject [title=...] [text=...]"
StepActionList box(const QStringList& words);

}  // namespace ExpectSteps
