#pragma once

#include "addfeature/fields/Field.h"

#include <ui_api.h>

class QValidator;

/// A text field, based on the host's line edit.
class LineField : public ZENTRA::UIAPI::ZTLineEdit, public Field {
public:
    /// What the host lets the user type, as the host's number for it.
    enum class Pattern { Length = 1, Decimal = 3, Text = 6 };

    /// Applies a finished entry. Called for each report of the field; see RefusalGuard.
    void finish();
    /// Applies `text`, which the field has just reported as a change.
    void change(const QString& text);

protected:
    LineField(DialogDoor& door, QWidget* page, Pattern pattern, const Details& details);

    /// Stores what was typed, or refuses it, and sends.
    virtual void takeText(const QString& text) = 0;

    /// Accepts a regular expression, case sensitive.
    QValidator* createValidator(const char* expression);

private:
    void take() final;
    void apply(const QString& text);
};
