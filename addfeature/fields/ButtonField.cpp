#include "addfeature/fields/ButtonField.h"

ButtonField::ButtonField(DialogDoor& door, QWidget* page, const Details& details)
    : QPushButton(page), Field(door, this, page, details)
{
    retranslate();
    complete(SIGNAL(clicked()));
}
