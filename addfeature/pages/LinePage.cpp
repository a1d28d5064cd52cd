#include "addfeature/pages/LinePage.h"

#include "addfeature/FeatureRecord.h"
#include "addfeature/PageHost.h"
#include "addfeature/Units.h"
#include "addfeature/pages/Choices.h"
#include "addfeature/pages/Entries.h"
#include "addfeature/pages/Fields.h"
#include "plugin/RecordKeys.h"

#include <ui_api.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QRegExpValidator>

namespace {

constexpr double largestLength = 50000.0;
constexpr double largestAngle = 360.0;

enum Kind { SingleLine, Polyline, Rectangle, Slot };
const Choices kinds = {
    {QT_TRANSLATE_NOOP("AddFeature", "Single Line"), RecordValues::one},
    {QT_TRANSLATE_NOOP("AddFeature", "Polyline"), RecordValues::two},
    {QT_TRANSLATE_NOOP("AddFeature", "Rectangle"), RecordValues::three},
    {QT_TRANSLATE_NOOP("AddFeature", "Slot"), RecordValues::four, false},
};

enum Corner { Straight, Round, Chamfer, Oblong };
const Choices corners = {
    {QT_TRANSLATE_NOOP("AddFeature", "Straight"), RecordValues::one},
    {QT_TRANSLATE_NOOP("AddFeature", "Round"), RecordValues::two},
    {QT_TRANSLATE_NOOP("AddFeature", "Chamfer"), RecordValues::three},
    {QT_TRANSLATE_NOOP("AddFeature", "Oblong"), RecordValues::four},
};

const Choices platings = {
    {QT_TRANSLATE_NOOP("AddFeature", "Plated"), RecordValues::one},
    {QT_TRANSLATE_NOOP("AddFeature", "Non Plated"), RecordValues::two},
};

constexpr int fixedAngle = 5;
constexpr int directionIconSize = 24;
struct Direction {
    const char* objectName;
    const char* icon;
    const char* spokenName;
};
const Direction directions[] = {
    {"m_pFreeDirectionRB", "Free1.jpg", QT_TRANSLATE_NOOP("AddFeature", "Free direction")},
    {"m_pVerticalRB", "Ver1.jpg", QT_TRANSLATE_NOOP("AddFeature", "Vertical")},
    {"m_pHorizontalRB", "Hori1.jpg", QT_TRANSLATE_NOOP("AddFeature", "Horizontal")},
    {"m_pVerticalHorizontalRB", "VH1.jpg",
     QT_TRANSLATE_NOOP("AddFeature", "Vertical, then horizontal")},
    {"m_pEightDirectionsRB", "8 Dir1.jpg", QT_TRANSLATE_NOOP("AddFeature", "Eight directions")},
    {"m_pFixedAngleRB", "Fixed1.jpg", QT_TRANSLATE_NOOP("AddFeature", "Fixed angle")},
};

QIcon directionIcon(const Direction& direction)
{
    return QIcon(
        QStringLiteral(":/Canvas_Tool_Strip/Resources/%1").arg(QLatin1String(direction.icon)));
}

QWidget* createGroup(const QString& name, QWidget* page)
{
    auto* group = new QWidget(page);
    group->setObjectName(name);
    auto* rows = new QVBoxLayout(group);
    rows->setContentsMargins(0, 0, 0, 0);
    return group;
}

QComboBox* createCombo(const QString& name, const Choices& choices, QWidget* parent)
{
    auto* combo = new QComboBox(parent);
    combo->setObjectName(name);
    fillChoices(combo, choices);
    return combo;
}

QGridLayout* addGrid(QWidget* group)
{
    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    static_cast<QVBoxLayout*>(group->layout())->addLayout(grid);
    return grid;
}

}  // namespace

LinePage::LinePage(PageHost& host, QWidget* parent) : Page(host, parent)
{
    setObjectName(QStringLiteral("m_pLinePage"));
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(createKindRow());
    createDirectionGroup();
    createCornerGroup();
    createSlotGroup();
    for (QWidget* group : {m_directionGroup, m_cornerGroup, m_slotGroup}) {
        rows->addWidget(group);
    }
    m_cornerGroup->hide();
    m_slotGroup->hide();

    retranslate();
    writeDefaults();
    connectControls();
}

LinePage::ZTLineEdit* LinePage::createNumber(const QString& name, QWidget* group)
{
    return Fields::create(m_host, Fields::Pattern::Decimal, name, group);
}

QLayout* LinePage::createKindRow()
{
    m_kind = createCombo(QStringLiteral("m_pLineCMB"), kinds, this);
    m_closed = new QCheckBox(this);
    m_closed->setObjectName(QStringLiteral("m_pClosedCB"));
    m_closed->setEnabled(false);

    auto* row = new QHBoxLayout;
    row->addWidget(m_kind);
    row->addWidget(m_closed);
    row->addStretch();
    return row;
}

void LinePage::createDirectionGroup()
{
    m_directionGroup = createGroup(QStringLiteral("m_pDirectionGroup"), this);
    QLayout* const buttons = createDirectionRow();
    m_angle = createNumber(QStringLiteral("m_pAngleLE"), m_directionGroup);
    m_angleLabel = Fields::createLabel(QStringLiteral("m_pAngleLB"), m_directionGroup, m_angle);
    m_angle->setEnabled(false);
    m_angleLabel->setEnabled(false);

    auto* angleRow = new QHBoxLayout;
    angleRow->addStretch();
    angleRow->addWidget(m_angleLabel);
    angleRow->addWidget(m_angle);
    auto* rows = static_cast<QVBoxLayout*>(m_directionGroup->layout());
    rows->addLayout(buttons);
    rows->addLayout(angleRow);
}

QLayout* LinePage::createDirectionRow()
{
    m_directions = new QButtonGroup(this);
    auto* row = new QHBoxLayout;
    row->setSpacing(0);  // six of them just fit
    int id = 0;
    for (const Direction& direction : directions) {
        auto* button = new QRadioButton(m_directionGroup);
        button->setObjectName(QLatin1String(direction.objectName));
        button->setIcon(directionIcon(direction));
        button->setIconSize({directionIconSize, directionIconSize});
        m_directions->addButton(button, id++);
        row->addWidget(button);
    }
    m_directions->button(0)->setChecked(true);
    return row;
}

void LinePage::createCornerGroup()
{
    m_cornerGroup = createGroup(QStringLiteral("m_pCornerGroup"), this);
    m_cornerType = createCombo(QStringLiteral("m_pCornerTypeCMB"), corners, m_cornerGroup);
    m_cornerRadius = createNumber(QStringLiteral("m_pCornerRadiusLE"), m_cornerGroup);
    m_cornerRadius->setValidator(
        new QRegExpValidator(QRegExp(QLatin1String("^[1-9][0-9]*|0$")), m_cornerRadius));
    m_cornerRadius->setText(RecordValues::zero);
    m_cornerTypeLabel =
        Fields::createLabel(QStringLiteral("m_pCornerTypeLB"), m_cornerGroup, m_cornerType);
    m_cornerRadiusLabel =
        Fields::createLabel(QStringLiteral("m_pCornerRadiusLB"), m_cornerGroup, m_cornerRadius);
    m_cornerRadiusUnit =
        Fields::createLabel(QStringLiteral("m_pCornerRadiusUnitLB"), m_cornerGroup);
    enableRadius(false);

    QGridLayout* const grid = addGrid(m_cornerGroup);
    grid->addWidget(m_cornerTypeLabel, 0, 0);
    grid->addWidget(m_cornerType, 0, 1);
    grid->addWidget(m_cornerRadiusLabel, 1, 0);
    grid->addWidget(m_cornerRadius, 1, 1);
    grid->addWidget(m_cornerRadiusUnit, 1, 2);
}

void LinePage::createSlotGroup()
{
    m_slotGroup = createGroup(QStringLiteral("m_pSlotGroup"), this);
    m_slotLength = createNumber(QStringLiteral("m_pLengthLE"), m_slotGroup);
    m_slotAngle = createNumber(QStringLiteral("m_pSlotAngleLE"), m_slotGroup);
    m_slotDecode = createNumber(QStringLiteral("m_pSlotDecodeLE"), m_slotGroup);
    m_plainSlotLength = PlainLength(m_slotLength);
    m_slotLengthLabel =
        Fields::createLabel(QStringLiteral("m_pLengthLB"), m_slotGroup, m_slotLength);
    m_slotAngleLabel =
        Fields::createLabel(QStringLiteral("m_pSlotAngleLB"), m_slotGroup, m_slotAngle);
    m_slotDecodeLabel =
        Fields::createLabel(QStringLiteral("m_pSlotDecodeLB"), m_slotGroup, m_slotDecode);
    m_slotLengthUnit = Fields::createLabel(QStringLiteral("m_pLengthUnitLB"), m_slotGroup);
    m_slotPlated = createCombo(QStringLiteral("m_pSlotPlatedCMB"), platings, m_slotGroup);

    QGridLayout* const grid = addGrid(m_slotGroup);
    int row = 0;
    for (const auto& [label, field] :
         {std::pair(m_slotLengthLabel, m_slotLength), std::pair(m_slotAngleLabel, m_slotAngle),
          std::pair(m_slotDecodeLabel, m_slotDecode)}) {
        field->setText(RecordValues::zero);
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1);
        ++row;
    }
    grid->addWidget(m_slotLengthUnit, 0, 2);
    m_slotGroup->layout()->addWidget(m_slotPlated);
}

void LinePage::writeDefaults()
{
    FeatureRecord& record = m_host.record();
    const bool isMetric = m_host.isMetric();
    record.set(RecordKeys::closed, RecordValues::zero);
    record.set(RecordKeys::line, RecordValues::one);
    record.set(RecordKeys::angleGroup, RecordValues::one);
    record.set(RecordKeys::angle, m_angle->text());
    record.set(RecordKeys::cornerType, RecordValues::one);
    record.set(RecordKeys::cornerRadius, Units::toStored(m_cornerRadius->text(), isMetric));
    record.set(RecordKeys::slotPlated, RecordValues::one);
    record.set(RecordKeys::slotLength, Units::toStored(m_slotLength->text(), isMetric));
    record.set(RecordKeys::slotAngle, m_slotAngle->text());
    record.set(RecordKeys::slotDecode, m_slotDecode->text());
}

void LinePage::connectControls()
{
    QObject* const owner = m_host.slotOwner();
    connect(m_directions, SIGNAL(buttonClicked(QAbstractButton*)), owner,
            SLOT(on_Line_Button_Clicked(QAbstractButton*)));
    connect(m_angle, SIGNAL(editingFinished()), owner, SLOT(on_m_pAngleLE_editingFinished()));
    connect(m_cornerType, SIGNAL(currentIndexChanged(QString)), owner,
            SLOT(on_CornerTypre_ComboBox_Changed()));
    connect(m_cornerRadius, SIGNAL(editingFinished()), owner,
            SLOT(on_m_pCornerRadiusLE_editingFinished()));
    connect(m_slotPlated, SIGNAL(currentIndexChanged(QString)), owner,
            SLOT(on_m_pSlotPlatedCMB_ComboBox_Changed()));
    connect(m_slotLength, SIGNAL(editingFinished()), owner, SLOT(on_m_pLengthLE_editingFinished()));
    connect(m_slotAngle, SIGNAL(editingFinished()), owner,
            SLOT(on_m_pSlotAngleLE_editingFinished()));
    connect(m_slotDecode, SIGNAL(editingFinished()), owner,
            SLOT(on_m_pSlotDecodeLE_editingFinished()));
    connect(m_kind, SIGNAL(currentIndexChanged(QString)), owner, SLOT(on_Line_ComboBox_Changed()));
    connect(m_closed, SIGNAL(stateChanged(int)), owner,
            SLOT(on_m_pClosedCB_CheckState_Changed(int)));
}

void LinePage::retranslate()
{
    retranslateChoices(m_kind, kinds);
    retranslateChoices(m_cornerType, corners);
    retranslateChoices(m_slotPlated, platings);
    retranslateDirections();
    m_kind->setAccessibleName(tr("Kind of line"));
    m_closed->setText(tr("Closed"));
    m_angleLabel->setText(tr("Angle (deg)"));
    m_cornerTypeLabel->setText(tr("Corner Type : "));
    m_cornerRadiusLabel->setText(tr("Corner Radius : "));
    m_slotLengthLabel->setText(tr("Length : "));
    m_slotAngleLabel->setText(tr("Angle (deg) : "));
    m_slotDecodeLabel->setText(tr("Decode: "));
    m_slotPlated->setAccessibleName(tr("Plating"));
    showUnits();
}

void LinePage::retranslateDirections()
{
    int id = 0;
    for (const Direction& direction : directions) {
        const QString name = tr(direction.spokenName);
        QAbstractButton* const button = m_directions->button(id++);
        button->setAccessibleName(name);
        button->setToolTip(name);
    }
}

void LinePage::changeUnit(bool isMetric)
{
    m_cornerRadius->changeunit(isMetric);
    m_plainSlotLength.changeUnit(isMetric);
    m_isMetric = isMetric;
    showUnits();
}

void LinePage::showUnits()
{
    m_cornerRadiusUnit->setText(Units::lengthLabel(m_isMetric));
    m_slotLengthUnit->setText(Units::largeLengthLabel(m_isMetric));
}

void LinePage::lineKindChanged()
{
    if (!m_host.restoreCommonRows()) {
        return;
    }
    if (const Choice* choice = currentChoice(m_kind, kinds)) {
        m_host.record().set(RecordKeys::line, choice->value);
        showKind(m_kind->currentIndex());
    }
    m_host.sendRecord();
}

void LinePage::showKind(int kind)
{
    using Row = PageHost::CommonRow;
    if (kind == Slot) {
        for (const Row row : {Row::Attributes, Row::Values, Row::Fill, Row::Polarity}) {
            m_host.setRowVisible(row, false);
        }
    }
    m_host.setRowVisible(Row::Mirror, false);
    m_host.setRowVisible(Row::Rotation, false);

    m_closed->setEnabled(kind == Polyline);
    m_directionGroup->setVisible(kind == SingleLine || kind == Polyline);
    m_cornerGroup->setVisible(kind == Rectangle);
    m_slotGroup->setVisible(kind == Slot);
}

void LinePage::closedChanged()
{
    m_host.record().set(RecordKeys::closed,
                        m_closed->isChecked() ? RecordValues::one : RecordValues::zero);
    m_host.sendRecord();
}

void LinePage::directionChosen()
{
    const int id = m_directions->checkedId();
    m_host.record().set(RecordKeys::angleGroup, id + 1);
    m_angleLabel->setEnabled(id == fixedAngle);
    m_angle->setEnabled(id == fixedAngle);
    m_host.sendDirection();
}

void LinePage::angleEdited()
{
    if (!m_host.checkNumber(m_angle->text().toDouble(), 0.0, largestAngle)) {
        m_angle->setText(m_host.record().text(RecordKeys::angle));
        return;
    }
    m_host.record().set(RecordKeys::angle, m_angle->text());
    m_host.sendDirection();
}

void LinePage::cornerTypeChanged()
{
    const int corner = m_cornerType->currentIndex();
    m_host.record().set(RecordKeys::cornerType, corner + 1);
    enableRadius(corner == Round || corner == Chamfer);
    m_host.sendRecord();
}

void LinePage::enableRadius(bool enabled)
{
    m_cornerRadiusLabel->setEnabled(enabled);
    m_cornerRadius->setEnabled(enabled);
    m_cornerRadiusUnit->setEnabled(enabled);
}

void LinePage::cornerRadiusEdited()
{
    finishLength(m_host, {m_cornerRadius, RecordKeys::cornerRadius, largestLength, true, false});
}

void LinePage::slotLengthEdited()
{
    finishLength(m_host, {m_slotLength, RecordKeys::slotLength, largestLength, false, false});
}

void LinePage::slotAngleEdited()
{
    m_host.record().set(RecordKeys::slotAngle, m_slotAngle->text());
}

void LinePage::slotDecodeEdited()
{
    m_host.record().set(RecordKeys::slotDecode, m_slotDecode->text());
}

void LinePage::slotPlatedChanged()
{
    if (const Choice* choice = currentChoice(m_slotPlated, platings)) {
        m_host.record().set(RecordKeys::slotPlated, choice->value);
    }
}
