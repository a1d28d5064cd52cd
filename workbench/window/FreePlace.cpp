#include "window/FreePlace.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

qint64 overlap(const QRect& one, const QRect& other)
{
    const QRect both = one & other;
    return both.isEmpty() ? 0 : qint64(both.width()) * both.height();
}

}  // namespace

FreePlace::FreePlace(const QRect& screen, QVector<QRect> taken, const QRect& spared)
    : m_screen(screen), m_taken(std::move(taken)), m_spared(spared)
{
}

QPoint FreePlace::nearest(const QSize& size, const QPoint& wanted) const
{
    const auto cost = [&](const QPoint& corner) {
        const QRect window(corner, size);
        return std::make_tuple(covered(window), overlap(window, m_spared),
                               (corner - wanted).manhattanLength());
    };
    QPoint best = inside(wanted, size);
    for (const QPoint& corner : corners(size, wanted)) {
        if (cost(corner) < cost(best)) {
            best = corner;
        }
    }
    return best;
}

bool FreePlace::isFree(const QRect& window) const
{
    return m_screen.contains(window) && covered(window) == 0;
}

/// In pixels.
qint64 FreePlace::covered(const QRect& window) const
{
    qint64 sum = 0;
    for (const QRect& taken : m_taken) {
        sum += overlap(window, taken);
    }
    return sum;
}

/// Where there is room, there is room in one of these places as well: against edges.
QVector<QPoint> FreePlace::corners(const QSize& size, const QPoint& wanted) const
{
    QVector<int> lefts{wanted.x(), m_screen.left(), m_screen.right() - size.width() + 1};
    QVector<int> tops{wanted.y(), m_screen.top(), m_screen.bottom() - size.height() + 1};
    for (const QRect& edge : m_taken + QVector<QRect>{m_spared}) {
        lefts << edge.left() - size.width() << edge.right() + 1;
        tops << edge.top() - size.height() << edge.bottom() + 1;
    }
    QVector<QPoint> all;
    for (const int left : std::as_const(lefts)) {
        for (const int top : std::as_const(tops)) {
            all.append(inside({left, top}, size));
        }
    }
    return all;
}

QPoint FreePlace::inside(const QPoint& corner, const QSize& size) const
{
    return {qMax(m_screen.left(), qMin(corner.x(), m_screen.right() - size.width() + 1)),
            qMax(m_screen.top(), qMin(corner.y(), m_screen.bottom() - size.height() + 1))};
}
