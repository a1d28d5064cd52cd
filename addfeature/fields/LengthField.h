#pragma once

#include "addfeature/fields/UnitField.h"

/// A length within bounds, the minimum of which is 0. A refusal leaves "0" in field and record.
class LengthField final : public UnitField {
public:
    /// `text` is shown at first, in mil or inch.
    LengthField(DialogDoor& door, QWidget* page, const Details& details, const QString& text,
                Unit unit = Unit::Mil);

private:
    void takeText(const QString& text) override;
};
