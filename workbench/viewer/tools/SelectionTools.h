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

/// What a feature brings with it into the selection.
struct Group {
    const char* hint;  ///< to be translated in the context "SelectionTools"
    Pcb::Indexes (*of)(const Pcb::Board& board, int feature);
};

namespace Groups {

extern const Group layerNet;
extern const Group boardNet;
extern const Group polyline;

}  // namespace Groups

/// Selects the group that a feature belongs to.
class GroupSelectionTool : public FeatureSelectionTool {
    Q_DECLARE_TR_FUNCTIONS(SelectionTools)

public:
    GroupSelectionTool(Canvas& canvas, const Group& group)
        : FeatureSelectionTool(canvas), m_group(group)
    {
    }

    QString hint() const override { return tr(m_group.hint); }

protected:
    Pcb::Indexes pickedBy(int feature) const override { return m_group.of(board(), feature); }

private:
    const Group& m_group;
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
    bool isBegun() const override { return !m_corners.isEmpty(); }
    Overlay overlay() const override;
    QString hint() const override;

private:
    QPolygonF m_corners;
    QPointF m_cursor;
    bool m_extends = false;
};
