#pragma once

#include "addfeature/fields/ChoiceField.h"
#include "addfeature/fields/FlagField.h"
#include "addfeature/pages/Page.h"
#include "plugin/RecordKeys.h"

#include <QCoreApplication>

/// Arc or circle, the points that the user clicks for it, and the direction. The method of the
/// other kind is greyed; its value stays in the record.
class ArcPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit ArcPage(DialogDoor& door, QWidget* parent = nullptr);

    ChoiceField* const m_pArcAndCircleCMB = add<ChoiceField>(
        {"m_pArcAndCircleCMB", Caption::spoken(QT_TR_NOOP("Arc or circle")),
         RecordKeys::arcAndCircle, SLOT(on_ArcAndCircle_ComboBox_Changed()), Sends::Always},
        Choices{{QT_TR_NOOP("Arc"), ArcOrCircle::arc}, {QT_TR_NOOP("Circle"), ArcOrCircle::circle}},
        ChoiceField::Stores::Text);
    FlagField* const m_pClockWiseCB = add<FlagField>(
        {"m_pClockWiseCB", Caption::own(QT_TR_NOOP("ClockWise")), RecordKeys::clockWise,
         SLOT(on_ClockWise_CheckState_Changed(int)), Sends::Always},
        true, FlagField::Values{ClockWise::yes, ClockWise::no});
    ChoiceField* const m_pArcCMB = add<ChoiceField>(
        Details{"m_pArcCMB", Caption::spoken(QT_TR_NOOP("Arc method")), RecordKeys::arcMode,
                SLOT(on_Arc_ComboBox_Changed()), Sends::Always}
            .enabledBy(m_pArcAndCircleCMB, {ArcOrCircle::arc}),
        Choices{{QT_TR_NOOP("Start, Center, End"), ArcMode::startCenterEnd},
                {QT_TR_NOOP("Start, End, Edge"), ArcMode::startEndEdge},
                {QT_TR_NOOP("Start, End, Center"), ArcMode::startEndCenter},
                {QT_TR_NOOP("Start, Center, Angle"), ArcMode::startCenterAngle, false},
                {QT_TR_NOOP("Start, Center, Length"), ArcMode::startCenterLength, false},
                {QT_TR_NOOP("Start, End, Angle"), ArcMode::startEndAngle, false},
                {QT_TR_NOOP("Start, End, Radius"), ArcMode::startEndRadius, false}},
        ChoiceField::Stores::Text);
    ChoiceField* const m_pCircleCMB = add<ChoiceField>(
        Details{"m_pCircleCMB", Caption::spoken(QT_TR_NOOP("Circle method")),
                RecordKeys::circleMode, SLOT(on_Circle_ComboBox_Changed()), Sends::Always}
            .enabledBy(m_pArcAndCircleCMB, {ArcOrCircle::circle}),
        Choices{{QT_TR_NOOP("Center, Radius"), CircleMode::centerRadius},
                {QT_TR_NOOP("Center, Point"), CircleMode::centerPoint},
                {QT_TR_NOOP("Point, Center"), CircleMode::pointCenter},
                {QT_TR_NOOP("Three Points"), CircleMode::threePoints, false}},
        ChoiceField::Stores::Text);
};
