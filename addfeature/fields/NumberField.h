#pragma once

#include "addfeature/fields/LineField.h"

/// A number without a unit, within bounds that the host checks; stored as typed. A refusal puts the
/// record's value back into the field.
class NumberField final : public LineField {
public:
    enum class Checked { AtEachChange, WhenFinished };
    struct Bounds {
        double least;
        double most;
    };

    NumberField(DialogDoor& door, QWidget* page, const Details& details, const QString& text,
                Bounds bounds, Checked checked);

    /// Stores `text`, which the field has just reported.
    void change(const QString& text);

protected:
    void take() override;

private:
    void takeText(const QString& text);

    const Bounds m_bounds;
};
