#include "addfeature/pages/SurfacePage.h"

#include "addfeature/FeatureRecord.h"
#include "addfeature/PageHost.h"
#include "addfeature/pages/Choices.h"
#include "plugin/RecordKeys.h"

#include <QComboBox>
#include <QHBoxLayout>

namespace {

const Choices shapes = {
    {QT_TRANSLATE_NOOP("AddFeature", "Rectangle"), RecordValues::one},
    {QT_TRANSLATE_NOOP("AddFeature", "Polygon"), RecordValues::two},
    {QT_TRANSLATE_NOOP("AddFeature", "Circle"), RecordValues::three},
};

}  // namespace

SurfacePage::SurfacePage(PageHost& host, QWidget* parent)
    : Page(host, parent), m_shape(new QComboBox(this))
{
    setObjectName(QStringLiteral("m_pSurfacePage"));
    m_shape->setObjectName(QStringLiteral("m_pSurfShapeCMB"));
    fillChoices(m_shape, shapes);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_shape);
    row->addStretch();

    retranslate();
    m_host.record().set(RecordKeys::surfaceShape, RecordValues::one);
    connect(m_shape, SIGNAL(currentIndexChanged(QString)), m_host.slotOwner(),
            SLOT(on_SurfShape_ComboBox_Changed()));
}

void SurfacePage::retranslate()
{
    retranslateChoices(m_shape, shapes);
    m_shape->setAccessibleName(tr("Surface shape"));
}

void SurfacePage::shapeChanged()
{
    if (const Choice* choice = currentChoice(m_shape, shapes)) {
        m_host.record().set(RecordKeys::surfaceShape, choice->value);
    }
    m_host.sendRecord();
}
