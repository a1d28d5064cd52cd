#pragma once

#include "addfeature/fields/NumberField.h"
#include "addfeature/fields/PitchField.h"
#include "addfeature/pages/Page.h"
#include "plugin/RecordKeys.h"

#include <QCoreApplication>

/// An array of pads: the count, the pitch and a factor along each axis.
class PadPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

    // A lone "0" does not match, though the field itself writes it.
    static constexpr char pitchPattern[] =
        "[-]?[1-9][0-9]{0,14}|[-]?[0][.][0-9]{0,5}|[-]?[1-9][0-9]{0,}[.][0-9]{1,5}|^$";

public:
    explicit PadPage(DialogDoor& door, QWidget* parent = nullptr);

    // Four of their slots run on each change of the text, whatever their names say.
    NumberField* const m_pDrilNxLE = add<NumberField>(
        Details{"m_pDrilNxLE", Caption::label(QT_TR_NOOP("Nx   : ")), RecordKeys::padNx,
                SLOT(on_m_pDrilNxLE_editingFinished(const QString&)), Sends::WhenAccepted}
            .within(0, 50),
        RecordValues::one, NumberField::Checked::AtEachChange, NumberField::Typed::Whole);
    PitchField* const m_pDrilDxLE = add<PitchField>(
        Details{"m_pDrilDxLE", Caption::label(QT_TR_NOOP("Dx   : ")), RecordKeys::padDx,
                SLOT(on_m_pDrilDxLE_editingFinished()), Sends::WhenAccepted}
            .pattern(pitchPattern));
    NumberField* const m_pDrilXsclLE = add<NumberField>(
        Details{"m_pDrilXsclLE", Caption::label(QT_TR_NOOP("Xscl : ")), RecordKeys::padXscl,
                SLOT(on_m_pDrilXsclLE_editingFinished(const QString&)), Sends::WhenAccepted}
            .within(-100, 100),
        RecordValues::one, NumberField::Checked::AtEachChange, NumberField::Typed::Decimal);
    NumberField* const m_pDrilNyLE = add<NumberField>(
        Details{"m_pDrilNyLE", Caption::label(QT_TR_NOOP("Ny   : ")), RecordKeys::padNy,
                SLOT(on_m_pDrilNyLE_editingFinished(const QString&)), Sends::WhenAccepted}
            .within(0, 50),
        RecordValues::one, NumberField::Checked::AtEachChange, NumberField::Typed::Whole);
    PitchField* const m_pDrilDyLE = add<PitchField>(
        Details{"m_pDrilDyLE", Caption::label(QT_TR_NOOP("Dy   : ")), RecordKeys::padDy,
                SLOT(on_m_pDrilDyLE_editingFinished()), Sends::WhenAccepted});
    NumberField* const m_pDrilYsclLE = add<NumberField>(
        Details{"m_pDrilYsclLE", Caption::label(QT_TR_NOOP("Yscl : ")), RecordKeys::padYscl,
                SLOT(on_m_pDrilYsclLE_editingFinished(const QString&)), Sends::WhenAccepted}
            .within(-100, 100),
        RecordValues::one, NumberField::Checked::AtEachChange, NumberField::Typed::Decimal);
};
