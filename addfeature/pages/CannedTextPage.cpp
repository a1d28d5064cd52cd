#include "addfeature/pages/CannedTextPage.h"

#include "addfeature/pages/PlotStampPage.h"

#include <QHBoxLayout>
#include <QLabel>

CannedTextPage::CannedTextPage(DialogDoor& door, PlotStampPage& plotStamp, QWidget* parent)
    : Page(door, "m_pCannedTextPage", parent), m_plotStamp(plotStamp)
{
    m_pCannedHoleSizeCMB->label()->setObjectName(QStringLiteral("m_pCannedTypeLB"));

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_pCannedHoleSizeCMB->label());
    row->addWidget(m_pCannedHoleSizeCMB);
    row->addWidget(m_pCannedHoleSizeLE, 1);
    row->addWidget(m_pCannedHoleSizeLE->unitLabel());
}

void CannedTextPage::chooseHoleMode()
{
    m_plotStamp.m_pOrbotechZoomCMB->storeChoice();
    m_pCannedHoleSizeCMB->change();
}
