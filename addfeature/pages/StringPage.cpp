#include "addfeature/pages/StringPage.h"

#include <QGridLayout>

StringPage::StringPage(DialogDoor& door, QWidget* parent) : Page(door, "m_pStringPage", parent)
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    for (Field* const field : {m_pXSizeLE, m_pYSizeLE, m_pLineWidthLE}) {
        field->addRow(grid);
    }
}
