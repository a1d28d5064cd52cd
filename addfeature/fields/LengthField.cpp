#include "addfeature/fields/LengthField.h"

#include "addfeature/record/ValueChecks.h"
#include "plugin/RecordValues.h"

LengthField::LengthField(DialogDoor& door, QWidget* page, const Details& details,
                         const QString& text, Unit unit)
    : UnitField(door, page, Pattern::Decimal, details, unit)
{
    start(text);
}

void LengthField::takeText(const QString& text)
{
    const bool isAccepted = m_door.checks().length(text, m_details.m_bounds.maximum);
    if (isAccepted) {
        storeLength();
    } else {
        setText(RecordValues::zero);
        store(RecordValues::zero);
    }
    send(isAccepted);
}
