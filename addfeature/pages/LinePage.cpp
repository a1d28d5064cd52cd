#include "addfeature/pages/LinePage.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

QWidget* createGroup(const char* name, QWidget* page)
{
    auto* const group = new QWidget(page);
    group->setObjectName(QLatin1String(name));
    auto* const rows = new QVBoxLayout(group);
    rows->setContentsMargins(0, 0, 0, 0);
    return group;
}

void addGrid(QWidget* group, const std::initializer_list<Field*>& fields)
{
    auto* const grid = new QGridLayout;
    for (Field* const field : fields) {
        field->addRow(grid);
    }
    grid->setColumnStretch(1, 1);
    static_cast<QVBoxLayout*>(group->layout())->addLayout(grid);
}

}  // namespace

LinePage::LinePage(DialogDoor& door, QWidget* parent)
    : Page(door, "m_pLinePage", parent),
      m_pDirectionGroup(createGroup("m_pDirectionGroup", this)),
      m_pCornerGroup(createGroup("m_pCornerGroup", this)),
      m_pSlotGroup(createGroup("m_pSlotGroup", this))
{
    layOutDirection();
    layOutCorner();
    layOutSlot();

    auto* const kindRow = new QHBoxLayout;
    kindRow->addWidget(m_pLineCMB);
    kindRow->addWidget(m_pClosedCB);
    kindRow->addStretch();
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(kindRow);
    for (QWidget* const group : {m_pDirectionGroup, m_pCornerGroup, m_pSlotGroup}) {
        rows->addWidget(group);
    }
}

void LinePage::layOutDirection()
{
    auto* const angleRow = new QHBoxLayout;
    angleRow->addStretch();
    angleRow->addWidget(m_pAngleLE->label());
    angleRow->addWidget(m_pAngleLE);
    QHBoxLayout* const directionRow = m_pDirectionBG->createRow();
    directionRow->setSpacing(0);  // six of them just fit
    auto* const rows = static_cast<QVBoxLayout*>(m_pDirectionGroup->layout());
    rows->addLayout(directionRow);
    rows->addLayout(angleRow);
}

void LinePage::layOutCorner()
{
    addGrid(m_pCornerGroup, {m_pCornerTypeCMB, m_pCornerRadiusLE});
    m_pCornerGroup->hide();
}

void LinePage::layOutSlot()
{
    addGrid(m_pSlotGroup, {m_pLengthLE, m_pSlotAngleLE, m_pSlotDecodeLE});
    m_pSlotGroup->layout()->addWidget(m_pSlotPlatedCMB);
    m_pSlotGroup->hide();
}

void LinePage::chooseKind()
{
    if (!m_door.restoreCommonRows()) {
        return;
    }
    if (m_pLineCMB->storeChoice()) {
        showKind();
    }
    m_pLineCMB->send();
}

void LinePage::showKind()
{
    const bool isRectangle = m_pLineCMB->is(LineKind::rectangle);
    const bool isSlot = m_pLineCMB->is(LineKind::slot);
    if (isSlot) {
        m_door.hideAttributeRows();
    }
    m_door.hidePlacementRows();

    m_pLineCMB->enableOthers();
    m_pDirectionGroup->setVisible(!isRectangle && !isSlot);
    m_pCornerGroup->setVisible(isRectangle);
    m_pSlotGroup->setVisible(isSlot);
}
