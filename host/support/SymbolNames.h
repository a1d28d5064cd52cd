#pragma once

// How standard symbol names are built.

#include <QString>
#include <QStringList>

#include <optional>

namespace CanvasHost {

/// The shapes of symbols. A special one has a name without sizes in it, which is no standard name.
enum class SymbolShape {
    Round,
    Square,
    Rectangle,
    Oval,
    Diamond,
    Octagon,
    Hexagon,
    Triangle,
    Ellipse,
    RoundRing,
    SquareRing,
    Special,
};

constexpr bool isRing(SymbolShape shape)
{
    return shape == SymbolShape::RoundRing || shape == SymbolShape::SquareRing;
}

/// A standard symbol name taken apart: prefix, sizes joined by "x", rotation suffix.
struct SymbolName {
    SymbolShape shape = SymbolShape::Special;
    QString prefix;
    QStringList sizes;  ///< unsigned decimals, as they stand in the name
    QString rotation;   ///< "_45", or empty
};

/// Nothing for a name whose prefix is no standard one, or whose sizes are not as many as its shape
/// takes. The values of the sizes are not judged.
std::optional<SymbolName> parseSymbolName(const QString& name);

}  // namespace CanvasHost
