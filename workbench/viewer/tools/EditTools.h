#pragma once

#include "board/EditOps.h"
#include "viewer/CanvasTool.h"

#include <QCoreApplication>

#include <optional>

/// Does one thing to the feature that is clicked, or to the selection that it belongs to.
class ClickEditTool : public CanvasTool {
    Q_DECLARE_TR_FUNCTIONS(EditTools)

public:
    enum class Edit { Delete, DeleteToIntersection, Invert, Rotate, Mirror, Break };

    ClickEditTool(Canvas& canvas, Edit edit) : CanvasTool(canvas), m_edit(edit) {}

    void press(const QPointF& point, bool extends) override;
    QString hint() const override;

private:
    QString name() const;
    std::optional<Pcb::Board> edited(int feature, const QPointF& point) const;

    Edit m_edit;
};

/// Moves or copies the feature that is clicked, or the selection, to the second click.
class MoveTool : public CanvasTool {
    Q_DECLARE_TR_FUNCTIONS(EditTools)

public:
    enum class Way { Move, Copy };

    MoveTool(Canvas& canvas, Way way) : CanvasTool(canvas), m_way(way) {}

    void press(const QPointF& point, bool extends) override;
    void move(const QPointF& point) override { m_cursor = point; }
    void release(const QPointF& point) override;
    void cancel() override { m_grabbed.clear(); }
    Overlay overlay() const override;
    QString hint() const override;

private:
    void drop(const QPointF& point);

    Way m_way;
    Pcb::Indexes m_grabbed;  ///< empty: nothing is on its way
    QPointF m_from;
    QPointF m_cursor;
};

/// Pulls the nearer end of a line or an arc: to another place, or to another direction.
class LineEndTool : public CanvasTool {
    Q_DECLARE_TR_FUNCTIONS(EditTools)

public:
    enum class Way { Angle, Stretch };

    LineEndTool(Canvas& canvas, Way way) : CanvasTool(canvas), m_way(way) {}

    void press(const QPointF& point, bool extends) override;
    void move(const QPointF& point) override { m_cursor = point; }
    void cancel() override { m_feature = -1; }
    Overlay overlay() const override;
    QString hint() const override;

private:
    std::optional<Pcb::Feature> changed(const QPointF& to) const;

    Way m_way;
    int m_feature = -1;
    Pcb::End m_end = Pcb::End::First;
    QPointF m_cursor;
};
