#pragma once

#include "viewer/CanvasTool.h"
#include "viewer/tools/RectangleTool.h"

#include <QCoreApplication>

#include <functional>
#include <optional>
#include <utility>

/// Shows a rectangle of the board as large as possible.
class AreaZoomTool : public RectangleTool {
    Q_DECLARE_TR_FUNCTIONS(ViewTools)

public:
    using RectangleTool::RectangleTool;

    QString hint() const override;

protected:
    void take(const QRectF& rectangle, bool /*extends*/) override { canvas().showArea(rectangle); }
};

/// Highlights what belongs to a feature's net, until it is clicked again.
class HighlightTool : public CanvasTool {
    Q_DECLARE_TR_FUNCTIONS(ViewTools)

public:
    using CanvasTool::CanvasTool;

    void press(const QPointF& point, bool extends) override;
    QString hint() const override;
};

/// Marks the way between two points. A right click removes all marks.
class MarkTool : public CanvasTool {
    Q_DECLARE_TR_FUNCTIONS(ViewTools)

public:
    MarkTool(Canvas& canvas, bool orthogonal) : CanvasTool(canvas), m_orthogonal(orthogonal) {}

    bool takesPlace() const override { return true; }
    void press(const QPointF& point, bool extends) override;
    void move(const QPointF& point) override { m_cursor = point; }
    void finish() override;
    void cancel() override { m_first.reset(); }
    Overlay overlay() const override;
    QString hint() const override;

private:
    Mark markTo(const QPointF& point) const { return {QLineF(*m_first, point), m_orthogonal}; }

    bool m_orthogonal;
    std::optional<QPointF> m_first;
    QPointF m_cursor;
};

/// Tells a listener the two points of a distance.
class MeasureTool : public CanvasTool {
    Q_DECLARE_TR_FUNCTIONS(ViewTools)

public:
    using Listener = std::function<void(const QPointF&, const QPointF&)>;
    MeasureTool(Canvas& canvas, Listener listener)
        : CanvasTool(canvas), m_listener(std::move(listener))
    {
    }

    bool takesPlace() const override { return true; }
    void press(const QPointF& point, bool extends) override;
    void move(const QPointF& point) override { m_cursor = point; }
    void cancel() override { m_first.reset(); }
    Overlay overlay() const override;
    QString hint() const override;

private:
    Listener m_listener;
    std::optional<QPointF> m_first;
    QPointF m_cursor;
};

/// Tells a listener which feature was clicked.
class PickTool : public CanvasTool {
public:
    using Listener = std::function<void(int feature)>;
    PickTool(Canvas& canvas, QString hint, Listener listener)
        : CanvasTool(canvas), m_hint(std::move(hint)), m_listener(std::move(listener))
    {
    }

    void press(const QPointF& point, bool extends) override;
    QString hint() const override { return m_hint; }

private:
    QString m_hint;
    Listener m_listener;
};
