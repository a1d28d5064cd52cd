#include "viewer/OverlayPainter.h"

#include "viewer/CanvasColours.h"

#include <UiApiStandIn.h>

#include <QPainter>

namespace {

constexpr double textGap = 4;  // pixels

/// As large as the text needs, at the origin.
QRectF boxOf(const QPainter& painter, const QString& text)
{
    const QRectF box = painter.fontMetrics().boundingRect({}, Qt::AlignLeft, text);
    return {0, 0, box.width() + 2 * textGap, box.height() + textGap};
}

void label(QPainter& painter, const QRectF& box, const QString& text, const QColor& colour)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(CanvasColours::ground);
    painter.drawRoundedRect(box, textGap / 2, textGap / 2);
    painter.setPen(colour);
    painter.drawText(box, Qt::AlignCenter, text);
}

/// To the lower right of its place; on the other side of it where there is no room.
void paintNote(QPainter& painter, const QRectF& room, const QPointF& place, const QString& text)
{
    constexpr double away = 16;  // pixels
    QRectF box = boxOf(painter, text);
    const bool isRight = place.x() + away + box.width() <= room.right();
    const bool isBelow = place.y() + away + box.height() <= room.bottom();
    box.moveLeft(isRight ? place.x() + away : place.x() - away - box.width());
    box.moveTop(isBelow ? place.y() + away : place.y() - away - box.height());
    label(painter, box, text, CanvasColours::rubber);
}

/// A leg of a mark, its length in its middle. `line` is in pixels, `length` in micrometres.
void leg(QPainter& painter, const QLineF& line, double length)
{
    if (line.length() < 1) {
        return;
    }
    painter.setPen(QPen(CanvasColours::mark, 1.5));
    painter.drawLine(line);
    const QString text = CanvasHost::lengthText(length);
    QRectF box = boxOf(painter, text);
    box.moveCenter(line.center());
    label(painter, box, text, CanvasColours::mark);
}

void paintMark(QPainter& painter, const QTransform& toView, const Mark& mark)
{
    const QLineF line = toView.map(mark.line);
    if (mark.orthogonal) {
        const QPointF corner(line.x2(), line.y1());
        leg(painter, {line.p1(), corner}, qAbs(mark.line.dx()));
        leg(painter, {corner, line.p2()}, qAbs(mark.line.dy()));
    } else {
        leg(painter, line, mark.line.length());
    }
    painter.setBrush(CanvasColours::mark);
    painter.setPen(Qt::NoPen);
    for (const QPointF& end : {line.p1(), line.p2()}) {
        painter.drawEllipse(end, 3, 3);
    }
}

/// A square at an end, a circle at a centre, a cross on the grid.
void drawSnap(QPainter& painter, const QPointF& point, Snapping::Kind kind)
{
    constexpr double size = 5;  // pixels from the middle
    switch (kind) {
        case Snapping::Kind::End:
            painter.drawRect(QRectF(point.x() - size, point.y() - size, 2 * size, 2 * size));
            break;
        case Snapping::Kind::Centre:
            painter.drawEllipse(point, size, size);
            break;
        case Snapping::Kind::Grid:
            painter.drawLine(point - QPointF(size, 0), point + QPointF(size, 0));
            painter.drawLine(point - QPointF(0, size), point + QPointF(0, size));
            break;
    }
}

/// With a dark edge, so that it is visible on any feature.
void paintSnap(QPainter& painter, const QPointF& point, Snapping::Kind kind)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(CanvasColours::ground, 4.5));
    drawSnap(painter, point, kind);
    painter.setPen(QPen(CanvasColours::snap, 2));
    drawSnap(painter, point, kind);
}

}  // namespace

void paintOverlay(QPainter& painter, const QTransform& toView, const Overlay& overlay,
                  const std::vector<Mark>& marks, const QRectF& room)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(CanvasColours::preview);
    for (const Pcb::Feature& feature : overlay.preview) {
        painter.drawPath(feature.area());
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(CanvasColours::hovered, 0));
    for (const Pcb::Feature& feature : overlay.preview) {
        painter.drawPath(feature.unknown());
    }
    painter.setPen(QPen(CanvasColours::rubber, 0, Qt::DashLine));
    painter.drawPath(overlay.rubber);

    painter.save();
    painter.resetTransform();
    for (const Mark& mark : marks) {
        paintMark(painter, toView, mark);
    }
    for (const Mark& mark : overlay.marks) {
        paintMark(painter, toView, mark);
    }
    if (overlay.note) {
        paintNote(painter, room, toView.map(overlay.note->place), overlay.note->text);
    }
    if (overlay.snap) {
        paintSnap(painter, toView.map(overlay.snap->point), overlay.snap->kind);
    }
    painter.restore();
}
