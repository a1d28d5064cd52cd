#pragma once

#include <QRect>
#include <QVector>

/// Where on a screen a window can stand without covering what is in use.
class FreePlace {
public:
    /// `taken` is covered only where the screen has no other room. `spared` is covered rather than
    /// that, but not for a shorter way.
    FreePlace(const QRect& screen, QVector<QRect> taken, const QRect& spared = {});

    /// The upper left corner of a window of `size`: as near to `wanted` as is good, wholly on the
    /// screen, or at its upper left where the screen is too small.
    QPoint nearest(const QSize& size, const QPoint& wanted) const;
    /// Whether a window there is wholly on the screen and covers nothing of `taken`.
    bool isFree(const QRect& window) const;

private:
    qint64 covered(const QRect& window) const;
    QVector<QPoint> corners(const QSize& size, const QPoint& wanted) const;
    QPoint inside(const QPoint& corner, const QSize& size) const;

    QRect m_screen;
    QVector<QRect> m_taken;
    QRect m_spared;
};
