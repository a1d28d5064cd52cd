#pragma once

#include <QPointF>
#include <QString>

#include <optional>

/// Lengths and places as people type them, in micrometres. A number without a unit is in the unit
/// that the user has chosen.
namespace TypedPlace {

/// "12.5", "12.5 mm", "40mil".
std::optional<double> readLength(const QString& text);

struct Place {
    QPointF point;
    bool isRelative = false;  ///< seen from the last point
};

/// "12.5 40", "12.5, 40 mm", "1mm 40mil"; "@5 -5" is relative. A number without a unit takes the
/// other's. A sign + is taken only where the place is relative: elsewhere it is not clear that the
/// place is not meant to be.
std::optional<Place> readPlace(const QString& text);

/// Whether a board may reach that far.
bool isOnBoard(const QPointF& point);

}  // namespace TypedPlace
