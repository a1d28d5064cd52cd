#include "MeasurePane.h"

#include <UiApiStandIn.h>

#include <QLabel>
#include <QVBoxLayout>

#include <cmath>

namespace {

struct Unit {
    double micrometres;
    int decimals;
    const char* name;
};

Unit unitOf(CanvasHost::DisplayUnit unit)
{
    switch (unit) {
        case CanvasHost::DisplayUnit::Mil:
            return {25.4, 2, "mil"};
        case CanvasHost::DisplayUnit::Inch:
            return {25400, 5, "inch"};
        case CanvasHost::DisplayUnit::Micrometre:
            return {1, 1, "\u00b5m"};
        case CanvasHost::DisplayUnit::Millimetre:
            break;
    }
    return {1000, 4, "mm"};
}

QString length(double micrometres)
{
    const Unit unit = unitOf(CanvasHost::displayUnit());
    return QStringLiteral("%1 %2").arg(
        QString::number(micrometres / unit.micrometres, 'f', unit.decimals),
        QString::fromUtf8(unit.name));
}

QList<MeasurePane*>& panes()
{
    static QList<MeasurePane*> thePanes;
    return thePanes;
}

}  // namespace

MeasurePane::MeasurePane(QWidget* window)
    : QWidget(window),
      m_distance(new QLabel(this)),
      m_offsets(new QLabel(this)),
      m_hint(new QLabel(this))
{
    setObjectName(QStringLiteral("m_pMeasurePane"));
    m_distance->setObjectName(QStringLiteral("m_pDistanceLB"));
    m_offsets->setObjectName(QStringLiteral("m_pOffsetsLB"));
    m_hint->setObjectName(QStringLiteral("m_pMeasureHintLB"));
    QFont large = m_distance->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    m_distance->setFont(large);
    m_hint->setEnabled(false);
    for (QLabel* const label : {m_distance, m_offsets}) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_distance);
    layout->addWidget(m_offsets);
    layout->addStretch();
    layout->addWidget(m_hint);
    panes().append(this);
    retranslate();
}

MeasurePane::~MeasurePane()
{
    panes().removeOne(this);
}

const QList<MeasurePane*>& MeasurePane::all()
{
    return panes();
}

void MeasurePane::reset()
{
    m_points.reset();
    retranslate();
}

void MeasurePane::show(const QPointF& from, const QPointF& to)
{
    m_points.emplace(from, to);
    retranslate();
}

void MeasurePane::retranslate()
{
    window()->setWindowTitle(tr("Measure"));
    m_hint->setText(tr("Click two points on the canvas."));
    if (!m_points) {
        m_distance->setText(tr("No distance yet"));
        m_offsets->clear();
        return;
    }
    const QPointF offset = m_points->second - m_points->first;
    m_distance->setText(length(std::hypot(offset.x(), offset.y())));
    m_offsets->setText(tr("dx %1   dy %2").arg(length(offset.x()), length(offset.y())));
}
