#include "addfeature/pages/PadPage.h"

#include "addfeature/FeatureRecord.h"
#include "addfeature/PageHost.h"
#include "addfeature/Units.h"
#include "addfeature/pages/Entries.h"
#include "addfeature/pages/Fields.h"
#include "plugin/RecordKeys.h"

#include <ui_api.h>

#include <QDoubleValidator>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QRegExpValidator>

namespace {

constexpr double largestCount = 50.0;
constexpr double largestFactor = 100.0;

// A lone "0" does not match, though the page itself writes it.
const char pitchPattern[] =
    "[-]?[1-9][0-9]{0,14}|[-]?[0][.][0-9]{0,5}|[-]?[1-9][0-9]{0,}[.][0-9]{1,5}|^$";

}  // namespace

PadPage::PadPage(PageHost& host, QWidget* parent)
    : Page(host, parent),
      m_isMetric(Fields::shownMetric(host)),
      m_x(createAxis(QStringLiteral("Nx"), QStringLiteral("Dx"), QStringLiteral("Xscl"))),
      m_y(createAxis(QStringLiteral("Ny"), QStringLiteral("Dy"), QStringLiteral("Yscl")))
{
    setObjectName(QStringLiteral("m_pPadPage"));
    addValidators();
    layOut();
    retranslate();
    writeDefaults();
    connectControls();
}

PadPage::Axis PadPage::createAxis(const QString& count, const QString& pitch, const QString& factor)
{
    const auto field = [this](Fields::Pattern pattern, const QString& name, const QString& text) {
        auto* created =
            Fields::create(m_host, pattern, QStringLiteral("m_pDril%1LE").arg(name), this);
        created->setText(text);
        return created;
    };
    const auto label = [this](const QString& name, QWidget* buddy) {
        return Fields::createLabel(QStringLiteral("m_pDril%1LB").arg(name), this, buddy);
    };

    Axis axis{};
    axis.count = field(Fields::Pattern::Decimal, count, RecordValues::one);
    axis.pitch = field(Fields::Pattern::Length, pitch, RecordValues::zero);
    axis.factor = field(Fields::Pattern::Decimal, factor, RecordValues::one);
    axis.countLabel = label(count, axis.count);
    axis.pitchLabel = label(pitch, axis.pitch);
    axis.factorLabel = label(factor, axis.factor);
    axis.pitchUnit = label(pitch + QStringLiteral("Unit"), nullptr);
    return axis;
}

void PadPage::addValidators()
{
    // What is typed is read with a point and without groups, whatever the user's language writes.
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator | QLocale::OmitGroupSeparator);
    auto* pitch = new QRegExpValidator(QRegExp(QLatin1String(pitchPattern)), this);
    for (const Axis& axis : {m_x, m_y}) {
        auto* count = new QIntValidator(axis.count);
        count->setLocale(plain);
        axis.count->setValidator(count);
        axis.pitch->setValidator(pitch);
        auto* factor = new QDoubleValidator(axis.factor);
        factor->setLocale(plain);
        axis.factor->setValidator(factor);
    }
}

void PadPage::layOut()
{
    auto* line = new QFrame(this);
    line->setObjectName(QStringLiteral("m_pPadColumnsFrame"));
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);

    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addLayout(column(m_x), 1);
    columns->addWidget(line);
    columns->addLayout(column(m_y), 1);
}

QGridLayout* PadPage::column(const Axis& axis)
{
    auto* grid = new QGridLayout;
    grid->addWidget(axis.countLabel, 0, 0);
    grid->addWidget(axis.count, 0, 1);
    grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding), 0, 2);
    grid->addWidget(axis.pitchLabel, 1, 0);
    grid->addWidget(axis.pitch, 1, 1);
    grid->addWidget(axis.pitchUnit, 1, 2);
    grid->addWidget(axis.factorLabel, 2, 0);
    grid->addWidget(axis.factor, 2, 1);
    grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding), 2, 2);
    grid->setColumnStretch(1, 1);
    return grid;
}

void PadPage::writeDefaults()
{
    FeatureRecord& record = m_host.record();
    record.set(RecordKeys::padNx, m_x.count->text());
    record.set(RecordKeys::padDx, Units::toStored(m_x.pitch->text(), m_host.isMetric()));
    record.set(RecordKeys::padXscl, m_x.factor->text());
    record.set(RecordKeys::padNy, m_y.count->text());
    record.set(RecordKeys::padDy, Units::toStored(m_y.pitch->text(), m_host.isMetric()));
    record.set(RecordKeys::padYscl, m_y.factor->text());
}

void PadPage::connectControls()
{
    QObject* const owner = m_host.slotOwner();
    connect(m_x.count, SIGNAL(textChanged(const QString&)), owner,
            SLOT(on_m_pDrilNxLE_editingFinished(const QString&)));
    connect(m_x.pitch, SIGNAL(editingFinished()), owner, SLOT(on_m_pDrilDxLE_editingFinished()));
    connect(m_x.factor, SIGNAL(textChanged(const QString&)), owner,
            SLOT(on_m_pDrilXsclLE_editingFinished(const QString&)));
    connect(m_y.count, SIGNAL(textChanged(const QString&)), owner,
            SLOT(on_m_pDrilNyLE_editingFinished(const QString&)));
    connect(m_y.pitch, SIGNAL(editingFinished()), owner, SLOT(on_m_pDrilDyLE_editingFinished()));
    connect(m_y.factor, SIGNAL(textChanged(const QString&)), owner,
            SLOT(on_m_pDrilYsclLE_editingFinished(const QString&)));
}

void PadPage::retranslate()
{
    m_x.countLabel->setText(tr("Nx   : "));
    m_x.pitchLabel->setText(tr("Dx   : "));
    m_x.factorLabel->setText(tr("Xscl : "));
    m_y.countLabel->setText(tr("Ny   : "));
    m_y.pitchLabel->setText(tr("Dy   : "));
    m_y.factorLabel->setText(tr("Yscl : "));
    showUnits();
}

void PadPage::changeUnit(bool isMetric)
{
    m_x.pitch->changeunit(isMetric);
    m_y.pitch->changeunit(isMetric);
    m_isMetric = isMetric;
    showUnits();
}

void PadPage::showUnits()
{
    m_x.pitchUnit->setText(Units::lengthLabel(m_isMetric));
    m_y.pitchUnit->setText(Units::lengthLabel(m_isMetric));
}

void PadPage::nxChanged(const QString& text)
{
    changeNumber(m_host, {m_x.count, RecordKeys::padNx, 0.0, largestCount}, text);
}

void PadPage::nyChanged(const QString& text)
{
    changeNumber(m_host, {m_y.count, RecordKeys::padNy, 0.0, largestCount}, text);
}

void PadPage::xsclChanged(const QString& text)
{
    changeNumber(m_host, {m_x.factor, RecordKeys::padXscl, -largestFactor, largestFactor}, text);
}

void PadPage::ysclChanged(const QString& text)
{
    changeNumber(m_host, {m_y.factor, RecordKeys::padYscl, -largestFactor, largestFactor}, text);
}

void PadPage::dxEdited()
{
    finishPitch(m_host, m_x.pitch, RecordKeys::padDx);
}

void PadPage::dyEdited()
{
    finishPitch(m_host, m_y.pitch, RecordKeys::padDy);
}
