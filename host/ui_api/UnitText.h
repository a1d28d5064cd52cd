#pragma once

#include <LengthUnits.h>

#include <QString>

namespace CanvasHost {

/// Mil to micrometre, and inch to millimetre.
constexpr double metricFactor = micrometresOfMil;

/// Whether the user works in metric units.
bool isMetric();

/// The number in `text`, converted to the other unit: at least 6 significant digits, and as many
/// more as it takes to get back to the same number (at most 15), no exponent, no trailing zeros.
/// Null if the text is not a finite number.
QString convertNumber(const QString& text, bool toMetric);

}  // namespace CanvasHost
