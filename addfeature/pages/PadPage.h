#pragma once

#include "addfeature/fields/NumberField.h"
#include "addfeature/fields/PitchField.h"
#include "addfeature/pages/Page.h"
#include "plugin/RecordKeys.h"

#include <QCoreApplication>

/// An array of pads: the count, the pitch and a factor along each axis.
class PadPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit PadPage(DialogDoor& door, QWidget* parent = nullptr);

    // Four of their slots run on each change of the text, whatever their names say.
    NumberField* const m_pDrilNxLE =
        addCount({"m_pDrilNxLE", Caption::label(QT_TR_NOOP("Nx   : ")), RecordKeys::padNx,
                  SLOT(on_m_pDrilNxLE_editingFinished(const QString&)), Sends::WhenAccepted});
    PitchField* const m_pDrilDxLE =
        addPitch({"m_pDrilDxLE", Caption::label(QT_TR_NOOP("Dx   : ")), RecordKeys::padDx,
                  SLOT(on_m_pDrilDxLE_editingFinished()), Sends::WhenAccepted});
    NumberField* const m_pDrilXsclLE =
        addFactor({"m_pDrilXsclLE", Caption::label(QT_TR_NOOP("Xscl : ")), RecordKeys::padXscl,
                   SLOT(on_m_pDrilXsclLE_editingFinished(const QString&)), Sends::WhenAccepted});
    NumberField* const m_pDrilNyLE =
        addCount({"m_pDrilNyLE", Caption::label(QT_TR_NOOP("Ny   : ")), RecordKeys::padNy,
                  SLOT(on_m_pDrilNyLE_editingFinished(const QString&)), Sends::WhenAccepted});
    PitchField* const m_pDrilDyLE =
        addPitch({"m_pDrilDyLE", Caption::label(QT_TR_NOOP("Dy   : ")), RecordKeys::padDy,
                  SLOT(on_m_pDrilDyLE_editingFinished()), Sends::WhenAccepted});
    NumberField* const m_pDrilYsclLE =
        addFactor({"m_pDrilYsclLE", Caption::label(QT_TR_NOOP("Yscl : ")), RecordKeys::padYscl,
                   SLOT(on_m_pDrilYsclLE_editingFinished(const QString&)), Sends::WhenAccepted});

private:
    NumberField* addCount(const Field::Details& details);
    NumberField* addFactor(const Field::Details& details);
    NumberField* addNumber(const Field::Details& details, NumberField::Bounds bounds);
    PitchField* addPitch(const Field::Details& details);
};
