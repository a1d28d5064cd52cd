#include "addfeature/pages/PlotStampPage.h"

#include "addfeature/FeatureRecord.h"
#include "addfeature/PageHost.h"
#include "addfeature/pages/Choices.h"
#include "addfeature/pages/Fields.h"
#include "plugin/RecordKeys.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

namespace {

const Choices types = {
    {QT_TRANSLATE_NOOP("AddFeature", "String"), RecordValues::one},
    {QT_TRANSLATE_NOOP("AddFeature", "Barcode"), RecordValues::two},
};

const Choices fontSizes = {
    {QT_TRANSLATE_NOOP("AddFeature", "1"), RecordValues::one},
    {QT_TRANSLATE_NOOP("AddFeature", "2"), RecordValues::two},
    {QT_TRANSLATE_NOOP("AddFeature", "3"), RecordValues::three},
    {QT_TRANSLATE_NOOP("AddFeature", "4"), RecordValues::four},
};

const Choices zooms = {
    {QT_TRANSLATE_NOOP("AddFeature", "1"), RecordValues::one},
    {QT_TRANSLATE_NOOP("AddFeature", "2"), RecordValues::two},
    {QT_TRANSLATE_NOOP("AddFeature", "3"), RecordValues::three},
    {QT_TRANSLATE_NOOP("AddFeature", "4"), RecordValues::four},
    {QT_TRANSLATE_NOOP("AddFeature", "5"), RecordValues::five},
    {QT_TRANSLATE_NOOP("AddFeature", "6"), RecordValues::six},
    {QT_TRANSLATE_NOOP("AddFeature", "7"), RecordValues::seven},
};

}  // namespace

PlotStampPage::PlotStampPage(PageHost& host, QWidget* parent)
    : Page(host, parent),
      m_type(new QComboBox(this)),
      m_fontSize(new QComboBox(this)),
      m_zoom(new QComboBox(this)),
      m_typeLabel(Fields::createLabel(QStringLiteral("m_pOrbotechTypeLB"), this, m_type)),
      m_fontSizeLabel(
          Fields::createLabel(QStringLiteral("m_pOrbotechFontSizeLB"), this, m_fontSize)),
      m_zoomLabel(Fields::createLabel(QStringLiteral("m_pOrbotechZoomLB"), this, m_zoom))
{
    setObjectName(QStringLiteral("m_pPlotStampPage"));
    m_type->setObjectName(QStringLiteral("m_pOrbotechTypeCMB"));
    m_fontSize->setObjectName(QStringLiteral("m_pOrbotechFontSizeCMB"));
    m_zoom->setObjectName(QStringLiteral("m_pOrbotechZoomCMB"));
    fillChoices(m_type, types);
    fillChoices(m_fontSize, fontSizes);
    fillChoices(m_zoom, zooms);

    layOut();
    retranslate();
    writeDefaults();
    connectControls();
}

void PlotStampPage::layOut()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    grid->addWidget(m_typeLabel, 0, 0);
    grid->addWidget(m_type, 0, 1);
    grid->addWidget(m_fontSizeLabel, 1, 0);
    grid->addWidget(m_fontSize, 1, 1);
    grid->addWidget(m_zoomLabel, 2, 0);
    grid->addWidget(m_zoom, 2, 1);
}

void PlotStampPage::writeDefaults()
{
    m_host.record().set(RecordKeys::orbotechType, RecordValues::one);
    m_host.record().set(RecordKeys::orbotechFontSize, fontSize());
    m_host.record().set(RecordKeys::orbotechZoom, zoom());
}

void PlotStampPage::connectControls()
{
    QObject* const owner = m_host.slotOwner();
    connect(m_type, SIGNAL(currentIndexChanged(QString)), owner,
            SLOT(on_m_pOrbotechTypeCMB_ComboBox_Changed()));
    connect(m_fontSize, SIGNAL(currentIndexChanged(QString)), owner,
            SLOT(on_m_pOrbotechFontSizeCMB_ComboBox_Changed()));
    connect(m_zoom, SIGNAL(currentIndexChanged(QString)), owner,
            SLOT(on_m_pOrbotechZoomCMB_ComboBox_Changed()));
}

void PlotStampPage::retranslate()
{
    retranslateChoices(m_type, types);
    retranslateChoices(m_fontSize, fontSizes);
    retranslateChoices(m_zoom, zooms);
    m_typeLabel->setText(tr("Type\t\t:"));
    m_fontSizeLabel->setText(tr("Font Size\t:"));
    m_zoomLabel->setText(tr("Zoom Factor\t:"));
}

void PlotStampPage::typeChanged()
{
    m_host.record().set(RecordKeys::orbotechType, m_type->currentIndex() + 1);
    // A known type is stored as text; the number stays only for an index outside the list.
    if (const Choice* choice = currentChoice(m_type, types)) {
        m_host.record().set(RecordKeys::orbotechType, choice->value);
    }
}

void PlotStampPage::fontSizeChanged()
{
    m_host.record().set(RecordKeys::orbotechFontSize, fontSize());
}

void PlotStampPage::zoomChanged()
{
    m_host.record().set(RecordKeys::orbotechZoom, zoom());
}

int PlotStampPage::fontSize() const
{
    return m_fontSize->currentIndex() + 1;
}

int PlotStampPage::zoom() const
{
    return m_zoom->currentIndex() + 1;
}
