#pragma once

#include "addfeature/fields/Field.h"

#include <QPushButton>

/// A button that opens or starts something: it has no entry in the record.
class ButtonField final : public QPushButton, public Field {
public:
    ButtonField(DialogDoor& door, QWidget* page, const Details& details);

protected:
    void take() override {}
};
