#pragma once

#include <QPointF>
#include <QString>

#include <optional>

/// Lengths and places as people type them, in micrometres. A number without a unit is in the unit
/// that the user has chosen.
namespace TypedPlace {

/// "12.5", "12.5 mm", "40mil".
std::optional<double> readLength(const QString& text);

/// "12.5 40", "12.5, 40 mm", "1mm 40mil". A number without a unit takes the other's.
std::optional<QPointF> readPlace(const QString& text);

}  // namespace TypedPlace
