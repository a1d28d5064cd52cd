#pragma once

#include "addfeature/fields/UnitField.h"

/// A length from 0 to a bound. A refusal leaves "0" in field and record.
class LengthField final : public UnitField {
public:
    /// `text` is shown at first, in metric units if `isMetric`.
    LengthField(DialogDoor& door, QWidget* page, const Details& details, const QString& text,
                double largestInMil, Unit unit = Unit::Mil, bool isMetric = false);

protected:
    void take() override;

private:
    const double m_largest;
};
