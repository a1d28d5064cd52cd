#include "viewer/tools/PlaceTool.h"

#include "board/EditOps.h"

#include <QCoreApplication>

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
    return {m_placement.preview(), {}, {}};
}

QString PlaceTool::hint() const
{
    using Pcb::Kind;
    const Pcb::Brush& brush = m_placement.brush();
    const bool goesOn =
        (brush.kind == Kind::Line && brush.line == Pcb::LineMode::Polyline) ||
        (brush.kind == Kind::Surface && brush.surface == Pcb::SurfaceShape::Polygon);
    if (goesOn && m_placement.isActive()) {
        return tr("Click the next point; a right click ends it.");
    }
    const QString leftOut = m_placement.leftOut();
    if (!leftOut.isEmpty()) {
        return tr("Click where the feature begins; its code cannot carry \"%1\".").arg(leftOut);
    }
    if (m_placement.isActive()) {
        return tr("Click the next point; a right click cancels.");
    }
    const bool hasSymbol = brush.kind != Kind::Surface && brush.kind != Kind::Text;
    return hasSymbol && !brush.symbolNamed
               ? tr("Click where the feature begins; no symbol is named, %1 is drawn.")
                     .arg(brush.symbol)
               : tr("Click where the feature begins.");
}
