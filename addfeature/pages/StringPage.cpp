#include "addfeature/pages/StringPage.h"

#include "addfeature/FeatureRecord.h"
#include "addfeature/PageHost.h"
#include "addfeature/Units.h"
#include "addfeature/pages/Entries.h"
#include "addfeature/pages/Fields.h"
#include "plugin/RecordKeys.h"

#include <ui_api.h>

#include <QGridLayout>
#include <QLabel>
#include <QRegExpValidator>

namespace {

constexpr double largestSize = 10000.0;
constexpr double characterSize = 200.0;
constexpr double strokeWidth = 24.0;

constexpr char unsignedPattern[] = "^[0-9]*(\\.[0-9]+)?$";

}  // namespace

StringPage::StringPage(PageHost& host, QWidget* parent)
    : Page(host, parent), m_isMetric(Fields::shownMetric(host))
{
    setObjectName(QStringLiteral("m_pStringPage"));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    m_xSize = addSize(grid, QStringLiteral("XSize"), characterSize);
    m_ySize = addSize(grid, QStringLiteral("YSize"), characterSize);
    m_lineWidth = addSize(grid, QStringLiteral("LineWidth"), strokeWidth);

    retranslate();
    writeDefaults();
    connectControls();
}

StringPage::Size StringPage::addSize(QGridLayout* grid, const QString& name, double mils)
{
    Size size{};
    size.field =
        Fields::create(m_host, Fields::Pattern::Decimal, QStringLiteral("m_p%1LE").arg(name), this);
    size.field->setText(Units::format(m_isMetric ? mils * Units::factor : mils));
    if (!m_isMetric) {
        size.field->setValidator(
            new QRegExpValidator(QRegExp(QLatin1String(unsignedPattern)), size.field));
    }
    size.label = Fields::createLabel(QStringLiteral("m_p%1LB").arg(name), this, size.field);
    size.unit = Fields::createLabel(QStringLiteral("m_p%1UnitLB").arg(name), this);

    const int row = grid->count() / 3;
    grid->addWidget(size.label, row, 0);
    grid->addWidget(size.field, row, 1);
    grid->addWidget(size.unit, row, 2);
    return size;
}

void StringPage::writeDefaults()
{
    FeatureRecord& record = m_host.record();
    record.set(RecordKeys::stringXSize, Units::toStored(m_xSize.field->text(), m_isMetric));
    record.set(RecordKeys::stringYSize, Units::toStored(m_ySize.field->text(), m_isMetric));
    record.set(RecordKeys::stringLineWidth, Units::toStored(m_lineWidth.field->text(), m_isMetric));
}

void StringPage::connectControls()
{
    QObject* const owner = m_host.slotOwner();
    connect(m_xSize.field, SIGNAL(editingFinished()), owner, SLOT(on_m_pXSizeLE_editingFinished()));
    connect(m_ySize.field, SIGNAL(editingFinished()), owner, SLOT(on_m_pYSizeLE_editingFinished()));
    connect(m_lineWidth.field, SIGNAL(editingFinished()), owner,
            SLOT(on_m_pLineWidthLE_editingFinished()));
}

void StringPage::retranslate()
{
    m_xSize.label->setText(tr("X Size  : "));
    m_ySize.label->setText(tr("Y Size  : "));
    m_lineWidth.label->setText(tr("Line Width : "));
    showUnits();
}

void StringPage::changeUnit(bool isMetric)
{
    for (const Size& size : {m_xSize, m_ySize, m_lineWidth}) {
        size.field->changeunit(isMetric);
    }
    m_isMetric = isMetric;
    showUnits();
}

void StringPage::showUnits()
{
    for (const Size& size : {m_xSize, m_ySize, m_lineWidth}) {
        size.unit->setText(Units::lengthLabel(m_isMetric));
    }
}

void StringPage::xSizeEdited()
{
    finish(m_xSize, RecordKeys::stringXSize);
}

void StringPage::ySizeEdited()
{
    finish(m_ySize, RecordKeys::stringYSize);
}

void StringPage::lineWidthEdited()
{
    finish(m_lineWidth, RecordKeys::stringLineWidth);
}

void StringPage::finish(const Size& size, const QString& key)
{
    finishLength(m_host, {size.field, key, largestSize, true, true});
}
