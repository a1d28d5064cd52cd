#pragma once

#include "addfeature/fields/NumberField.h"
#include "addfeature/fields/PitchField.h"
#include "addfeature/pages/Page.h"

#include <QCoreApplication>

/// An array of pads: the count, the pitch and a factor along each axis.
class PadPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit PadPage(DialogDoor& door, QWidget* parent = nullptr);

    // Four of their slots follow each change of the text, whatever their names say.
    NumberField* const m_pDrilNxLE;
    PitchField* const m_pDrilDxLE;
    NumberField* const m_pDrilXsclLE;
    NumberField* const m_pDrilNyLE;
    PitchField* const m_pDrilDyLE;
    NumberField* const m_pDrilYsclLE;

private:
    NumberField* addCount(const Field::Details& details);
    NumberField* addFactor(const Field::Details& details);
    NumberField* addNumber(const Field::Details& details, NumberField::Bounds bounds);
    PitchField* addPitch(const Field::Details& details);
};
