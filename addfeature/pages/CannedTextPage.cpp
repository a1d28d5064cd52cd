#include "addfeature/pages/CannedTextPage.h"

#include "addfeature/pages/PlotStampPage.h"
#include "plugin/RecordKeys.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr double largestHoleSize = 50000.0;  // mil

}  // namespace

CannedTextPage::CannedTextPage(DialogDoor& door, PlotStampPage& plotStamp, QWidget* parent)
    : Page(door, "m_pCannedTextPage", parent),
      m_pCannedHoleSizeCMB(add<ChoiceField>(
          Field::Details{"m_pCannedHoleSizeCMB", Caption::label(QT_TR_NOOP("Type\t\t:")),
                         RecordKeys::cannedHoleMode,
                         SLOT(on_m_pCannedHoleSizeCMB_ComboBox_Changed()), Sends::Never},
          Choices{{QT_TR_NOOP("5 X 7"), CannedHoleMode::fiveBySeven},
                  {QT_TR_NOOP("6 X 7"), CannedHoleMode::sixBySeven}},
          ChoiceField::Stores::Text)),
      m_pCannedHoleSizeLE(add<LengthField>(
          Field::Details{"m_pCannedHoleSizeLE", Caption::spoken(QT_TR_NOOP("Hole size")),
                         RecordKeys::cannedHoleSize, SLOT(on_m_pCannedHoleSizeLE_editingFinished()),
                         Sends::Never},
          QStringLiteral("20"), largestHoleSize, LengthField::Unit::MilByLabel)),
      m_plotStamp(plotStamp)
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
