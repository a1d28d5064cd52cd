#include "viewer/tools/RectangleTool.h"

void RectangleTool::press(const QPointF& point, bool extends)
{
    m_extends = extends;
    if (m_isWaiting) {
        end(point);
        return;
    }
    m_first = m_last = point;
    m_isActive = true;
}

void RectangleTool::release(const QPointF& point)
{
    if (!m_isActive || m_isWaiting) {
        return;
    }
    if ((point - m_first).manhattanLength() > canvas().tolerance()) {
        end(point);
    } else {
        m_isWaiting = true;
    }
}

void RectangleTool::end(const QPointF& point)
{
    cancel();
    take(QRectF(m_first, point).normalized(), m_extends);
}

Overlay RectangleTool::overlay() const
{
    Overlay overlay;
    if (m_isActive) {
        overlay.rubber.addRect(QRectF(m_first, m_last).normalized());
    }
    return overlay;
}
