#include "addfeature/pages/LinePage.h"

#include "plugin/RecordKeys.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr double largestLength = 50000.0;  // mil
constexpr int fixedAngle = 5;

QWidget* createGroup(const char* name, QWidget* page)
{
    auto* const group = new QWidget(page);
    group->setObjectName(QLatin1String(name));
    auto* const rows = new QVBoxLayout(group);
    rows->setContentsMargins(0, 0, 0, 0);
    return group;
}

void addGrid(QWidget* group, const std::initializer_list<Field*>& fields)
{
    auto* const grid = new QGridLayout;
    for (Field* const field : fields) {
        field->addRow(grid);
    }
    grid->setColumnStretch(1, 1);
    static_cast<QVBoxLayout*>(group->layout())->addLayout(grid);
}

}  // namespace

LinePage::LinePage(DialogDoor& door, QWidget* parent)
    : Page(door, "m_pLinePage", parent),
      m_pLineCMB(add<ChoiceField>(
          Field::Details{"m_pLineCMB", Caption::spoken(QT_TR_NOOP("Kind of line")),
                         RecordKeys::line, SLOT(on_Line_ComboBox_Changed()), Sends::Always},
          Choices{{QT_TR_NOOP("Single Line"), LineKind::single},
                  {QT_TR_NOOP("Polyline"), LineKind::polyline},
                  {QT_TR_NOOP("Rectangle"), LineKind::rectangle},
                  {QT_TR_NOOP("Slot"), LineKind::slot, false}},
          ChoiceField::Stores::Text)),
      m_pClosedCB(add<FlagField>(
          Field::Details{"m_pClosedCB", Caption::own(QT_TR_NOOP("Closed")), RecordKeys::closed,
                         SLOT(on_m_pClosedCB_CheckState_Changed(int)), Sends::Always},
          false, FlagField::Values{Closed::yes, Closed::no})),
      m_pDirectionBG(add<RadioField>(
          Field::Details{"m_pDirectionBG", Caption::none(), RecordKeys::angleGroup,
                         SLOT(on_Line_Button_Clicked(QAbstractButton*)), Sends::Always,
                         Message::Direction},
          RadioField::Look::Radio,
          std::vector<RadioChoice>{
              {"m_pFreeDirectionRB", "Free1.jpg", QT_TR_NOOP("Free direction")},
              {"m_pVerticalRB", "Ver1.jpg", QT_TR_NOOP("Vertical")},
              {"m_pHorizontalRB", "Hori1.jpg", QT_TR_NOOP("Horizontal")},
              {"m_pVerticalHorizontalRB", "VH1.jpg", QT_TR_NOOP("Vertical, then horizontal")},
              {"m_pEightDirectionsRB", "8 Dir1.jpg", QT_TR_NOOP("Eight directions")},
              {"m_pFixedAngleRB", "Fixed1.jpg", QT_TR_NOOP("Fixed angle")}})),
      m_pAngleLE(add<NumberField>(
          Field::Details{"m_pAngleLE", Caption::label(QT_TR_NOOP("Angle (deg)")), RecordKeys::angle,
                         SLOT(on_m_pAngleLE_editingFinished()), Sends::WhenAccepted,
                         Message::Direction},
          QString(), NumberField::Bounds{0.0, 360.0}, NumberField::Checked::WhenFinished)),
      m_pCornerTypeCMB(add<ChoiceField>(
          Field::Details{"m_pCornerTypeCMB", Caption::label(QT_TR_NOOP("Corner Type : ")),
                         RecordKeys::cornerType, SLOT(on_CornerTypre_ComboBox_Changed()),
                         Sends::Always},
          Choices{{QT_TR_NOOP("Straight"), CornerType::straight},
                  {QT_TR_NOOP("Round"), CornerType::round},
                  {QT_TR_NOOP("Chamfer"), CornerType::chamfer},
                  {QT_TR_NOOP("Oblong"), CornerType::oblong}},
          ChoiceField::Stores::TextThenNumber)),
      m_pCornerRadiusLE(add<LengthField>(
          Field::Details{"m_pCornerRadiusLE", Caption::label(QT_TR_NOOP("Corner Radius : ")),
                         RecordKeys::cornerRadius, SLOT(on_m_pCornerRadiusLE_editingFinished()),
                         Sends::WhenAccepted},
          RecordValues::zero, largestLength)),
      m_pLengthLE(
          add<LengthField>(Field::Details{"m_pLengthLE", Caption::label(QT_TR_NOOP("Length : ")),
                                          RecordKeys::slotLength,
                                          SLOT(on_m_pLengthLE_editingFinished()), Sends::Never},
                           RecordValues::zero, largestLength, LengthField::Unit::PlainInch)),
      m_pSlotAngleLE(add<TextField>(
          LineField::Pattern::Decimal,
          Field::Details{"m_pSlotAngleLE", Caption::label(QT_TR_NOOP("Angle (deg) : ")),
                         RecordKeys::slotAngle, SLOT(on_m_pSlotAngleLE_editingFinished()),
                         Sends::Never},
          RecordValues::zero)),
      m_pSlotDecodeLE(
          add<TextField>(LineField::Pattern::Decimal,
                         Field::Details{"m_pSlotDecodeLE", Caption::label(QT_TR_NOOP("Decode: ")),
                                        RecordKeys::slotDecode,
                                        SLOT(on_m_pSlotDecodeLE_editingFinished()), Sends::Never},
                         RecordValues::zero)),
      m_pSlotPlatedCMB(add<ChoiceField>(
          Field::Details{"m_pSlotPlatedCMB", Caption::spoken(QT_TR_NOOP("Plating")),
                         RecordKeys::slotPlated, SLOT(on_m_pSlotPlatedCMB_ComboBox_Changed()),
                         Sends::Never},
          Choices{{QT_TR_NOOP("Plated"), SlotPlated::yes},
                  {QT_TR_NOOP("Non Plated"), SlotPlated::no}},
          ChoiceField::Stores::Text)),
      m_pDirectionGroup(createDirectionGroup()),
      m_pCornerGroup(createCornerGroup()),
      m_pSlotGroup(createSlotGroup())
{
    m_pClosedCB->setEnabled(false);

    auto* const kindRow = new QHBoxLayout;
    kindRow->addWidget(m_pLineCMB);
    kindRow->addWidget(m_pClosedCB);
    kindRow->addStretch();
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(kindRow);
    for (QWidget* const group : {m_pDirectionGroup, m_pCornerGroup, m_pSlotGroup}) {
        rows->addWidget(group);
    }
}

QWidget* LinePage::createDirectionGroup()
{
    QWidget* const group = createGroup("m_pDirectionGroup", this);
    auto* const angleRow = new QHBoxLayout;
    angleRow->addStretch();
    angleRow->addWidget(m_pAngleLE->label());
    angleRow->addWidget(m_pAngleLE);
    m_pAngleLE->setRowEnabled(false);
    QHBoxLayout* const directionRow = m_pDirectionBG->createRow();
    directionRow->setSpacing(0);  // six of them just fit
    auto* const rows = static_cast<QVBoxLayout*>(group->layout());
    rows->addLayout(directionRow);
    rows->addLayout(angleRow);
    return group;
}

QWidget* LinePage::createCornerGroup()
{
    QWidget* const group = createGroup("m_pCornerGroup", this);
    m_pCornerRadiusLE->setPattern("^[1-9][0-9]*|0$");
    m_pCornerRadiusLE->setRowEnabled(false);
    addGrid(group, {m_pCornerTypeCMB, m_pCornerRadiusLE});
    group->hide();
    return group;
}

QWidget* LinePage::createSlotGroup()
{
    QWidget* const group = createGroup("m_pSlotGroup", this);
    addGrid(group, {m_pLengthLE, m_pSlotAngleLE, m_pSlotDecodeLE});
    group->layout()->addWidget(m_pSlotPlatedCMB);
    group->hide();
    return group;
}

void LinePage::chooseKind()
{
    if (!m_door.restoreCommonRows()) {
        return;
    }
    if (m_pLineCMB->storeChoice()) {
        showKind();
    }
    m_pLineCMB->send();
}

void LinePage::showKind()
{
    const bool isRectangle = m_pLineCMB->is(LineKind::rectangle);
    const bool isSlot = m_pLineCMB->is(LineKind::slot);
    if (isSlot) {
        m_door.hideAttributeRows();
    }
    m_door.hidePlacementRows();

    m_pClosedCB->setEnabled(m_pLineCMB->is(LineKind::polyline));
    m_pDirectionGroup->setVisible(!isRectangle && !isSlot);
    m_pCornerGroup->setVisible(isRectangle);
    m_pSlotGroup->setVisible(isSlot);
}

void LinePage::chooseDirection()
{
    m_pDirectionBG->storeChoice();
    m_pAngleLE->setRowEnabled(m_pDirectionBG->checkedId() == fixedAngle);
    m_pDirectionBG->send();
}

void LinePage::chooseCorner()
{
    m_pCornerTypeCMB->storeChoice();
    m_pCornerRadiusLE->setRowEnabled(m_pCornerTypeCMB->is(CornerType::round) ||
                                     m_pCornerTypeCMB->is(CornerType::chamfer));
    m_pCornerTypeCMB->send();
}
