#pragma once

#include <QStringList>

class QWidget;

/// The names of board files as the user chooses them, and what is remembered of them.
namespace FileNames {

enum class Purpose { Open, Save, Export };

/// The file that the user chooses, beginning in the folder of the file that is `shown`, or without
/// one in that of the last file; `offered` is the suggested name. Empty: the user cancelled.
QString ask(Purpose purpose, const QString& shown, const QString& offered, QWidget* parent);

/// Puts the file first among the recent ones, and its folder before other folders.
void remember(const QString& file);
QStringList recent();

}  // namespace FileNames
