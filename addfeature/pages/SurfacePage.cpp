#include "addfeature/pages/SurfacePage.h"

#include <QHBoxLayout>

SurfacePage::SurfacePage(DialogDoor& door, QWidget* parent) : Page(door, "m_pSurfacePage", parent)
{
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_pSurfShapeCMB);
    row->addStretch();
}
