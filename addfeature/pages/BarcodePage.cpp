#include "addfeature/pages/BarcodePage.h"

#include "addfeature/FeatureRecord.h"
#include "addfeature/PageHost.h"
#include "addfeature/Units.h"
#include "addfeature/pages/Choices.h"
#include "addfeature/pages/Entries.h"
#include "addfeature/pages/Fields.h"
#include "plugin/RecordKeys.h"

#include <ui_api.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr double largestHeight = 50000.0;

// The one type that is a matrix; the values are the items' numbers.
constexpr int matrixType = 4;
const Choices types = {
    {QT_TRANSLATE_NOOP("AddFeature", "UPC39"), RecordValues::one},
    {QT_TRANSLATE_NOOP("AddFeature", "UPC39 ascii"), RecordValues::two},
    {QT_TRANSLATE_NOOP("AddFeature", "CODE128B"), RecordValues::three},
    {QT_TRANSLATE_NOOP("AddFeature", "CODE128C"), RecordValues::four},
    {QT_TRANSLATE_NOOP("AddFeature", "ECC-200"), RecordValues::five},
};

// The values run against the order of the items.
const Choices positions = {
    {QT_TRANSLATE_NOOP("AddFeature", "Top"), RecordValues::two},
    {QT_TRANSLATE_NOOP("AddFeature", "Bottom"), RecordValues::one},
};

const QString& onOff(const QCheckBox* box)
{
    return box->isChecked() ? RecordValues::one : RecordValues::two;
}

}  // namespace

BarcodePage::BarcodePage(PageHost& host, QComboBox* type, QWidget* parent)
    : Page(host, parent), m_type(type)
{
    setObjectName(QStringLiteral("m_pBarcodePage"));
    fillChoices(m_type, types);
    createControls();
    layOut();
    retranslate();
    writeDefaults();
    connectControls();
}

void BarcodePage::createControls()
{
    m_addString = new QCheckBox(this);
    m_addString->setObjectName(QStringLiteral("m_pAddStringCB"));
    m_position = new QComboBox(this);
    m_position->setObjectName(QStringLiteral("m_pPositionCMB"));
    m_position->setEnabled(false);
    fillChoices(m_position, positions);
    m_background = new QCheckBox(this);
    m_background->setObjectName(QStringLiteral("m_pBackgroundCB"));
    m_addMarkers = new QCheckBox(this);
    m_addMarkers->setObjectName(QStringLiteral("m_pAddMarkersCB"));

    m_height =
        Fields::create(m_host, Fields::Pattern::Decimal, QStringLiteral("m_pHeightLE"), this);
    m_height->setText(QStringLiteral("250"));
    m_heightLabel = Fields::createLabel(QStringLiteral("m_pHeightLB"), this, m_height);
    m_heightUnit = Fields::createLabel(QStringLiteral("m_pHeightUnitLB"), this);

    m_matrixButton = new QPushButton(this);
    m_matrixButton->setObjectName(QStringLiteral("m_pMatrixPB"));
    m_matrix = Fields::create(m_host, Fields::Pattern::Text, QStringLiteral("m_pMatrixLE"), this);
    m_matrix->setText(QStringLiteral("Minimal"));
    enableMatrix(false);
}

void BarcodePage::layOut()
{
    auto* height = new QHBoxLayout;
    height->addWidget(m_height);
    height->addWidget(m_heightUnit);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    grid->addWidget(m_addString, 0, 0);
    grid->addWidget(m_position, 0, 1);
    grid->addWidget(m_background, 1, 0);
    grid->addWidget(m_addMarkers, 1, 1);
    grid->addWidget(m_heightLabel, 2, 0);
    grid->addLayout(height, 2, 1);
    grid->addWidget(m_matrixButton, 3, 0);
    grid->addWidget(m_matrix, 3, 1);
}

void BarcodePage::writeDefaults()
{
    FeatureRecord& record = m_host.record();
    record.set(RecordKeys::addString, RecordValues::two);
    record.set(RecordKeys::addBackground, RecordValues::two);
    record.set(RecordKeys::stringPosition, RecordValues::two);
    record.set(RecordKeys::addMarkers, RecordValues::two);
    record.set(RecordKeys::barcodeMatrix, m_matrix->text());
    // The first height is one in mil, whatever the unit.
    record.set(RecordKeys::barcodeHeight, Units::toStored(m_height->text(), false));
}

void BarcodePage::connectControls()
{
    QObject* const owner = m_host.slotOwner();
    connect(m_addString, SIGNAL(stateChanged(int)), owner,
            SLOT(on_AddString_CheckState_Changed(int)));
    connect(m_position, SIGNAL(currentIndexChanged(QString)), owner,
            SLOT(on_m_pPositionCMB_ComboBox_Changed()));
    connect(m_background, SIGNAL(stateChanged(int)), owner,
            SLOT(on_m_pBackgroundCB_CheckState_Changed(int)));
    connect(m_addMarkers, SIGNAL(stateChanged(int)), owner,
            SLOT(on_m_pAddMarkersCB_CheckState_Changed(int)));
    connect(m_height, SIGNAL(editingFinished()), owner, SLOT(on_m_pHeightLE_editingFinished()));
    connect(m_matrix, SIGNAL(editingFinished()), owner, SLOT(on_m_pMatrixLE_editingFinished()));
    connect(m_matrixButton, SIGNAL(clicked()), owner, SLOT(on_m_pMatrixPB_clicked()));
}

void BarcodePage::retranslate()
{
    retranslateChoices(m_type, types);
    retranslateChoices(m_position, positions);
    m_addString->setText(tr("Add String"));
    m_position->setAccessibleName(tr("Position of the string"));
    m_background->setText(tr("Background"));
    m_addMarkers->setText(tr("Add Markers"));
    m_heightLabel->setText(tr("Height\t:"));
    m_heightUnit->setText(tr("mil"));
    m_matrixButton->setText(tr("Matrix\t:"));
    m_matrix->setAccessibleName(tr("Matrix"));
}

void BarcodePage::changeUnit(bool isMetric)
{
    m_height->changeunit(isMetric);  // the label beside it reads "mil" in both
}

void BarcodePage::barcodeTypeChanged()
{
    const int type = m_type->currentIndex();
    m_host.record().set(RecordKeys::barcodeMode, type + 1);
    enableMatrix(type == matrixType);
}

void BarcodePage::enableMatrix(bool enabled)
{
    m_addMarkers->setEnabled(enabled);
    m_matrixButton->setEnabled(enabled);
    m_matrix->setEnabled(enabled);
}

void BarcodePage::addStringChanged()
{
    m_host.record().set(RecordKeys::addString, onOff(m_addString));
    m_position->setEnabled(m_addString->isChecked());
}

void BarcodePage::positionChanged()
{
    if (const Choice* choice = currentChoice(m_position, positions)) {
        m_host.record().set(RecordKeys::stringPosition, choice->value);
    }
}

void BarcodePage::backgroundChanged()
{
    // Deliberately not the Background box itself: the one for the markers decides.
    m_host.record().set(RecordKeys::addBackground, onOff(m_addMarkers));
}

void BarcodePage::addMarkersChanged()
{
    m_host.record().set(RecordKeys::addMarkers, onOff(m_addMarkers));
}

void BarcodePage::heightEdited()
{
    finishLength(m_host, {m_height, RecordKeys::barcodeHeight, largestHeight, false, false});
}

void BarcodePage::matrixEdited()
{
    m_host.record().set(RecordKeys::barcodeMatrix, m_matrix->text());
}
