#include "viewer/tools/PlaceTool.h"

#include "board/EditOps.h"
#include "viewer/tools/PlaceHints.h"

void PlaceTool::setDirection(const Pcb::Brush& brush)
{
    m_placement.setDirection(brush.direction, brush.fixedAngle);
}

void PlaceTool::setSpecialTexts(const QMap<QString, QString>& texts)
{
    m_placement.setSpecialTexts(texts);
}

void PlaceTool::fill()
{
    add(m_placement.fill());
}

void PlaceTool::press(const QPointF& point, bool /*extends*/)
{
    add(m_placement.press(point));
}

void PlaceTool::finish()
{
    add(m_placement.finish());
}

void PlaceTool::add(const Pcb::Features& features)
{
    if (!features.empty()) {
        document().applyBoard(tr("Add feature"), Pcb::withAdded(board(), features));
    }
}

Overlay PlaceTool::overlay() const
{
    Overlay overlay{m_placement.preview(), {}, {}};
    const std::optional<QLineF> line = m_placement.begunLine();
    if (line && line->length() > 0) {
        overlay.note = {line->p2(), PlaceHints::measured(*line)};
    }
    return overlay;
}

QString PlaceTool::hint() const
{
    return PlaceHints::of(m_placement);
}
