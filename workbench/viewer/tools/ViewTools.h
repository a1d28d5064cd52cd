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

/// A tool that is given two points, each by a click.
class TwoPointTool : public CanvasTool {
public:
    TwoPointTool(Canvas& canvas, bool orthogonal) : CanvasTool(canvas), m_orthogonal(orthogonal) {}

    bool takesPlace() const override { return true; }
    void press(const QPointF& point, bool extends) override;
    void move(const QPointF& point) override { m_cursor = point; }
    void cancel() override { m_first.reset(); }
    Overlay overlay() const override;

protected:
    virtual void take(const QLineF& line) = 0;

    bool isActive() const { return m_first.has_value(); }
    bool isOrthogonal() const { return m_orthogonal; }

private:
    bool m_orthogonal;  ///< shown by its way along x and along y; else straight
    std::optional<QPointF> m_first;
    QPointF m_cursor;
};

/// Marks the way between two points. A right click removes all marks.
class MarkTool : public TwoPointTool {
    Q_DECLARE_TR_FUNCTIONS(ViewTools)

public:
    using TwoPointTool::TwoPointTool;

    void finish() override;
    QString hint() const override;

protected:
    void take(const QLineF& line) override;
};

/// Tells a listener the two points of a distance.
class MeasureTool : public TwoPointTool {
    Q_DECLARE_TR_FUNCTIONS(ViewTools)

public:
    using Listener = std::function<void(const QPointF&, const QPointF&)>;
    MeasureTool(Canvas& canvas, Listener listener)
        : TwoPointTool(canvas, false), m_listener(std::move(listener))
    {
    }

    QString hint() const override;

protected:
    void take(const QLineF& line) override { m_listener(line.p1(), line.p2()); }

private:
    Listener m_listener;
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
