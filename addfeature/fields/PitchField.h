#pragma once

#include "addfeature/fields/UnitField.h"

/// The distance between neighbours along one axis, signed, at first "0". A refusal leaves "0" in
/// the field; the record keeps the old pitch.
class PitchField final : public UnitField {
public:
    PitchField(DialogDoor& door, QWidget* page, const Details& details);

private:
    void takeText(const QString& text) override;
};
