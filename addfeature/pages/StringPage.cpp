#include "addfeature/pages/StringPage.h"

#include "addfeature/record/Units.h"

#include <QGridLayout>

StringPage::StringPage(DialogDoor& door, QWidget* parent) : Page(door, "m_pStringPage", parent)
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    for (Field* const field : {m_pXSizeLE, m_pYSizeLE, m_pLineWidthLE}) {
        field->addRow(grid);
    }
}

/// Starts in the unit that the host shows; a field that starts in mil accepts plain numbers only.
LengthField* StringPage::addSize(const Field::Details& details, double mils)
{
    const bool isMetric = isShownMetric(m_door);
    auto* const field =
        add<LengthField>(details, Units::format(isMetric ? mils * Units::factor : mils),
                         largestSize, LengthField::Unit::Mil, isMetric);
    if (!isMetric) {
        field->setPattern("^[0-9]*(\\.[0-9]+)?$");
    }
    return field;
}
