#pragma once

#include "addfeature/fields/ChoiceField.h"
#include "addfeature/fields/FlagField.h"
#include "addfeature/fields/LengthField.h"
#include "addfeature/fields/NumberField.h"
#include "addfeature/fields/RadioField.h"
#include "addfeature/fields/TextField.h"
#include "addfeature/pages/Page.h"

#include <QCoreApplication>

/// The kind of line, and what belongs to it: the direction of drawing, the corners of a rectangle,
/// the measures of a slot.
class LinePage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit LinePage(DialogDoor& door, QWidget* parent = nullptr);

    /// Shows what belongs to the kind, here and in the rows above the page.
    void chooseKind();
    /// The angle can be typed for the fixed direction only.
    void chooseDirection();
    /// The radius can be typed for round and chamfered corners only.
    void chooseCorner();

    ChoiceField* const m_pLineCMB;
    FlagField* const m_pClosedCB;
    RadioField* const m_pDirectionBG;
    NumberField* const m_pAngleLE;
    ChoiceField* const m_pCornerTypeCMB;
    LengthField* const m_pCornerRadiusLE;
    LengthField* const m_pLengthLE;
    TextField* const m_pSlotAngleLE;
    TextField* const m_pSlotDecodeLE;
    ChoiceField* const m_pSlotPlatedCMB;

private:
    QWidget* createDirectionGroup();
    QWidget* createCornerGroup();
    QWidget* createSlotGroup();
    void showKind();

    QWidget* m_pDirectionGroup;
    QWidget* m_pCornerGroup;
    QWidget* m_pSlotGroup;
};
