#pragma once

#include "addfeature/fields/ChoiceField.h"
#include "addfeature/fields/FlagField.h"
#include "addfeature/fields/LengthField.h"
#include "addfeature/fields/NumberField.h"
#include "addfeature/fields/RadioField.h"
#include "addfeature/fields/TextField.h"
#include "addfeature/pages/Page.h"
#include "plugin/RecordKeys.h"

#include <QCoreApplication>

/// The kind of line and its settings: the direction of drawing, the corners of a rectangle, the
/// dimensions of a slot.
class LinePage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit LinePage(DialogDoor& door, QWidget* parent = nullptr);

    /// Shows the settings of the kind, here and in the rows above the page.
    void chooseKind();

    ChoiceField* const m_pLineCMB =
        add<ChoiceField>({"m_pLineCMB", Caption::spoken(QT_TR_NOOP("Kind of line")),
                          RecordKeys::line, SLOT(on_Line_ComboBox_Changed()), Sends::Always},
                         Choices{{QT_TR_NOOP("Single Line"), LineKind::single},
                                 {QT_TR_NOOP("Polyline"), LineKind::polyline},
                                 {QT_TR_NOOP("Rectangle"), LineKind::rectangle},
                                 {QT_TR_NOOP("Slot"), LineKind::slot, false}},
                         ChoiceField::Stores::Text);
    FlagField* const m_pClosedCB = add<FlagField>(
        Details{"m_pClosedCB", Caption::own(QT_TR_NOOP("Closed")), RecordKeys::closed,
                SLOT(on_m_pClosedCB_CheckState_Changed(int)), Sends::Always}
            .enabledBy(m_pLineCMB, {LineKind::polyline}),
        false, FlagField::Values{Closed::yes, Closed::no});
    RadioField* const m_pDirectionBG = add<RadioField>(
        Details{"m_pDirectionBG", Caption::none(), RecordKeys::angleGroup,
                SLOT(on_Line_Button_Clicked(QAbstractButton*)), Sends::Always}
            .asDirection(),
        RadioField::Look::Radio,
        std::vector<RadioChoice>{
            {"m_pFreeDirectionRB", "Free1.jpg", QT_TR_NOOP("Free direction"), LineDirection::free},
            {"m_pVerticalRB", "Ver1.jpg", QT_TR_NOOP("Vertical"), LineDirection::vertical},
            {"m_pHorizontalRB", "Hori1.jpg", QT_TR_NOOP("Horizontal"), LineDirection::horizontal},
            {"m_pVerticalHorizontalRB", "VH1.jpg", QT_TR_NOOP("Vertical, then horizontal"),
             LineDirection::verticalThenHorizontal},
            {"m_pEightDirectionsRB", "8 Dir1.jpg", QT_TR_NOOP("Eight directions"),
             LineDirection::eightDirections},
            {"m_pFixedAngleRB", "Fixed1.jpg", QT_TR_NOOP("Fixed angle"), LineDirection::fixed}});
    NumberField* const m_pAngleLE = add<NumberField>(
        Details{"m_pAngleLE", Caption::label(QT_TR_NOOP("Angle (deg)")), RecordKeys::angle,
                SLOT(on_m_pAngleLE_editingFinished()), Sends::WhenAccepted}
            .asDirection()
            .within(0, 360)
            .enabledBy(m_pDirectionBG, {LineDirection::fixed}),
        QString(), NumberField::Checked::WhenFinished, NumberField::Typed::AsTheHostAllows);
    ChoiceField* const m_pCornerTypeCMB = add<ChoiceField>(
        {"m_pCornerTypeCMB", Caption::label(QT_TR_NOOP("Corner Type : ")), RecordKeys::cornerType,
         SLOT(on_CornerTypre_ComboBox_Changed()), Sends::Always},
        Choices{{QT_TR_NOOP("Straight"), CornerType::straight},
                {QT_TR_NOOP("Round"), CornerType::round},
                {QT_TR_NOOP("Chamfer"), CornerType::chamfer},
                {QT_TR_NOOP("Oblong"), CornerType::oblong}},
        ChoiceField::Stores::TextThenNumber);
    LengthField* const m_pCornerRadiusLE = add<LengthField>(
        Details{"m_pCornerRadiusLE", Caption::label(QT_TR_NOOP("Corner Radius : ")),
                RecordKeys::cornerRadius, SLOT(on_m_pCornerRadiusLE_editingFinished()),
                Sends::WhenAccepted}
            .pattern("^[1-9][0-9]*|0$")
            .within(0, 50000)
            .enabledBy(m_pCornerTypeCMB, {CornerType::round, CornerType::chamfer}),
        RecordValues::zero);
    LengthField* const m_pLengthLE = add<LengthField>(
        Details{"m_pLengthLE", Caption::label(QT_TR_NOOP("Length : ")), RecordKeys::slotLength,
                SLOT(on_m_pLengthLE_editingFinished()), Sends::Never}
            .within(0, 50000),
        RecordValues::zero, LengthField::Unit::PlainInch);
    TextField* const m_pSlotAngleLE = add<TextField>(
        {"m_pSlotAngleLE", Caption::label(QT_TR_NOOP("Angle (deg) : ")), RecordKeys::slotAngle,
         SLOT(on_m_pSlotAngleLE_editingFinished()), Sends::Never},
        LineField::Pattern::Decimal, RecordValues::zero);
    TextField* const m_pSlotDecodeLE = add<TextField>(
        {"m_pSlotDecodeLE", Caption::label(QT_TR_NOOP("Decode: ")), RecordKeys::slotDecode,
         SLOT(on_m_pSlotDecodeLE_editingFinished()), Sends::Never},
        LineField::Pattern::Decimal, RecordValues::zero);
    ChoiceField* const m_pSlotPlatedCMB = add<ChoiceField>(
        {"m_pSlotPlatedCMB", Caption::spoken(QT_TR_NOOP("Plating")), RecordKeys::slotPlated,
         SLOT(on_m_pSlotPlatedCMB_ComboBox_Changed()), Sends::Never},
        Choices{{QT_TR_NOOP("Plated"), SlotPlated::yes},
                {QT_TR_NOOP("Non Plated"), SlotPlated::no}},
        ChoiceField::Stores::Text);

private:
    void layOutDirection();
    void layOutCorner();
    void layOutSlot();
    void showKind();

    QWidget* const m_pDirectionGroup;
    QWidget* const m_pCornerGroup;
    QWidget* const m_pSlotGroup;
};
