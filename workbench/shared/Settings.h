#pragma once

#include <QString>
#include <QVariant>

/// What a program remembers from one start to the next, in one INI file. As long as no file is
/// named nothing is remembered, so that tests read nobody's settings. Needs the application object.
namespace Settings {

void keepIn(const QString& file);
/// The file; empty when there is none.
QString file();
/// The path beside it whose name is that of the file with `suffix`; empty when there is no file.
QString beside(const QString& suffix);

/// Invalid for what was not set.
QVariant value(const QString& key);
void set(const QString& key, const QVariant& value);

/// What the user chose with a control that shows how something is done: invalid while choices are
/// not remembered.
QVariant choice(const QString& name);
void choose(const QString& name, const QVariant& value);
/// From now on choices are neither read nor kept: a session does the same for everybody.
void ignoreChoices();

}  // namespace Settings
