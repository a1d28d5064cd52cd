#pragma once

#include "viewer/CanvasTool.h"
#include "viewer/tools/RectangleTool.h"

#include <QCoreApplication>
#include <QPolygonF>

/// Selects the feature under a click.
class FeatureSelectionTool : public CanvasTool {
    Q_DECLARE_TR_FUNCTIONS(SelectionTools)

public:
    using CanvasTool::CanvasTool;

    void press(const QPointF& point, bool extends) override;
    QString hint() const override;

protected:
    /// What a click on that feature selects.
    virtual Pcb::Indexes pickedBy(int feature) const { return {feature}; }
};

/// Selects all that touches a feature, its net, or the polyline that it belongs to.
class NetSelectionTool : public FeatureSelectionTool {
    Q_DECLARE_TR_FUNCTIONS(SelectionTools)

public:
    enum class Mode { Layer, Board, Polyline };

    NetSelectionTool(Canvas& canvas, Mode mode) : FeatureSelectionTool(canvas), m_mode(mode) {}

    QString hint() const override;

protected:
    Pcb::Indexes pickedBy(int feature) const override;

private:
    Mode m_mode;
};

/// Selects what lies wholly in a rectangle.
class RectangleSelectionTool : public RectangleTool {
    Q_DECLARE_TR_FUNCTIONS(SelectionTools)

public:
    using RectangleTool::RectangleTool;

    QString hint() const override;

protected:
    void take(const QRectF& rectangle, bool extends) override;
};

/// Selects what lies wholly in a polygon, which a right click ends.
class PolygonSelectionTool : public CanvasTool {
    Q_DECLARE_TR_FUNCTIONS(SelectionTools)

public:
    using CanvasTool::CanvasTool;

    void press(const QPointF& point, bool extends) override;
    void move(const QPointF& point) override { m_cursor = point; }
    void finish() override;
    void cancel() override { m_corners.clear(); }
    Overlay overlay() const override;
    QString hint() const override;

private:
    QPolygonF m_corners;
    QPointF m_cursor;
    bool m_extends = false;
};
