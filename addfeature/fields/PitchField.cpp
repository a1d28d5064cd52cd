#include "addfeature/fields/PitchField.h"

#include "plugin/RecordValues.h"

PitchField::PitchField(DialogDoor& door, QWidget* page, const Details& details, bool isMetric)
    : UnitField(door, page, Pattern::Length, details, Unit::Mil, isMetric)
{
    start(RecordValues::zero);
}

void PitchField::take()
{
    setModified(false);
    if (text().isEmpty()) {
        setText(RecordValues::zero);
    }
    if (!m_door.checkCoordinate(text().toDouble())) {
        setText(RecordValues::zero);
        return;
    }
    storeLength();
    send();
}
