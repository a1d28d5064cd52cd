#include "viewer/tools/ViewTools.h"

#include <UiApiStandIn.h>

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
    document().highlight(tr("Highlight"), Pcb::toggled(document().state().highlighted,
                                                       Pcb::netOf(board(), feature)));
}

QString HighlightTool::hint() const
{
    return tr("Click a feature to highlight its net, again to end it.");
}

void TwoPointTool::press(const QPointF& point, bool /*extends*/)
{
    m_cursor = point;
    if (!m_first) {
        m_first = point;
        return;
    }
    const QLineF line(*m_first, point);
    cancel();
    take(line);
}

Overlay TwoPointTool::overlay() const
{
    return m_first ? Overlay{{}, {}, {{QLineF(*m_first, m_cursor), m_orthogonal}}} : Overlay{};
}

void MarkTool::take(const QLineF& line)
{
    std::vector<Mark> marks = document().state().marks;
    marks.push_back({line, isOrthogonal()});
    document().setMarks(tr("Mark"), marks);
    canvas().say(isOrthogonal() ? tr("Along x %1, along y %2.")
                                      .arg(CanvasHost::lengthText(qAbs(line.dx())),
                                           CanvasHost::lengthText(qAbs(line.dy())))
                                : tr("Distance %1.").arg(CanvasHost::lengthText(line.length())));
}

void MarkTool::finish()
{
    if (isActive()) {
        cancel();
    } else {
        document().setMarks(tr("Remove marks"), {});
    }
}

QString MarkTool::hint() const
{
    return isActive() ? tr("Click the second point to mark.")
                      : tr("Click the first point; a right click removes the marks.");
}

QString MeasureTool::hint() const
{
    return isActive() ? tr("Click the second point to measure to.")
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
