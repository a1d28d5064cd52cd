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
    const QSize size = window->size().expandedTo(window->sizeHint());
    const int offset = stagger * (m_placed++ % 6);
    QPoint position(host.right() + gap, host.top() + offset);
    if (position.x() + size.width() > screen.right()) {
        // No room beside: over the right of the canvas.
        position = QPoint(host.right() - size.width() - gap, host.top() + 3 * titleHeight + offset);
    }
    window->move(position);
}
