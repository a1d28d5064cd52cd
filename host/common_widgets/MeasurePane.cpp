#include "MeasurePane.h"

#include <UiApiStandIn.h>

#include <QLabel>
#include <QVBoxLayout>

#include <cmath>

namespace {

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
    m_distance->setText(CanvasHost::lengthText(std::hypot(offset.x(), offset.y())));
    m_offsets->setText(
        tr("dx %1   dy %2")
            .arg(CanvasHost::lengthText(offset.x()), CanvasHost::lengthText(offset.y())));
}
