#pragma once

#include "addfeature/fields/Field.h"

#include <ui_api.h>

/// A text field, based on the host's line edit.
class LineField : public ZENTRA::UIAPI::ZTLineEdit, public Field {
public:
    /// What the host lets the user type, as the host's number for it.
    enum class Pattern { Length = 1, Decimal = 3, Text = 6 };

    /// Applies a finished entry. Called for each report of the field; see RefusalGuard.
    void finish();

    /// Restricts what can be typed to a regular expression, case sensitive and ASCII only.
    void setPattern(const char* expression);

protected:
    LineField(DialogDoor& door, QWidget* page, Pattern pattern, const Details& details);
};
