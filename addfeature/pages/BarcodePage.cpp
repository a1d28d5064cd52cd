#include "addfeature/pages/BarcodePage.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

BarcodePage::BarcodePage(DialogDoor& door, QWidget* parent) : Page(door, "m_pBarcodePage", parent)
{
    m_pMatrixPB->setObjectName(QStringLiteral("m_pMatrixPB"));
    m_door.connectToSlot(m_pMatrixPB, SIGNAL(clicked()), SLOT(on_m_pMatrixPB_clicked()));
    m_pPositionCMB->setEnabled(false);
    enableMatrix(false);
    layOut();
    BarcodePage::retranslate();
}

void BarcodePage::layOut()
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

void BarcodePage::retranslate()
{
    Page::retranslate();
    m_pMatrixPB->setText(tr("Matrix\t:"));
}

void BarcodePage::chooseType()
{
    m_pUPCCMB->storeChoice();
    enableMatrix(m_pUPCCMB->is(Symbology::ecc200));
    m_pUPCCMB->send();
}

void BarcodePage::enableMatrix(bool enabled)
{
    m_pAddMarkersCB->setEnabled(enabled);
    m_pMatrixPB->setEnabled(enabled);
    m_pMatrixLE->setEnabled(enabled);
}

void BarcodePage::chooseString()
{
    m_pAddStringCB->change();
    m_pPositionCMB->setEnabled(m_pAddStringCB->isChecked());
}

void BarcodePage::chooseBackground()
{
    m_pBackgroundCB->storeAs(m_pAddMarkersCB->isChecked());
    m_pBackgroundCB->send();
}
