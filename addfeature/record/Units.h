#pragma once

#include <QString>

/// Converts lengths from what the user typed to what the record holds.
namespace Units {

/// Mil to micrometre, and inch to millimetre.
constexpr double factor = 25.4;

/// General notation with at most 6 significant digits: the form of every computed value.
QString format(double value);

/// What the record holds for a length typed as `text`: the text itself in metric units, otherwise
/// its value times 25.4.
QString toStored(const QString& text, bool isMetric);

/// The label of a length in mil or micrometres ("mil", "my"), and of one in inch or millimetres.
QString lengthLabel(bool isMetric);
QString largeLengthLabel(bool isMetric);

}  // namespace Units
