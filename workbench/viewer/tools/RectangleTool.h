#pragma once

#include "viewer/CanvasTool.h"

/// A tool that is given a rectangle: dragged, or by a click on each of two corners.
class RectangleTool : public CanvasTool {
public:
    using CanvasTool::CanvasTool;

    void press(const QPointF& point, bool extends) override;
    void move(const QPointF& point) override { m_last = point; }
    void release(const QPointF& point) override;
    void cancel() override { m_isActive = m_isWaiting = false; }
    Overlay overlay() const override;

protected:
    /// The rectangle is complete. `extends`: Ctrl was held at the last press.
    virtual void take(const QRectF& rectangle, bool extends) = 0;

    bool isActive() const { return m_isActive; }

private:
    void end(const QPointF& point);

    bool m_isActive = false;   ///< the first corner is given
    bool m_isWaiting = false;  ///< it was a click: the second corner is to be one too
    bool m_extends = false;
    QPointF m_first;
    QPointF m_last;
};
