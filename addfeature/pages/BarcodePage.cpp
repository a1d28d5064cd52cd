#include "addfeature/pages/BarcodePage.h"

#include <QGridLayout>
#include <QLabel>

BarcodePage::BarcodePage(DialogDoor& door, QWidget* parent) : Page(door, "m_pBarcodePage", parent)
{
    auto* const height = new QHBoxLayout;
    height->addWidget(m_pHeightLE);
    height->addWidget(m_pHeightLE->unitLabel());

    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    grid->addWidget(m_pAddStringCB, 0, 0);
    grid->addWidget(m_pPositionCMB, 0, 1);
    grid->addWidget(m_pBackgroundCB, 1, 0);
    grid->addWidget(m_pAddMarkersCB, 1, 1);
    grid->addWidget(m_pHeightLE->label(), 2, 0);
    grid->addLayout(height, 2, 1);
    grid->addWidget(m_pMatrixPB, 3, 0);
    grid->addWidget(m_pMatrixLE, 3, 1);
}

void BarcodePage::chooseBackground()
{
    m_pBackgroundCB->storeAs(m_pAddMarkersCB->isChecked());
}
