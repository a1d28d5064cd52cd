#pragma once

#include "addfeature/fields/ChoiceField.h"
#include "addfeature/fields/LengthField.h"
#include "addfeature/pages/Page.h"
#include "plugin/RecordKeys.h"

#include <QCoreApplication>

class PlotStampPage;

/// The settings of text drilled as dots. They are stored only, as Sends::Never says.
class CannedTextPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    /// `plotStamp` provides the zoom; it must outlive this page.
    CannedTextPage(DialogDoor& door, PlotStampPage& plotStamp, QWidget* parent = nullptr);

    /// The plot stamp's zoom is stored along with the mode: deliberate.
    void chooseHoleMode();

    ChoiceField* const m_pCannedHoleSizeCMB =
        add<ChoiceField>({"m_pCannedHoleSizeCMB", Caption::label(QT_TR_NOOP("Type\t\t:")),
                          RecordKeys::cannedHoleMode,
                          SLOT(on_m_pCannedHoleSizeCMB_ComboBox_Changed()), Sends::Never},
                         Choices{{QT_TR_NOOP("5 X 7"), CannedHoleMode::fiveBySeven},
                                 {QT_TR_NOOP("6 X 7"), CannedHoleMode::sixBySeven}},
                         ChoiceField::Stores::Text);
    LengthField* const m_pCannedHoleSizeLE =
        add<LengthField>(Details{"m_pCannedHoleSizeLE", Caption::spoken(QT_TR_NOOP("Hole size")),
                                 RecordKeys::cannedHoleSize,
                                 SLOT(on_m_pCannedHoleSizeLE_editingFinished()), Sends::Never}
                             .within(0, 50000),
                         QStringLiteral("20"), LengthField::Unit::MilByLabel);

private:
    PlotStampPage& m_plotStamp;
};
