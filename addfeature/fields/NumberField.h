#pragma once

#include "addfeature/fields/LineField.h"

/// A number without a unit, within bounds that the host checks; stored as typed. A refusal puts the
/// record's value back into the field.
class NumberField final : public LineField {
public:
    enum class Checked { AtEachChange, WhenFinished };
    /// What can be typed: what the host allows, or a number with a decimal point and without group
    /// separators, whatever the user's locale.
    enum class Typed { AsTheHostAllows, Whole, Decimal };

    NumberField(DialogDoor& door, QWidget* page, const Details& details, const QString& text,
                Checked checked, Typed typed);

private:
    void takeText(const QString& text) override;
    void restrictTo(QValidator* validator);
};
