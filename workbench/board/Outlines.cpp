#include "board/Outlines.h"

#include <QRectF>

#include <algorithm>

namespace Pcb {
namespace {

double cornerSize(const Brush& brush, const QRectF& rectangle)
{
    const double most = std::min(rectangle.width(), rectangle.height()) / 2;
    switch (brush.corner) {
        case Corner::Oblong:
            return most;
        case Corner::Round:
        case Corner::Chamfer:
            return std::min(brush.cornerRadius, most);
        case Corner::Straight:
            break;
    }
    return 0;
}

}  // namespace

std::vector<Geometry> rectangleOutline(const Brush& brush, const QPointF& corner,
                                       const QPointF& opposite)
{
    const QRectF rectangle = QRectF(corner, opposite).normalized();
    std::vector<Geometry> outline;
    if (rectangle.width() <= 0 || rectangle.height() <= 0) {
        return outline;
    }
    const double size = cornerSize(brush, rectangle);
    const QPointF corners[] = {rectangle.topLeft(), rectangle.topRight(), rectangle.bottomRight(),
                               rectangle.bottomLeft()};
    const QPointF directions[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
    for (int side = 0; side < 4; ++side) {
        const int next = (side + 1) % 4;
        const QPointF from = corners[side] + directions[side] * size;
        const QPointF to = corners[next] - directions[side] * size;
        if (from != to) {
            outline.push_back(lineGeometry(brush.symbol, from, to));
        }
        const QPointF after = corners[next] + directions[next] * size;
        if (size > 0 && brush.corner == Corner::Chamfer) {
            outline.push_back(lineGeometry(brush.symbol, to, after));
        } else if (size > 0) {
            const QPointF centre = to + directions[next] * size;
            outline.push_back(arcGeometry(brush.symbol, to, after, centre, false));
        }
    }
    return outline;
}

}  // namespace Pcb
