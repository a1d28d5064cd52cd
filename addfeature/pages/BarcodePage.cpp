#include "addfeature/pages/BarcodePage.h"

#include "plugin/RecordKeys.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr double largestHeight = 50000.0;  // mil

const FlagField::Values added = {Added::yes, Added::no};

}  // namespace

BarcodePage::BarcodePage(DialogDoor& door, QWidget* parent)
    : Page(door, "m_pBarcodePage", parent),
      m_pUPCCMB(add<ChoiceField>(
          Field::Details{"m_pUPCCMB", Caption::spoken(QT_TR_NOOP("Barcode type")),
                         RecordKeys::barcodeMode, SLOT(on_UPC_ComboBox_Changed()), Sends::Never},
          Choices{{QT_TR_NOOP("UPC39"), Symbology::upc39},
                  {QT_TR_NOOP("UPC39 ascii"), Symbology::upc39Ascii},
                  {QT_TR_NOOP("CODE128B"), Symbology::code128B},
                  {QT_TR_NOOP("CODE128C"), Symbology::code128C},
                  {QT_TR_NOOP("ECC-200"), Symbology::ecc200}},
          ChoiceField::Stores::TextThenNumber)),
      m_pAddStringCB(
          add<FlagField>(Field::Details{"m_pAddStringCB", Caption::own(QT_TR_NOOP("Add String")),
                                        RecordKeys::addString,
                                        SLOT(on_AddString_CheckState_Changed(int)), Sends::Never},
                         false, added)),
      m_pPositionCMB(add<ChoiceField>(
          Field::Details{"m_pPositionCMB", Caption::spoken(QT_TR_NOOP("Position of the string")),
                         RecordKeys::stringPosition, SLOT(on_m_pPositionCMB_ComboBox_Changed()),
                         Sends::Never},
          Choices{{QT_TR_NOOP("Top"), StringPosition::top},
                  {QT_TR_NOOP("Bottom"), StringPosition::bottom}},
          ChoiceField::Stores::Text)),
      m_pBackgroundCB(add<FlagField>(
          Field::Details{"m_pBackgroundCB", Caption::own(QT_TR_NOOP("Background")),
                         RecordKeys::addBackground,
                         SLOT(on_m_pBackgroundCB_CheckState_Changed(int)), Sends::Never},
          false, added)),
      m_pAddMarkersCB(add<FlagField>(
          Field::Details{"m_pAddMarkersCB", Caption::own(QT_TR_NOOP("Add Markers")),
                         RecordKeys::addMarkers, SLOT(on_m_pAddMarkersCB_CheckState_Changed(int)),
                         Sends::Never},
          false, added)),
      m_pHeightLE(
          add<LengthField>(Field::Details{"m_pHeightLE", Caption::label(QT_TR_NOOP("Height\t:")),
                                          RecordKeys::barcodeHeight,
                                          SLOT(on_m_pHeightLE_editingFinished()), Sends::Never},
                           QStringLiteral("250"), largestHeight, LengthField::Unit::MilByLabel)),
      m_pMatrixPB(new QPushButton(this)),
      m_pMatrixLE(
          add<TextField>(LineField::Pattern::Text,
                         Field::Details{"m_pMatrixLE", Caption::spoken(QT_TR_NOOP("Matrix")),
                                        RecordKeys::barcodeMatrix,
                                        SLOT(on_m_pMatrixLE_editingFinished()), Sends::Never},
                         QStringLiteral("Minimal")))
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
