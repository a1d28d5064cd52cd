#pragma once

#include "addfeature/fields/UnitField.h"

/// The distance between neighbours along one axis, signed. A refusal leaves "0" in the field; the
/// record keeps the old pitch.
class PitchField final : public UnitField {
public:
    /// `isMetric` decides which unit the label names at first.
    PitchField(DialogDoor& door, QWidget* page, const Details& details, bool isMetric);

protected:
    void take() override;
};
