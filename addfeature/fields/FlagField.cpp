#include "addfeature/fields/FlagField.h"

FlagField::FlagField(DialogDoor& door, QWidget* page, const Details& details, bool isOn,
                     const Values& values)
    : QCheckBox(page), Field(door, this, page, details), m_values(values)
{
    setChecked(isOn);
    storeAs(isOn);
    retranslate();
    complete(SIGNAL(stateChanged(int)));
}

bool FlagField::is(const QString& value) const
{
    return value == (isChecked() ? m_values.on : m_values.off);
}

void FlagField::storeAs(bool isOn)
{
    store(isOn ? m_values.on : m_values.off);
}

void FlagField::take()
{
    storeAs(isChecked());
    enableOthers();
    send();
}
