#pragma once

#include "session/Step.h"

#include <QStringList>

/// All steps that a session can have.
namespace StepTable {

/// The step that the words of a line describe. Throws a WordError for words that describe
/// none.
SessionStep parse(const QStringList& words);

QStringList names();

}  // namespace StepTable
