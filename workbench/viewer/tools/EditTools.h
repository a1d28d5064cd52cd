#pragma once

#include "board/EditOps.h"
#include "viewer/CanvasTool.h"

#include <QCoreApplication>

#include <optional>

/// A click on a feature.
struct FeatureClick {
    int feature;
    Pcb::Indexes meant;  ///< the selection when the feature belongs to it, else the feature alone
    QPointF point;
};

/// What a click does. Names and hints are to be translated in the context "EditTools".
struct ClickEdit {
    const char* name;
    const char* hint;
    /// Nothing for a feature of a kind that the edit is not for.
    std::optional<Pcb::Edit> (*edited)(const Pcb::Board& board, const FeatureClick& click);
};

/// What is done to features that are taken from one place to another.
struct MoveEdit {
    const char* name;
    const char* hint;
    Pcb::Edit (*edited)(const Pcb::Board& board, const Pcb::Indexes& indexes, const QPointF& by);
    bool selectsAdded;  ///< what is at the new place is the selection afterwards
};

/// What is done to the end of a line that is pulled to a point.
struct LineEndEdit {
    const char* name;
    const char* hint;
    /// Nothing for a feature that has no such end.
    std::optional<Pcb::Feature> (*edited)(const Pcb::Feature& feature, Pcb::End end,
                                          const QPointF& to);
};

namespace Edits {

extern const ClickEdit remove;
extern const ClickEdit removeToIntersection;
extern const ClickEdit invert;
extern const ClickEdit rotate;
extern const ClickEdit mirror;
extern const ClickEdit breakLine;
extern const MoveEdit move;
extern const MoveEdit copy;
extern const LineEndEdit changeAngle;
extern const LineEndEdit stretch;

}  // namespace Edits

/// Does its edit to what is clicked.
class ClickEditTool : public CanvasTool {
    Q_DECLARE_TR_FUNCTIONS(EditTools)

public:
    ClickEditTool(Canvas& canvas, const ClickEdit& edit) : CanvasTool(canvas), m_edit(edit) {}

    void press(const QPointF& point, bool extends) override;
    QString hint() const override { return tr(m_edit.hint); }

private:
    const ClickEdit& m_edit;
};

/// Takes the feature that is clicked, or the selection, to the second click.
class MoveTool : public CanvasTool {
    Q_DECLARE_TR_FUNCTIONS(EditTools)

public:
    MoveTool(Canvas& canvas, const MoveEdit& edit) : CanvasTool(canvas), m_edit(edit) {}

    bool takesPlace() const override { return !m_grabbed.empty(); }
    QPointF taken(const QPointF& place) const override;
    void press(const QPointF& point, bool extends) override;
    void move(const QPointF& point) override { m_cursor = point; }
    void release(const QPointF& point) override;
    void cancel() override { m_grabbed.clear(); }
    Overlay overlay() const override;
    QString hint() const override;

private:
    void drop(const QPointF& point);

    const MoveEdit& m_edit;
    Pcb::Indexes m_grabbed;  ///< empty: nothing is grabbed
    QPointF m_from;
    QPointF m_cursor;
};

/// Pulls the nearer end of a line or an arc to the second click.
class LineEndTool : public CanvasTool {
    Q_DECLARE_TR_FUNCTIONS(EditTools)

public:
    LineEndTool(Canvas& canvas, const LineEndEdit& edit) : CanvasTool(canvas), m_edit(edit) {}

    bool takesPlace() const override { return m_feature >= 0; }
    QPointF taken(const QPointF& place) const override;
    void press(const QPointF& point, bool extends) override;
    void move(const QPointF& point) override { m_cursor = point; }
    void cancel() override { m_feature = -1; }
    Overlay overlay() const override;
    QString hint() const override;

private:
    std::optional<Pcb::Feature> changed(const QPointF& to) const;

    const LineEndEdit& m_edit;
    int m_feature = -1;
    Pcb::End m_end = Pcb::End::First;
    QPointF m_cursor;
};
