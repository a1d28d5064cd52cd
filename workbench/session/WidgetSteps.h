#pragma once

#include "session/Step.h"

#include <QStringList>

/// The steps on widgets by keyboard and selection, and those of the host. Each reads the words of
/// its line, its own name first.
namespace WidgetSteps {

StepActionList type(const QStringList& words);
StepActionList key(const QStringList& words);
StepActionList choose(const QStringList& words);
/// Makes the item the current one, as a program would: it may be greyed.
StepActionList set(const QStringList& words);
StepActionList menu(const QStringList& words);
StepActionList close(const QStringList& words);

StepActionList send(const QStringList& words);
StepActionList picture(const QStringList& words);
StepActionList wait(const QStringList& words);

/// Chooses the entry of that text, or of that object name, in the menu that is open.
StepAction pickEntry(const QString& entry);
/// Closes the open menu, which need not be there unless it is `needed`.
StepAction dismissMenu(bool needed);

}  // namespace WidgetSteps
