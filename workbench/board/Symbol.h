#pragma once

#include <SymbolNames.h>

#include <QPainterPath>
#include <QString>

#include <vector>

namespace Pcb {

using CanvasHost::SymbolShape;

/// What the name of a symbol says. Of a special one the shape is not known; a placeholder stands
/// for it.
struct Symbol {
    SymbolShape shape = SymbolShape::Special;
    double width = 0;     ///< micrometres
    double height = 0;    ///< micrometres
    double detail = 0;    ///< micrometres: cut of a corner, or inner size of a ring
    double rotation = 0;  ///< degrees counterclockwise, of a name that ends in "_45"
};

/// The largest size that a name may ask for, in mil.
constexpr double largestSymbolSize = 50000;

/// Parses a symbol name; its sizes are mil. A name that is not standard, or asks for a size of 0,
/// one above the largest, or a ring whose hole is not smaller than the ring, is a special symbol.
Symbol parseSymbol(const QString& name);

/// The covered area in micrometres, centred at the origin, filled by the odd-even rule.
QPainterPath symbolShape(const Symbol& symbol);
QPainterPath symbolShape(const QString& name);

/// A standard name without its rotation suffix; any other name as it is.
QString withoutRotation(const QString& name);

}  // namespace Pcb
