#include "messages/WindowPicture.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>

namespace {

constexpr int frameWidth = 1;

/// The windows on top of `window`, each with its place in the coordinates of `window`.
QList<std::pair<QWidget*, QRect>> windowsOver(QWidget* window)
{
    QList<std::pair<QWidget*, QRect>> windows;
    for (QWidget* const other : QApplication::topLevelWidgets()) {
        if (other != window && other->isVisible() && other->windowType() != Qt::ToolTip) {
            const QPoint place = window->mapFromGlobal(other->mapToGlobal(QPoint()));
            windows.append({other, QRect(place, other->size())});
        }
    }
    return windows;
}

}  // namespace

QPixmap pictureOf(QWidget* window)
{
    const auto over = windowsOver(window);
    QRect all = window->rect();
    for (const auto& [other, place] : over) {
        all |= place.adjusted(-frameWidth, -frameWidth, frameWidth, frameWidth);
    }
    const qreal ratio = window->devicePixelRatioF();
    QPixmap picture((QSizeF(all.size()) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(QColor(0xd4, 0xd8, 0xde));  // the desktop
    QPainter painter(&picture);
    painter.translate(-all.topLeft());
    painter.drawPixmap(QPoint(), window->grab());
    for (const auto& [other, place] : over) {
        painter.fillRect(place.adjusted(-frameWidth, -frameWidth, frameWidth, frameWidth),
                         QColor(70, 70, 70));
        painter.drawPixmap(place.topLeft(), other->grab());
    }
    return picture;
}
