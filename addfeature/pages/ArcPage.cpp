#include "addfeature/pages/ArcPage.h"

#include "plugin/RecordKeys.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

ArcPage::ArcPage(DialogDoor& door, QWidget* parent)
    : Page(door, "m_pArcPage", parent),
      m_pArcAndCircleCMB(add<ChoiceField>(
          Field::Details{"m_pArcAndCircleCMB", Caption::spoken(QT_TR_NOOP("Arc or circle")),
                         RecordKeys::arcAndCircle, SLOT(on_ArcAndCircle_ComboBox_Changed()),
                         Sends::Always},
          Choices{{QT_TR_NOOP("Arc"), ArcOrCircle::arc},
                  {QT_TR_NOOP("Circle"), ArcOrCircle::circle}},
          ChoiceField::Stores::Text)),
      m_pClockWiseCB(
          add<FlagField>(Field::Details{"m_pClockWiseCB", Caption::own(QT_TR_NOOP("ClockWise")),
                                        RecordKeys::clockWise,
                                        SLOT(on_ClockWise_CheckState_Changed(int)), Sends::Always},
                         true, FlagField::Values{ClockWise::yes, ClockWise::no})),
      m_pArcCMB(add<ChoiceField>(
          Field::Details{"m_pArcCMB", Caption::spoken(QT_TR_NOOP("Arc method")),
                         RecordKeys::arcMode, SLOT(on_Arc_ComboBox_Changed()), Sends::Always},
          Choices{{QT_TR_NOOP("Start, Center, End"), ArcMode::startCenterEnd},
                  {QT_TR_NOOP("Start, End, Edge"), ArcMode::startEndEdge},
                  {QT_TR_NOOP("Start, End, Center"), ArcMode::startEndCenter},
                  {QT_TR_NOOP("Start, Center, Angle"), ArcMode::startCenterAngle, false},
                  {QT_TR_NOOP("Start, Center, Length"), ArcMode::startCenterLength, false},
                  {QT_TR_NOOP("Start, End, Angle"), ArcMode::startEndAngle, false},
                  {QT_TR_NOOP("Start, End, Radius"), ArcMode::startEndRadius, false}},
          ChoiceField::Stores::Text)),
      m_pCircleCMB(add<ChoiceField>(
          Field::Details{"m_pCircleCMB", Caption::spoken(QT_TR_NOOP("Circle method")),
                         RecordKeys::circleMode, SLOT(on_Circle_ComboBox_Changed()), Sends::Always},
          Choices{{QT_TR_NOOP("Center, Radius"), CircleMode::centerRadius},
                  {QT_TR_NOOP("Center, Point"), CircleMode::centerPoint},
                  {QT_TR_NOOP("Point, Center"), CircleMode::pointCenter},
                  {QT_TR_NOOP("Three Points"), CircleMode::threePoints, false}},
          ChoiceField::Stores::Text))
{
    m_pCircleCMB->setEnabled(false);

    auto* const firstRow = new QHBoxLayout;
    firstRow->addWidget(m_pArcAndCircleCMB);
    firstRow->addWidget(m_pClockWiseCB);
    firstRow->addStretch();
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(firstRow);
    rows->addWidget(m_pArcCMB);
    rows->addWidget(m_pCircleCMB);
}

void ArcPage::chooseArcOrCircle()
{
    if (m_pArcAndCircleCMB->storeChoice()) {
        m_pArcCMB->setEnabled(m_pArcAndCircleCMB->is(ArcOrCircle::arc));
        m_pCircleCMB->setEnabled(m_pArcAndCircleCMB->is(ArcOrCircle::circle));
    }
    m_pArcAndCircleCMB->send();
}
