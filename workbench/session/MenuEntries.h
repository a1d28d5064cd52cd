#pragma once

#include <QString>

class QAction;
class QMenu;
class QMenuBar;

/// The entries of menus, as sessions name them.
namespace MenuEntries {

/// The text without the mark of the mnemonic and without the shortcut.
QString text(const QAction* action);

/// The entry of that text, or of that object name, when it can be chosen; null with a reason
/// otherwise.
QAction* find(const QMenu* menu, const QString& entry, QString* reason);

/// The menu bar in which `menu` stands; null for one that stands in none.
QMenuBar* barOf(const QMenu* menu);

}  // namespace MenuEntries
