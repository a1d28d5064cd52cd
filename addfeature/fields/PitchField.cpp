#include "addfeature/fields/PitchField.h"

#include "addfeature/record/ValueChecks.h"
#include "plugin/RecordValues.h"

PitchField::PitchField(DialogDoor& door, QWidget* page, const Details& details)
    : UnitField(door, page, Pattern::Length, details, Unit::AsShown)
{
    start(RecordValues::zero);
}

void PitchField::takeText(const QString& text)
{
    if (text.isEmpty()) {
        setText(RecordValues::zero);
    }
    if (!m_door.checks().coordinate(text.toDouble())) {
        setText(RecordValues::zero);
        return;
    }
    storeLength();
    send();
}
