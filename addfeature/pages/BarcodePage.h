#pragma once

#include "addfeature/fields/ButtonField.h"
#include "addfeature/fields/ChoiceField.h"
#include "addfeature/fields/FlagField.h"
#include "addfeature/fields/LengthField.h"
#include "addfeature/fields/TextField.h"
#include "addfeature/pages/Page.h"
#include "plugin/RecordKeys.h"

#include <QCoreApplication>

/// The settings of a barcode. They are stored only, as Sends::Never says.
class BarcodePage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

    const FlagField::Values added = {Added::yes, Added::no};

public:
    explicit BarcodePage(DialogDoor& door, QWidget* parent = nullptr);

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
        Details{"m_pPositionCMB", Caption::spoken(QT_TR_NOOP("Position of the string")),
                RecordKeys::stringPosition, SLOT(on_m_pPositionCMB_ComboBox_Changed()),
                Sends::Never}
            .enabledBy(m_pAddStringCB, {Added::yes}),
        Choices{{QT_TR_NOOP("Top"), StringPosition::top},
                {QT_TR_NOOP("Bottom"), StringPosition::bottom}},
        ChoiceField::Stores::Text);
    FlagField* const m_pBackgroundCB = add<FlagField>(
        {"m_pBackgroundCB", Caption::own(QT_TR_NOOP("Background")), RecordKeys::addBackground,
         SLOT(on_m_pBackgroundCB_CheckState_Changed(int)), Sends::Never},
        false, added);
    FlagField* const m_pAddMarkersCB = add<FlagField>(
        Details{"m_pAddMarkersCB", Caption::own(QT_TR_NOOP("Add Markers")), RecordKeys::addMarkers,
                SLOT(on_m_pAddMarkersCB_CheckState_Changed(int)), Sends::Never}
            .enabledBy(m_pUPCCMB, {Symbology::ecc200}),
        false, added);
    LengthField* const m_pHeightLE = add<LengthField>(
        Details{"m_pHeightLE", Caption::label(QT_TR_NOOP("Height\t:")), RecordKeys::barcodeHeight,
                SLOT(on_m_pHeightLE_editingFinished()), Sends::Never}
            .within(0, 50000),
        QStringLiteral("250"), LengthField::Unit::MilByLabel);
    ButtonField* const m_pMatrixPB =
        add<ButtonField>(Details{"m_pMatrixPB", Caption::own(QT_TR_NOOP("Matrix\t:")), QString(),
                                 SLOT(on_m_pMatrixPB_clicked()), Sends::Never}
                             .enabledBy(m_pUPCCMB, {Symbology::ecc200}));
    TextField* const m_pMatrixLE = add<TextField>(
        Details{"m_pMatrixLE", Caption::spoken(QT_TR_NOOP("Matrix")), RecordKeys::barcodeMatrix,
                SLOT(on_m_pMatrixLE_editingFinished()), Sends::Never}
            .enabledBy(m_pUPCCMB, {Symbology::ecc200}),
        LineField::Pattern::Text, QStringLiteral("Minimal"));
};
