#pragma once

#include <QStringList>

class QWidget;

/// The names of board files as the user chooses them, and what is remembered of them.
namespace FileNames {

enum class Purpose { Open, Save, Export };

/// The file that the user chooses, beginning in the folder of the last one; `offered` is the
/// suggested name. The suffix of the chosen kind is added to a name without one.
/// Empty: the user cancelled.
QString ask(Purpose purpose, const QString& offered, QWidget* parent);

/// Puts the file first among the recent ones.
void remember(const QString& file);
QStringList recent();

}  // namespace FileNames
