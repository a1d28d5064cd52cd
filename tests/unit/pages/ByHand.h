#pragma once

#include <QComboBox>

/// The ways in which a hand chooses from a combo box.
namespace ByHand {

/// Opens the list and clicks on the item.
void click(QComboBox& combo, const QString& item);
/// Opens the list, goes down to the item by the arrow key from the first one and presses Enter.
void goDown(QComboBox& combo, const QString& item);
/// Types the item's first word, and then its first letter as often as there are items.
void typeAhead(QComboBox& combo, const QString& item);
void press(QComboBox& combo, Qt::Key key, int times = 1);
/// Turns the wheel down by as many notches.
void turnWheel(QComboBox& combo, int notches = 1);

}  // namespace ByHand
