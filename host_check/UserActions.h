#pragma once

#include <QStringList>

#include <functional>

class QAbstractItemView;
class QModelIndex;
class QWidget;

/// What a user does to a widget whose internals are not known.
namespace UserActions {

/// The first list of `window` that has entries; null if there is none.
QAbstractItemView* listOf(const QWidget& window);
/// The entries of the list of `window`; empty if it has none.
QStringList namesIn(const QWidget& window);

/// Chooses the entry at `index` of `list` by Enter, by a click, by a double click, or by a button
/// of `window`, until `isChosen` says so.
void choose(QWidget& window, QAbstractItemView& list, const QModelIndex& index,
            const std::function<bool()>& isChosen);

/// Closes `window`, and runs its deferred deletions.
void close(QWidget& window);

/// Whether it is one of the windows that the host supplies.
bool isHostWindow(const QWidget& window);

}  // namespace UserActions
