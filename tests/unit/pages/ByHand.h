#pragma once

#include <QComboBox>

/// The ways in which a user chooses from a combo box.
namespace ByHand {

/// Opens the list and clicks on the item.
void click(QComboBox& combo, const QString& item);
/// Opens the list, goes down from the first item with the arrow key and presses Enter.
void goDown(QComboBox& combo, const QString& item);
/// Types the item's first word, and then its first letter as often as there are items.
void typeAhead(QComboBox& combo, const QString& item);
void press(QComboBox& combo, Qt::Key key, int times = 1);
/// Turns the wheel down by that many notches.
void turnWheel(QComboBox& combo, int notches = 1);

}  // namespace ByHand
