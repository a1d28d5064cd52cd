#pragma once

#include <QString>
#include <QVariant>

/// What a program remembers from one start to the next, in one INI file. As long as no file is
/// named nothing is remembered, so that tests read nobody's settings. Needs the application object.
namespace Settings {

void keepIn(const QString& file);
/// The file; empty when there is none.
QString file();

/// Invalid for what was not set.
QVariant value(const QString& key);
void set(const QString& key, const QVariant& value);

}  // namespace Settings
