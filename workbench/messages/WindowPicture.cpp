#include "messages/WindowPicture.h"

#include <Files.h>

#include <QApplication>
#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <tuple>

namespace {

constexpr int frameWidth = 1;

/// Menus are above the active window, and that above the others. Which of these covers which is
/// known to the system only; by their names they have one order in each run.
bool isBelow(const QWidget* one, const QWidget* other)
{
    const auto layer = [](const QWidget* window) {
        return std::make_tuple(window->windowType() == Qt::Popup, window->isActiveWindow(),
                               window->objectName());
    };
    return layer(one) < layer(other);
}

/// The windows on top of `window`, the lowest first, each with its place in the coordinates of
/// `window`.
QList<std::pair<QWidget*, QRect>> windowsOver(QWidget* window)
{
    QList<std::pair<QWidget*, QRect>> windows;
    QWidgetList all = QApplication::topLevelWidgets();
    std::sort(all.begin(), all.end(), isBelow);
    for (QWidget* const other : qAsConst(all)) {
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

void savePicture(const QPixmap& picture, const QString& file)
{
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    if (!picture.save(&content, QFileInfo(file).suffix().toLatin1().constData())) {
        throw CanvasHost::FileError{
            file, 0, QCoreApplication::translate("FileErrors", "the picture cannot be written")};
    }
    CanvasHost::writeWhole(file, content.data());
}
