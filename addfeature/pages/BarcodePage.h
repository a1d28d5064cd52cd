#pragma once

#include "addfeature/fields/ChoiceField.h"
#include "addfeature/fields/FlagField.h"
#include "addfeature/fields/LengthField.h"
#include "addfeature/fields/TextField.h"
#include "addfeature/pages/Page.h"

#include <QCoreApplication>

class QPushButton;

/// The settings of a barcode. They are stored only: they travel with the next record that another
/// control sends.
class BarcodePage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit BarcodePage(DialogDoor& door, QWidget* parent = nullptr);

    void retranslate() override;

    /// Markers and matrix belong to the one code that is a matrix.
    void chooseType();
    /// A string that is added has a position.
    void chooseString();
    /// Deliberately not the Background box itself: the one for the markers decides.
    void chooseBackground();

    ChoiceField* const m_pUPCCMB;  ///< to be placed beside the page by the one that makes it
    FlagField* const m_pAddStringCB;
    ChoiceField* const m_pPositionCMB;
    FlagField* const m_pBackgroundCB;
    FlagField* const m_pAddMarkersCB;
    LengthField* const m_pHeightLE;
    QPushButton* const m_pMatrixPB;
    TextField* const m_pMatrixLE;

private:
    void layOut();
    void enableMatrix(bool enabled);
};
