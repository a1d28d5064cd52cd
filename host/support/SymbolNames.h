#pragma once

// How standard symbol names are built.

#include <QString>
#include <QStringList>

#include <optional>

namespace CanvasHost {

/// The shapes of symbols. A special one has a name without sizes, which is not a standard name.
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
    QStringList sizes;  ///< unsigned decimals, as written in the name
    QString rotation;   ///< "_45", or empty
};

/// Nothing for a name whose prefix is not a standard one, or that has the wrong number of sizes for
/// its shape. The values of the sizes are not checked.
std::optional<SymbolName> parseSymbolName(const QString& name);

}  // namespace CanvasHost
