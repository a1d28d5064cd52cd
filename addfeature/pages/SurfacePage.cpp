#include "addfeature/pages/SurfacePage.h"

#include "plugin/RecordKeys.h"

#include <QHBoxLayout>

SurfacePage::SurfacePage(DialogDoor& door, QWidget* parent)
    : Page(door, "m_pSurfacePage", parent),
      m_pSurfShapeCMB(add<ChoiceField>(
          Field::Details{"m_pSurfShapeCMB", Caption::spoken(QT_TR_NOOP("Surface shape")),
                         RecordKeys::surfaceShape, SLOT(on_SurfShape_ComboBox_Changed()),
                         Sends::Always},
          Choices{{QT_TR_NOOP("Rectangle"), SurfaceKind::rectangle},
                  {QT_TR_NOOP("Polygon"), SurfaceKind::polygon},
                  {QT_TR_NOOP("Circle"), SurfaceKind::circle}},
          ChoiceField::Stores::Text))
{
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_pSurfShapeCMB);
    row->addStretch();
}
