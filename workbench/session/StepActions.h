#pragma once

#include "session/StepTable.h"

#include <QKeySequence>
#include <QPoint>

/// The actions of which steps are made. Each looks for its widget when it runs.
namespace StepActions {

/// A place on a widget; a null point stands for its centre.
struct Target {
    QString name;
    QPoint position;
    bool centre = true;
};
/// Of the words "NAME [x y]".
Target target(const QStringList& words);

StepAction click(const Target& target);
StepAction doubleClick(const Target& target);
StepAction rightClick(const Target& target);

/// In the menu that is open.
StepAction pickEntry(const QString& text);
StepAction dismissMenu();

/// Gives the widget the focus and types over its text.
StepAction type(const QString& name, const QString& text);
/// Gives the widget the focus, the cursor where it was, and presses a key.
StepAction key(const QString& name, const QKeySequence& combination);

/// Opens the list of a combo box in which `item` can be chosen.
StepAction openList(const QString& name, const QString& item);
/// Clicks `item` in the list that is open.
StepAction pickItem(const QString& name, const QString& item);

/// Saves a picture of a widget; without a name, of the host's window.
StepAction picture(const QString& file, const QString& name);

}  // namespace StepActions
