#pragma once

#include "board/Brush.h"
#include "board/Feature.h"

#include <QLineF>
#include <QMap>
#include <QPointF>
#include <QVector>

#include <optional>

namespace Pcb {

/// Turns clicks into features. The clicks of each method:
///
///   single line          from, to
///   polyline             corners, then finish()
///   line and surface     two opposite corners
///     rectangle
///   slot, pad, text      its place
///   surface polygon      corners, then finish() or fill()
///   surface circle       centre, a point of the circle
///   arc 1                start, centre, direction of the end
///   arc 2                start, end, a point between them on the arc
///   arc 3                start, end, centre (brought to the same distance from both)
///   arc 4                start, centre, direction that gives the angle, in whole degrees
///   arc 5                start, centre, a point as far from the start as the arc is long
///   arc 6                start, end, a point: twice the angle at the start between it and the
///                        end, in whole degrees, is the angle of the arc
///   arc 7                start, end, a point as far from the end as the radius is long
///   circle 1, 2          centre, a point of the circle (1: drawn from its right, 2: from there)
///   circle 3             a point of the circle, centre
///   circle 4             three points of the circle
///
/// Arcs run clockwise or not as the brush says; arc 2 runs through its third point. A click that
/// would give nothing (a line without length, three points on a line, a code that can carry none of
/// its text) is ignored.
class Placement {
public:
    /// Another brush keeps the clicks made so far if they mean the same to it, otherwise it drops
    /// them.
    void setBrush(const Brush& brush);
    const Brush& brush() const { return m_brush; }

    /// Changes only the direction constraint, for the next point.
    void setDirection(Direction direction, double fixedAngle);

    /// What "$$NAME" stands for in texts.
    void setSpecialTexts(const QMap<QString, QString>& values);
    /// The characters of the text to be placed that its code cannot carry, or that the font lacks.
    const QString& leftOut() const { return m_leftOut; }
    const QString& lacking() const { return m_lacking; }
    /// Whether it is a text of which nothing would be drawn.
    bool isNothing() const { return m_isNothing; }

    /// A click; gives the features that it completed, bottom first.
    Features press(const QPointF& point);
    void move(const QPointF& point);
    /// Ends a polyline or polygon; cancels any other method.
    Features finish();
    /// Completes the surface that is being drawn, with the cursor as the last point if it lacks
    /// one; leaves other kinds alone.
    Features fill();
    void cancel();

    bool isActive() const { return !m_points.isEmpty(); }
    int clicks() const { return m_clicks; }
    const QVector<QPointF>& points() const { return m_points; }
    /// Where a click at the cursor would set its point, the direction constraint applied.
    QPointF constrained(const QPointF& point) const;

    /// From the last point to where a click at the cursor would set the next one, while a line or a
    /// polyline is drawn.
    std::optional<QLineF> begunLine() const;

    /// What a click at the cursor would add, and what it would add to. If that is not yet a whole
    /// feature, the line from the last point to the cursor.
    Features preview() const;

private:
    TextSpec text() const;
    void readText();
    QVector<QPointF> with(const QPointF& point) const;
    Features build(const QVector<QPointF>& points, bool isEnd) const;

    Brush m_brush;
    QVector<QPointF> m_points;
    int m_clicks = 0;  ///< fewer than points where a direction has put corners between them
    QPointF m_cursor;
    bool m_hasCursor = false;
    QMap<QString, QString> m_specialTexts;
    QString m_leftOut;
    QString m_lacking;
    bool m_isNothing = false;
};

}  // namespace Pcb
