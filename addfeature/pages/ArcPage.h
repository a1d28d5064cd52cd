#pragma once

#include "addfeature/fields/ChoiceField.h"
#include "addfeature/fields/FlagField.h"
#include "addfeature/pages/Page.h"

#include <QCoreApplication>

/// Arc or circle, the points that the user will click for it, and the direction.
class ArcPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit ArcPage(DialogDoor& door, QWidget* parent = nullptr);

    /// The method of the other kind is greyed; its value stays in the record.
    void chooseArcOrCircle();

    ChoiceField* const m_pArcAndCircleCMB;
    FlagField* const m_pClockWiseCB;
    ChoiceField* const m_pArcCMB;
    ChoiceField* const m_pCircleCMB;
};
