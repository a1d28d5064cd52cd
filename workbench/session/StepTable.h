#pragma once

#include "session/Step.h"

#include <QStringList>

/// All steps that a session may have.
namespace StepTable {

/// The step that the words of a line stand for. Throws a CanvasHost::FileError without a place for
/// words that stand for none.
SessionStep parse(const QStringList& words);

QStringList names();

}  // namespace StepTable
