#include "viewer/tools/ViewTools.h"

#include <UiApiStandIn.h>

#include <algorithm>
#include <iterator>

QString AreaZoomTool::hint() const
{
    return isActive() ? tr("Click the opposite corner.")
                      : tr("Drag the area to show, or click two corners of it.");
}

void HighlightTool::press(const QPointF& point, bool /*extends*/)
{
    const int feature = canvas().featureAt(point);
    CanvasState after = document().state();
    if (feature < 0) {
        after.highlighted.clear();
        document().apply(tr("Highlight nothing"), after);
        return;
    }
    const Pcb::Indexes net = Pcb::netOf(board(), feature);
    Pcb::Indexes all;
    if (std::includes(after.highlighted.begin(), after.highlighted.end(), net.begin(), net.end())) {
        std::set_difference(after.highlighted.begin(), after.highlighted.end(), net.begin(),
                            net.end(), std::back_inserter(all));
    } else {
        std::set_union(after.highlighted.begin(), after.highlighted.end(), net.begin(), net.end(),
                       std::back_inserter(all));
    }
    after.highlighted = all;
    document().apply(tr("Highlight"), after);
}

QString HighlightTool::hint() const
{
    return tr("Click a feature to highlight its net; once more to end that.");
}

void MarkTool::press(const QPointF& point, bool /*extends*/)
{
    m_cursor = point;
    if (!m_first) {
        m_first = point;
        return;
    }
    CanvasState after = document().state();
    const Mark mark = markTo(point);
    after.marks.push_back(mark);
    cancel();
    document().apply(tr("Mark"), after);
    canvas().say(m_orthogonal ? tr("Along x %1, along y %2.")
                                    .arg(CanvasHost::lengthText(qAbs(mark.line.dx())),
                                         CanvasHost::lengthText(qAbs(mark.line.dy())))
                              : tr("Distance %1.").arg(CanvasHost::lengthText(mark.line.length())));
}

void MarkTool::finish()
{
    if (m_first) {
        cancel();
        return;
    }
    CanvasState after = document().state();
    after.marks.clear();
    document().apply(tr("Take marks away"), after);
}

Overlay MarkTool::overlay() const
{
    return m_first ? Overlay{{}, {}, {markTo(m_cursor)}} : Overlay{};
}

QString MarkTool::hint() const
{
    return m_first ? tr("Click the second point to mark.")
                   : tr("Click the first point to mark; a right click takes the marks away.");
}

void MeasureTool::press(const QPointF& point, bool /*extends*/)
{
    m_cursor = point;
    if (!m_first) {
        m_first = point;
        return;
    }
    const QPointF first = *m_first;
    cancel();
    m_listener(first, point);
}

Overlay MeasureTool::overlay() const
{
    return m_first ? Overlay{{}, {}, {{QLineF(*m_first, m_cursor), false}}} : Overlay{};
}

QString MeasureTool::hint() const
{
    return m_first ? tr("Click the second point to measure to.")
                   : tr("Click the first point to measure from.");
}

void PickTool::press(const QPointF& point, bool /*extends*/)
{
    const int feature = canvas().featureAt(point);
    if (feature >= 0) {
        // The listener may put another tool into this one's place.
        const Listener listener = m_listener;
        listener(feature);
    }
}
