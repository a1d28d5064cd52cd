#include "addfeature/pages/ArcPage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

ArcPage::ArcPage(DialogDoor& door, QWidget* parent) : Page(door, "m_pArcPage", parent)
{
    auto* const firstRow = new QHBoxLayout;
    firstRow->addWidget(m_pArcAndCircleCMB);
    firstRow->addWidget(m_pClockWiseCB);
    firstRow->addStretch();
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(firstRow);
    rows->addWidget(m_pArcCMB);
    rows->addWidget(m_pCircleCMB);
}
