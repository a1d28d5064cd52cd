#pragma once

#include <QStringList>

class QAbstractItemView;
class QModelIndex;
class QWidget;

/// What a user does to a widget whose internals are not known.
namespace UserActions {

void pressKey(QWidget& widget, int key, const QString& text = QString());
void type(QWidget& widget, const QString& text);

/// Whether `window` has a list, with or without entries.
bool hasList(const QWidget& window);
/// The first list of `window` that has entries; null if there is none.
QAbstractItemView* listOf(const QWidget& window);
/// The entries of the list of `window`; empty if it has none.
QStringList namesIn(const QWidget& window);

/// Chooses the entry at `index` of `list` by Enter, by a click, by a double click, or by a button
/// of `window`, until `chosen` is not empty.
void choose(QWidget& window, QAbstractItemView& list, const QModelIndex& index,
            const QStringList& chosen);

/// Closes `window`, and runs its deferred deletions.
void close(QWidget& window);

}  // namespace UserActions
