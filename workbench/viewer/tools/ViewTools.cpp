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
    if (feature < 0) {
        document().highlight(tr("Highlight nothing"), {});
        return;
    }
    const Pcb::Indexes& before = document().state().highlighted;
    const Pcb::Indexes net = Pcb::netOf(board(), feature);
    Pcb::Indexes all;
    if (std::includes(before.begin(), before.end(), net.begin(), net.end())) {
        std::set_difference(before.begin(), before.end(), net.begin(), net.end(),
                            std::back_inserter(all));
    } else {
        std::set_union(before.begin(), before.end(), net.begin(), net.end(),
                       std::back_inserter(all));
    }
    document().highlight(tr("Highlight"), all);
}

QString HighlightTool::hint() const
{
    return tr("Click a feature to highlight its net, and again to end it.");
}

void MarkTool::press(const QPointF& point, bool /*extends*/)
{
    m_cursor = point;
    if (!m_first) {
        m_first = point;
        return;
    }
    const Mark mark = markTo(point);
    std::vector<Mark> marks = document().state().marks;
    marks.push_back(mark);
    cancel();
    document().setMarks(tr("Mark"), marks);
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
    document().setMarks(tr("Remove marks"), {});
}

Overlay MarkTool::overlay() const
{
    return m_first ? Overlay{{}, {}, {markTo(m_cursor)}} : Overlay{};
}

QString MarkTool::hint() const
{
    return m_first ? tr("Click the second point to mark.")
                   : tr("Click the first point to mark; a right click removes the marks.");
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
        // The listener may replace this tool by another.
        const Listener listener = m_listener;
        listener(feature);
    }
}
