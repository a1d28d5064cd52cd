#include "window/WindowPlacer.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QWidget>

namespace {

constexpr int gap = 8;
constexpr int stagger = 36;
constexpr int titleHeight = 32;

}  // namespace

WindowPlacer::WindowPlacer(QWidget* host) : QObject(host), m_host(host)
{
    qApp->installEventFilter(this);
}

bool WindowPlacer::eventFilter(QObject* watched, QEvent* event)
{
    auto* const window = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::Show && !event->spontaneous() && window && isOurs(window)) {
        place(window);
    } else if (event->type() == QEvent::Resize && window && m_placed.contains(window) &&
               QGuiApplication::mouseButtons() == Qt::NoButton) {
        // It may grow with what it shows.
        window->move(inside(window->pos(), window->frameGeometry().size()));
    }
    return QObject::eventFilter(watched, event);
}

bool WindowPlacer::isOurs(const QWidget* window) const
{
    const Qt::WindowType type = window->windowType();
    return (type == Qt::Window || type == Qt::Dialog) && !window->isModal() &&
           !window->testAttribute(Qt::WA_Moved) && window->parentWidget() &&
           (window->parentWidget() == m_host || m_host->isAncestorOf(window->parentWidget()));
}

void WindowPlacer::place(QWidget* window)
{
    const QRect host = m_host->frameGeometry();
    const QRect screen = m_host->screen()->availableGeometry();
    // It will have the same frame as the host's window.
    const QSize frame = host.size() - m_host->size();
    const QSize room = screen.size() - frame - QSize(gap, titleHeight);
    window->resize(window->size().expandedTo(window->sizeHint()).boundedTo(room));
    const QSize size = window->size() + frame;
    const int offset = stagger * (m_placed.size() % 6);
    QPoint position(host.right() + gap, host.top() + offset);
    if (position.x() + size.width() > screen.right()) {
        // No room beside: over the right of the canvas.
        position = QPoint(host.right() - size.width() - gap, host.top() + 3 * titleHeight + offset);
    }
    window->move(inside(position, size));
    m_placed.append(window);
}

/// The place nearest to `position` at which all of a window of that size is on the screen, or its
/// upper left where the screen is too small.
QPoint WindowPlacer::inside(const QPoint& position, const QSize& size) const
{
    const QRect screen = m_host->screen()->availableGeometry();
    return {qMax(screen.left(), qMin(position.x(), screen.right() - size.width() + 1)),
            qMax(screen.top(), qMin(position.y(), screen.bottom() - size.height() + 1))};
}
