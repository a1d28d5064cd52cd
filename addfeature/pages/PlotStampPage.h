#pragma once

#include "addfeature/fields/ChoiceField.h"
#include "addfeature/pages/Page.h"

#include <QCoreApplication>

/// The settings of a plot stamp. They are stored only: they travel with the next record that
/// another control sends.
class PlotStampPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit PlotStampPage(DialogDoor& door, QWidget* parent = nullptr);

    ChoiceField* const m_pOrbotechTypeCMB;
    ChoiceField* const m_pOrbotechFontSizeCMB;
    ChoiceField* const m_pOrbotechZoomCMB;
};
