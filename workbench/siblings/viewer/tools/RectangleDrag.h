#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include <optional>

/// A rectangle given by its corners: dragged, or by two clicks.
class RectangleDrag {
public:
    /// The rectangle, when this was its second corner.
    std::optional<QRectF> press(const QPointF& point)
    {
        if (m_isWaiting) {
            return end(point);
        }
        m_first = m_last = point;
        m_isActive = true;
        return {};
    }
    void move(const QPointF& point) { m_last = point; }
    /// The rectangle, when it was dragged farther than `least`; else it waits for another click.
    std::optional<QRectF> release(const QPointF& point, double least)
    {
        if (!m_isActive || m_isWaiting) {
            return {};
        }
        if ((point - m_first).manhattanLength() > least) {
            return end(point);
        }
        m_isWaiting = true;
        return {};
    }
    void cancel() { m_isActive = m_isWaiting = false; }

    bool isActive() const { return m_isActive; }
    QPainterPath path() const
    {
        QPainterPath path;
        if (m_isActive) {
            path.addRect(QRectF(m_first, m_last).normalized());
        }
        return path;
    }

private:
    QRectF end(const QPointF& point)
    {
        cancel();
        return QRectF(m_first, point).normalized();
    }

    bool m_isActive = false;
    bool m_isWaiting = false;
    QPointF m_first;
    QPointF m_last;
};
