#pragma once

#include "session/StepTable.h"

/// The steps of the mouse: what their words must be, and the actions that they are made of.
namespace MouseSteps {

QString checkClick(const QStringList& arguments);
QString checkRightClick(const QStringList& arguments);
QString checkPress(const QStringList& arguments);
QString checkMove(const QStringList& arguments);
QString checkWheel(const QStringList& arguments);
QString checkCanvas(const QStringList& arguments);

StepActionList click(const QStringList& arguments);
StepActionList doubleClick(const QStringList& arguments);
StepActionList rightClick(const QStringList& arguments);
StepActionList press(const QStringList& arguments);
StepActionList move(const QStringList& arguments);
StepActionList release(const QStringList& arguments);
StepActionList wheel(const QStringList& arguments);
StepActionList canvas(const QStringList& arguments);

}  // namespace MouseSteps
