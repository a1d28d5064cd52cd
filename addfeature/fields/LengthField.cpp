#include "addfeature/fields/LengthField.h"

#include "plugin/RecordValues.h"

LengthField::LengthField(DialogDoor& door, QWidget* page, const Details& details,
                         const QString& text, double largestInMil, Unit unit, bool isMetric)
    : UnitField(door, page, Pattern::Decimal, details, unit, isMetric), m_largest(largestInMil)
{
    start(text);
}

void LengthField::take()
{
    setModified(false);
    const bool isAccepted = m_door.checkLength(text(), m_largest);
    if (isAccepted) {
        storeLength();
    } else {
        setText(RecordValues::zero);
        store(RecordValues::zero);
    }
    send(isAccepted);
}
