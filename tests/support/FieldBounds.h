#pragma once

#include "BoxText.h"

/// What a field of the dialog accepts, in mil or as a plain number: said here for all tests.
struct FieldBound {
    enum class Kind { Length, Coordinate, Number };

    const char* field;
    Kind kind;
    int minimum;
    int maximum;

    /// Refuses a value outside, in whatever unit.
    BoxText box() const;
    QString justAbove() const { return QString::number(maximum + 1); }
    QString justBelow() const { return QString::number(minimum - 1); }
};

namespace FieldBounds {

/// Null: the field has no bounds.
const FieldBound* find(const QString& field);
/// Ends the test if the field has none.
const FieldBound& of(const QString& field);

}  // namespace FieldBounds
