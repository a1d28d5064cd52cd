#pragma once

#include <QString>

class QWidget;

/// Finds widgets by object name in all windows of the program.
namespace WidgetFinder {

/// A visible widget is preferred to a hidden one, and one in the active window to others. Null when
/// there is none.
QWidget* find(const QString& name);

/// Why a user could not reach `widget` by mouse or keyboard now; empty if they could.
QString obstacle(const QWidget* widget);

/// Up to three names in use that are similar to `name`.
QStringList similarNames(const QString& name);

}  // namespace WidgetFinder
