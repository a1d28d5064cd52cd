#pragma once

#include "board/Feature.h"
#include "viewer/Document.h"
#include "viewer/Snapping.h"

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <optional>

/// Words beside a place.
struct Note {
    QPointF place;
    QString text;
};

/// What a tool draws over the board while it is at work.
struct Overlay {
    Pcb::Features preview;  ///< as they would be
    QPainterPath rubber;    ///< guide lines
    std::vector<Mark> marks;
    std::optional<Note> note = {};
    std::optional<Snapping::Place> snap = {};  ///< where the next click goes
};

/// What a tool may ask of the canvas.
class Canvas {
public:
    virtual ~Canvas() = default;

    virtual Document& document() = 0;
    /// The feature under a point, -1 where there is none.
    virtual int featureAt(const QPointF& point) const = 0;
    /// Micrometres below which a movement of the mouse is not a drag.
    virtual double tolerance() const = 0;
    /// Where `point` snaps to; itself while points do not snap.
    virtual QPointF snapped(const QPointF& point) const = 0;
    virtual void showArea(const QRectF& area) = 0;
    /// Says something to the user, in the line below the board.
    virtual void say(const QString& text) = 0;
};

/// The tool at work: takes user input, in board coordinates (micrometres).
class CanvasTool {
public:
    explicit CanvasTool(Canvas& canvas) : m_canvas(canvas) {}
    virtual ~CanvasTool() = default;
    CanvasTool(const CanvasTool&) = delete;
    CanvasTool& operator=(const CanvasTool&) = delete;

    /// Whether the next press gives a place, which may snap, rather than picks a feature.
    virtual bool takesPlace() const { return false; }
    /// The point that a press at `place` gives, where it is not that place itself.
    virtual QPointF taken(const QPointF& place) const { return place; }
    virtual void press(const QPointF& point, bool extends) = 0;  ///< `extends`: with Ctrl
    virtual void move(const QPointF& point) { Q_UNUSED(point) }
    virtual void release(const QPointF& point) { Q_UNUSED(point) }
    virtual void finish() { cancel(); }  ///< a right click
    virtual void cancel() {}

    /// Whether something has been begun that would be a loss.
    virtual bool isBegun() const { return false; }

    virtual Overlay overlay() const { return {}; }
    /// What the user is to do next.
    virtual QString hint() const = 0;

protected:
    Canvas& canvas() const { return m_canvas; }
    Document& document() const { return m_canvas.document(); }
    const Pcb::Board& board() const { return m_canvas.document().board(); }

private:
    Canvas& m_canvas;
};
