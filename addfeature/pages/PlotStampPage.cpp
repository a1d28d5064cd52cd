#include "addfeature/pages/PlotStampPage.h"

#include <QGridLayout>

PlotStampPage::PlotStampPage(DialogDoor& door, QWidget* parent)
    : Page(door, "m_pPlotStampPage", parent)
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    for (Field* const field : {m_pOrbotechTypeCMB, m_pOrbotechFontSizeCMB, m_pOrbotechZoomCMB}) {
        field->addRow(grid);
    }
}
