#include "addfeature/pages/PadPage.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>

namespace {

QGridLayout* createColumn(const std::initializer_list<Field*>& fields)
{
    auto* const grid = new QGridLayout;
    for (Field* const field : fields) {
        field->addRow(grid);
        if (!field->unitLabel()) {
            grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding), grid->rowCount() - 1, 2);
        }
    }
    grid->setColumnStretch(1, 1);
    return grid;
}

}  // namespace

PadPage::PadPage(DialogDoor& door, QWidget* parent) : Page(door, "m_pPadPage", parent)
{
    m_pDrilDyLE->setValidator(m_pDrilDxLE->validator());  // one for both

    auto* const line = new QFrame(this);
    line->setObjectName(QStringLiteral("m_pPadColumnsFrame"));
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    auto* const columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addLayout(createColumn({m_pDrilNxLE, m_pDrilDxLE, m_pDrilXsclLE}), 1);
    columns->addWidget(line);
    columns->addLayout(createColumn({m_pDrilNyLE, m_pDrilDyLE, m_pDrilYsclLE}), 1);
}
