#pragma once

#include "session/Step.h"

#include <QStringList>

/// All steps that a session can have.
namespace Steps {

/// The step that the words of a line describe. Throws a WordError for words that describe none.
SessionStep parse(const QStringList& words);
QStringList names();

// Each of the following reads the words of its line, its own name first.

/// "STEP NAME [x y] [...]", a step of the mouse at pixels of the widget; its middle without a
/// place.
StepActionList onWidget(const QStringList& words);
/// "canvas STEP X Y [...]", lengths on the board.
StepActionList onBoard(const QStringList& words);

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

/// "message CODE ...", "nothing" or "state NAME PROPERTY=VALUE ..."
StepActionList expect(const QStringList& words);
/// "accept|reject|discard [title=...] [text=...]"
StepActionList box(const QStringList& words);

/// Chooses the entry of that text, or of that object name, in the menu that is open.
StepAction pickEntry(const QString& entry);
/// Closes the open menu, which need not be there unless it is `needed`.
StepAction dismissMenu(bool needed);

}  // namespace Steps
