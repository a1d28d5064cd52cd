#include "addfeature/pages/ArcPage.h"

#include "addfeature/FeatureRecord.h"
#include "addfeature/PageHost.h"
#include "addfeature/pages/Choices.h"
#include "plugin/RecordKeys.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

const Choices families = {
    {QT_TRANSLATE_NOOP("AddFeature", "Arc"), RecordValues::one},
    {QT_TRANSLATE_NOOP("AddFeature", "Circle"), RecordValues::two},
};

const Choices arcMethods = {
    {QT_TRANSLATE_NOOP("AddFeature", "Start, Center, End"), RecordValues::one},
    {QT_TRANSLATE_NOOP("AddFeature", "Start, End, Edge"), RecordValues::two},
    {QT_TRANSLATE_NOOP("AddFeature", "Start, End, Center"), RecordValues::three},
    {QT_TRANSLATE_NOOP("AddFeature", "Start, Center, Angle"), RecordValues::four, false},
    {QT_TRANSLATE_NOOP("AddFeature", "Start, Center, Length"), RecordValues::five, false},
    {QT_TRANSLATE_NOOP("AddFeature", "Start, End, Angle"), RecordValues::six, false},
    {QT_TRANSLATE_NOOP("AddFeature", "Start, End, Radius"), RecordValues::seven, false},
};

const Choices circleMethods = {
    {QT_TRANSLATE_NOOP("AddFeature", "Center, Radius"), RecordValues::one},
    {QT_TRANSLATE_NOOP("AddFeature", "Center, Point"), RecordValues::two},
    {QT_TRANSLATE_NOOP("AddFeature", "Point, Center"), RecordValues::three},
    {QT_TRANSLATE_NOOP("AddFeature", "Three Points"), RecordValues::four, false},
};

}  // namespace

ArcPage::ArcPage(PageHost& host, QWidget* parent)
    : Page(host, parent),
      m_arcOrCircle(new QComboBox(this)),
      m_clockWise(new QCheckBox(this)),
      m_arcMethod(new QComboBox(this)),
      m_circleMethod(new QComboBox(this))
{
    setObjectName(QStringLiteral("m_pArcPage"));
    m_arcOrCircle->setObjectName(QStringLiteral("m_pArcAndCircleCMB"));
    m_clockWise->setObjectName(QStringLiteral("m_pClockWiseCB"));
    m_arcMethod->setObjectName(QStringLiteral("m_pArcCMB"));
    m_circleMethod->setObjectName(QStringLiteral("m_pCircleCMB"));
    fillChoices(m_arcOrCircle, families);
    fillChoices(m_arcMethod, arcMethods);
    fillChoices(m_circleMethod, circleMethods);
    m_clockWise->setChecked(true);
    m_circleMethod->setEnabled(false);

    layOut();
    retranslate();
    writeDefaults();
    connectControls();
}

void ArcPage::layOut()
{
    auto* firstRow = new QHBoxLayout;
    firstRow->addWidget(m_arcOrCircle);
    firstRow->addWidget(m_clockWise);
    firstRow->addStretch();

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(firstRow);
    rows->addWidget(m_arcMethod);
    rows->addWidget(m_circleMethod);
}

void ArcPage::writeDefaults()
{
    for (const QString& key : {RecordKeys::arcAndCircle, RecordKeys::arcMode,
                               RecordKeys::circleMode, RecordKeys::clockWise}) {
        m_host.record().set(key, RecordValues::one);
    }
}

void ArcPage::connectControls()
{
    QObject* const owner = m_host.slotOwner();
    connect(m_arcOrCircle, SIGNAL(currentIndexChanged(QString)), owner,
            SLOT(on_ArcAndCircle_ComboBox_Changed()));
    connect(m_arcMethod, SIGNAL(currentIndexChanged(QString)), owner,
            SLOT(on_Arc_ComboBox_Changed()));
    connect(m_circleMethod, SIGNAL(currentIndexChanged(QString)), owner,
            SLOT(on_Circle_ComboBox_Changed()));
    connect(m_clockWise, SIGNAL(stateChanged(int)), owner,
            SLOT(on_ClockWise_CheckState_Changed(int)));
}

void ArcPage::retranslate()
{
    retranslateChoices(m_arcOrCircle, families);
    retranslateChoices(m_arcMethod, arcMethods);
    retranslateChoices(m_circleMethod, circleMethods);
    m_clockWise->setText(tr("ClockWise"));
    m_arcOrCircle->setAccessibleName(tr("Arc or circle"));
    m_arcMethod->setAccessibleName(tr("Arc method"));
    m_circleMethod->setAccessibleName(tr("Circle method"));
}

void ArcPage::arcOrCircleChanged()
{
    if (const Choice* choice = currentChoice(m_arcOrCircle, families)) {
        const bool isArc = choice->value == RecordValues::one;
        m_host.record().set(RecordKeys::arcAndCircle, choice->value);
        m_arcMethod->setEnabled(isArc);
        m_circleMethod->setEnabled(!isArc);
    }
    m_host.sendRecord();
}

void ArcPage::arcMethodChanged()
{
    if (const Choice* choice = currentChoice(m_arcMethod, arcMethods)) {
        m_host.record().set(RecordKeys::arcMode, choice->value);
    }
    m_host.sendRecord();
}

void ArcPage::circleMethodChanged()
{
    if (const Choice* choice = currentChoice(m_circleMethod, circleMethods)) {
        m_host.record().set(RecordKeys::circleMode, choice->value);
    }
    m_host.sendRecord();
}

void ArcPage::clockWiseChanged()
{
    m_host.record().set(RecordKeys::clockWise,
                        m_clockWise->isChecked() ? RecordValues::one : RecordValues::two);
    m_host.sendRecord();
}
