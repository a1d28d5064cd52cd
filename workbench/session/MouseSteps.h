#pragma once

#include "session/Step.h"

#include <QStringList>

/// The mouse steps. Each does the same on a widget and at a place on the board.
namespace MouseSteps {

/// "STEP NAME [x y] [...]", pixels of the widget; its middle without a place.
StepActionList onWidget(const QStringList& words);
/// "canvas STEP X Y [...]", lengths on the board.
StepActionList onBoard(const QStringList& words);

}  // namespace MouseSteps
