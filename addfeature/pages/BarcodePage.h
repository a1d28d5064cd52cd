#pragma once

#include "addfeature/fields/ChoiceField.h"
#include "addfeature/fields/FlagField.h"
#include "addfeature/fields/LengthField.h"
#include "addfeature/fields/TextField.h"
#include "addfeature/pages/Page.h"
#include "plugin/RecordKeys.h"

#include <QCoreApplication>
#include <QPushButton>

/// The settings of a barcode. They are stored only: they travel with the next record that another
/// control sends.
class BarcodePage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

    static constexpr double largestHeight = 50000.0;  // mil
    const FlagField::Values added = {Added::yes, Added::no};

public:
    explicit BarcodePage(DialogDoor& door, QWidget* parent = nullptr);

    void retranslate() override;

    /// Markers and matrix belong to the only code that is a matrix.
    void chooseType();
    /// Only a string that is added has a position.
    void chooseString();
    /// Deliberately not the Background box itself: the one for the markers decides.
    void chooseBackground();

    /// Not in the layout of this page: the text page places it beside the format.
    ChoiceField* const m_pUPCCMB =
        add<ChoiceField>({"m_pUPCCMB", Caption::spoken(QT_TR_NOOP("Barcode type")),
                          RecordKeys::barcodeMode, SLOT(on_UPC_ComboBox_Changed()), Sends::Never},
                         Choices{{QT_TR_NOOP("UPC39"), Symbology::upc39},
                                 {QT_TR_NOOP("UPC39 ascii"), Symbology::upc39Ascii},
                                 {QT_TR_NOOP("CODE128B"), Symbology::code128B},
                                 {QT_TR_NOOP("CODE128C"), Symbology::code128C},
                                 {QT_TR_NOOP("ECC-200"), Symbology::ecc200}},
                         ChoiceField::Stores::TextThenNumber);
    FlagField* const m_pAddStringCB = add<FlagField>(
        {"m_pAddStringCB", Caption::own(QT_TR_NOOP("Add String")), RecordKeys::addString,
         SLOT(on_AddString_CheckState_Changed(int)), Sends::Never},
        false, added);
    ChoiceField* const m_pPositionCMB = add<ChoiceField>(
        {"m_pPositionCMB", Caption::spoken(QT_TR_NOOP("Position of the string")),
         RecordKeys::stringPosition, SLOT(on_m_pPositionCMB_ComboBox_Changed()), Sends::Never},
        Choices{{QT_TR_NOOP("Top"), StringPosition::top},
                {QT_TR_NOOP("Bottom"), StringPosition::bottom}},
        ChoiceField::Stores::Text);
    FlagField* const m_pBackgroundCB = add<FlagField>(
        {"m_pBackgroundCB", Caption::own(QT_TR_NOOP("Background")), RecordKeys::addBackground,
         SLOT(on_m_pBackgroundCB_CheckState_Changed(int)), Sends::Never},
        false, added);
    FlagField* const m_pAddMarkersCB = add<FlagField>(
        {"m_pAddMarkersCB", Caption::own(QT_TR_NOOP("Add Markers")), RecordKeys::addMarkers,
         SLOT(on_m_pAddMarkersCB_CheckState_Changed(int)), Sends::Never},
        false, added);
    LengthField* const m_pHeightLE = add<LengthField>(
        {"m_pHeightLE", Caption::label(QT_TR_NOOP("Height\t:")), RecordKeys::barcodeHeight,
         SLOT(on_m_pHeightLE_editingFinished()), Sends::Never},
        QStringLiteral("250"), largestHeight, LengthField::Unit::MilByLabel);
    QPushButton* const m_pMatrixPB = new QPushButton(this);
    TextField* const m_pMatrixLE = add<TextField>(
        {"m_pMatrixLE", Caption::spoken(QT_TR_NOOP("Matrix")), RecordKeys::barcodeMatrix,
         SLOT(on_m_pMatrixLE_editingFinished()), Sends::Never},
        LineField::Pattern::Text, QStringLiteral("Minimal"));

private:
    void layOut();
    void enableMatrix(bool enabled);
};
