#pragma once

#include "addfeature/fields/ChoiceField.h"
#include "addfeature/fields/LengthField.h"
#include "addfeature/pages/Page.h"

#include <QCoreApplication>

class PlotStampPage;

/// The settings of text drilled as dots. They are stored only: they travel with the next record
/// that another control sends.
class CannedTextPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    /// `plotStamp` tells the zoom; it must live as long.
    CannedTextPage(DialogDoor& door, PlotStampPage& plotStamp, QWidget* parent = nullptr);

    /// The plot stamp's zoom is stored along with the mode: deliberate.
    void chooseHoleMode();

    ChoiceField* const m_pCannedHoleSizeCMB;
    LengthField* const m_pCannedHoleSizeLE;

private:
    PlotStampPage& m_plotStamp;
};
