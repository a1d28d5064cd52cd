#include "addfeature/pages/CannedTextPage.h"

#include "addfeature/FeatureRecord.h"
#include "addfeature/PageHost.h"
#include "addfeature/Units.h"
#include "addfeature/pages/Choices.h"
#include "addfeature/pages/Entries.h"
#include "addfeature/pages/Fields.h"
#include "addfeature/pages/PlotStampPage.h"
#include "plugin/RecordKeys.h"

#include <ui_api.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr double largestHoleSize = 50000.0;

const Choices holeModes = {
    {QT_TRANSLATE_NOOP("AddFeature", "5 X 7"), RecordValues::one},
    {QT_TRANSLATE_NOOP("AddFeature", "6 X 7"), RecordValues::two},
};

}  // namespace

CannedTextPage::CannedTextPage(PageHost& host, const PlotStampPage& plotStamp, QWidget* parent)
    : Page(host, parent),
      m_plotStamp(plotStamp),
      m_holeMode(new QComboBox(this)),
      m_holeSize(Fields::create(host, Fields::Pattern::Decimal,
                                QStringLiteral("m_pCannedHoleSizeLE"), this)),
      m_typeLabel(Fields::createLabel(QStringLiteral("m_pCannedTypeLB"), this, m_holeMode)),
      m_holeSizeUnit(Fields::createLabel(QStringLiteral("m_pCannedHoleSizeUnitLB"), this))
{
    setObjectName(QStringLiteral("m_pCannedTextPage"));
    m_holeMode->setObjectName(QStringLiteral("m_pCannedHoleSizeCMB"));
    fillChoices(m_holeMode, holeModes);
    m_holeSize->setText(QStringLiteral("20"));

    layOut();
    retranslate();
    writeDefaults();
    connectControls();
}

void CannedTextPage::layOut()
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_typeLabel);
    row->addWidget(m_holeMode);
    row->addWidget(m_holeSize, 1);
    row->addWidget(m_holeSizeUnit);
}

void CannedTextPage::writeDefaults()
{
    m_host.record().set(RecordKeys::cannedHoleMode, RecordValues::one);
    // The first size is one in mil, whatever the unit.
    m_host.record().set(RecordKeys::cannedHoleSize, Units::toStored(m_holeSize->text(), false));
}

void CannedTextPage::connectControls()
{
    QObject* const owner = m_host.slotOwner();
    connect(m_holeMode, SIGNAL(currentIndexChanged(QString)), owner,
            SLOT(on_m_pCannedHoleSizeCMB_ComboBox_Changed()));
    connect(m_holeSize, SIGNAL(editingFinished()), owner,
            SLOT(on_m_pCannedHoleSizeLE_editingFinished()));
}

void CannedTextPage::retranslate()
{
    retranslateChoices(m_holeMode, holeModes);
    m_typeLabel->setText(tr("Type\t\t:"));
    m_holeSize->setAccessibleName(tr("Hole size"));
    m_holeSizeUnit->setText(tr("mil"));
}

void CannedTextPage::changeUnit(bool isMetric)
{
    m_holeSize->changeunit(isMetric);  // the label beside it reads "mil" in both
}

void CannedTextPage::holeModeChanged()
{
    m_host.record().set(RecordKeys::orbotechZoom, m_plotStamp.zoom());
    if (const Choice* choice = currentChoice(m_holeMode, holeModes)) {
        m_host.record().set(RecordKeys::cannedHoleMode, choice->value);
    }
}

void CannedTextPage::holeSizeEdited()
{
    finishLength(m_host, {m_holeSize, RecordKeys::cannedHoleSize, largestHoleSize, false, false});
}
