#include "addfeature/pages/Page.h"

Page::Page(DialogDoor& door, const char* name, QWidget* parent) : QWidget(parent), m_door(door)
{
    setObjectName(QLatin1String(name));
}

void Page::retranslate()
{
    for (Field* const field : m_fields) {
        field->retranslate();
    }
}

void Page::changeUnit(bool isMetric)
{
    for (Field* const field : m_fields) {
        field->changeUnit(isMetric);
    }
}
