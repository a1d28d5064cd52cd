#pragma once

#include "session/StepTable.h"

/// The steps that expect something: what their words must be, and the actions that they are made
/// of.
namespace ExpectSteps {

/// "message CODE ...", "nothing" or "state NAME PROPERTY=VALUE ...".
QString checkExpect(const QStringList& arguments);
/// "accept|reject [title=...] [text=...]"
QString checkBox(const QStringList& arguments);

StepActionList expect(const QStringList& arguments);
StepActionList box(const QStringList& arguments);

}  // namespace ExpectSteps
