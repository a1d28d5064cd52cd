#pragma once

#include <QString>

class QAction;
class QMenu;
class QMenuBar;

/// The entries of menus, as sessions name them.
namespace MenuEntries {

/// The text without mnemonic mark and shortcut.
QString text(const QAction* action);

/// The entry of that text, or of that object name, when it can be chosen; null with a reason
/// otherwise.
QAction* find(const QMenu* menu, const QString& entry, QString* reason);

/// The menu bar that holds `menu`; null if none does.
QMenuBar* barOf(const QMenu* menu);

}  // namespace MenuEntries
