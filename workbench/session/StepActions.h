#pragma once

#include "session/StepReach.h"

#include <QKeySequence>

/// The actions of which steps are made. Each looks for its widget when it runs.
namespace StepActions {

using StepReach::Target;

StepAction click(const Target& target);
StepAction doubleClick(const Target& target);
StepAction rightClick(const Target& target);
/// The parts of a drag.
StepAction press(const Target& target, Qt::MouseButton button);
StepAction move(const Target& target);
StepAction release(const Target& target, Qt::MouseButton button);
/// Turns the wheel by notches, away from the user when positive.
StepAction wheel(const Target& target, double notches);

/// In the menu that is open; an entry by its text or its object name.
StepAction pickEntry(const QString& entry);
StepAction dismissMenu();
StepAction dismissMenuIfAny();
/// Opens the menu of that object name in its menu bar.
StepAction openBarMenu(const QString& name);

/// Closes the window that holds the widget.
StepAction closeWindow(const QString& name);

/// Gives the widget the focus and types over its text.
StepAction type(const QString& name, const QString& text);
/// Gives the widget the focus, the cursor where it was, and presses a key.
StepAction key(const QString& name, const QKeySequence& combination);

/// Opens the list of a combo box in which `item` can be chosen.
StepAction openList(const QString& name, const QString& item);
/// Clicks `item` in the list that is open.
StepAction pickItem(const QString& name, const QString& item);

/// Makes `item` the one that is shown in a combo box, as a program may also when it is greyed.
StepAction setItem(const QString& name, const QString& item);

/// Saves a picture of a widget; without a name, of the host's window.
StepAction picture(const QString& file, const QString& name);

}  // namespace StepActions
