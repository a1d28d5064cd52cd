#pragma once

#include <LengthUnits.h>

#include <QString>

namespace CanvasHost {

/// Mil to micrometre, and inch to millimetre.
constexpr double metricFactor = micrometresOfMil;

/// Whether the user works in metric units.
bool isMetric();

/// The number in `text`, written in the other unit: at least 6 significant digits, as many more as
/// it takes to get back to the same number (at most 15), no exponent, no needless zeros. Null when
/// the text is not a finite number.
QString convertNumber(const QString& text, bool toMetric);

}  // namespace CanvasHost
