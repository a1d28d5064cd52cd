#include "window/WindowPlacer.h"

#include "shared/Settings.h"
#include "window/FreePlace.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>
#include <QVariantMap>
#include <QWidget>
#include <QWindow>

namespace {

const QString placesKey = QStringLiteral("window/places");

constexpr int gap = 8;
constexpr int titleHeight = 32;
constexpr int settleTime = 500;  // in ms, until a window manager has told where a window is
constexpr int leastShare = 40;   // percent of each side of a window, where the screen is small
constexpr int shareStep = 2;

int area(const QSize& size)
{
    return size.isValid() ? size.width() * size.height() : 0;
}

/// Neither a menu, a tool tip, a panel, nor another host.
bool isToolWindow(const QWidget* window)
{
    const Qt::WindowType type = window->windowType();
    return (type == Qt::Window || type == Qt::Dialog) && !window->isModal() &&
           !qobject_cast<const QMainWindow*>(window);
}

/// A widget keeps what it was first told of its frame, which a busy window manager may have been
/// about to change.
QMargins frameOf(const QWidget* window)
{
    const QWindow* const handle = window->windowHandle();
    return handle ? handle->frameMargins() : QMargins();
}

QRect globalPlace(const QWidget* part)
{
    return part->isWindow() ? part->geometry() + frameOf(part)
                            : QRect(part->mapToGlobal(QPoint()), part->size());
}

QVariantMap rememberedPlaces()
{
    return Settings::value(placesKey).toMap();
}

}  // namespace

WindowPlacer::WindowPlacer(const Host& host) : QObject(host.window), m_host(host)
{
    qApp->installEventFilter(this);
}

bool WindowPlacer::eventFilter(QObject* watched, QEvent* event)
{
    auto* const window = qobject_cast<QWidget*>(watched);
    if (window && !event->spontaneous() && !m_isAtWork) {
        const QScopedValueRollback<bool> atWork(m_isAtWork, true);
        if (event->type() == QEvent::Show && isOurs(window)) {
            open(window);
        } else if (event->type() == QEvent::Show && window->isModal()) {
            keepInFront(window);
        } else if (event->type() == QEvent::Resize && window->isVisible() &&
                   m_places.contains(window)) {
            takeGrowth(window);
        } else if (event->type() == QEvent::Hide && m_places.contains(window)) {
            remember(window);
        }
    }
    return QObject::eventFilter(watched, event);
}

/// A window that has placed itself is left where it is.
bool WindowPlacer::isOurs(const QWidget* window) const
{
    const QWidget* owner = window;
    while (owner->parentWidget()) {
        owner = owner->parentWidget();
    }
    return isToolWindow(window) && !window->isMaximized() && !window->isFullScreen() &&
           (m_places.contains(window) || !window->testAttribute(Qt::WA_Moved)) &&
           (owner == window || owner == m_host.window);
}

void WindowPlacer::open(QWidget* window)
{
    if (!m_places.contains(window)) {
        connect(window, &QObject::destroyed, this, [this, window] { m_places.remove(window); });
        window->resize(window->size().expandedTo(window->sizeHint()));
    }
    Place& place = m_places[window];
    noteMove(window);
    const QVariant remembered = rememberedPlaces().value(window->objectName());
    if (!place.corner && remembered.isValid()) {
        moveTo(window, remembered.toPoint());
        place.isUsers = true;
    }
    putWhereFree(window);
    // Not every window manager does this by itself.
    QTimer::singleShot(0, window, [window] {
        window->raise();
        window->activateWindow();
        if (window->focusPolicy() != Qt::NoFocus) {
            window->setFocus();  // Qt looks for a part to give the focus to, not at the whole
        }
    });
    QTimer::singleShot(settleTime, window, [this, window] { settle(window); });
}

/// A window manager that is busy takes the place of the new window for that of its frame.
void WindowPlacer::settle(QWidget* window)
{
    const QScopedValueRollback<bool> atWork(m_isAtWork, true);
    noteMove(window);
    const auto corner = m_places[window].corner;
    if (corner && window->isVisible() && !window->isMaximized() && cornerOf(window) != *corner) {
        moveTo(window, *corner);
    }
}

/// A question that opens would raise the host's window as its owner, above what is open.
void WindowPlacer::keepInFront(const QWidget* question) const
{
    QWindow* const handle = question->windowHandle();
    if (!handle || handle->transientParent() != m_host.window->windowHandle()) {
        return;
    }
    for (const QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && m_places.contains(window)) {
            handle->setTransientParent(window->windowHandle());
        }
    }
}

/// A window may grow with what it shows.
void WindowPlacer::takeGrowth(QWidget* window)
{
    noteMove(window);
    if (m_places[window].isUsers) {
        const FreePlace screen(window->screen()->availableGeometry(), {});
        moveTo(window, screen.nearest(window->size() + frame(), *m_places[window].corner));
    } else {
        putWhereFree(window);
    }
}

void WindowPlacer::putWhereFree(QWidget* window)
{
    Place& place = m_places[window];
    const FreePlace free = placeFor(window);
    if (place.corner && free.isFree({*place.corner, window->size() + frame()})) {
        return;
    }
    const QRect host = globalPlace(m_host.window);
    const QPoint wanted = place.corner ? *place.corner : QPoint(host.right() + gap, host.top());
    window->resize(shrunk(window, free, wanted));
    moveTo(window, free.nearest(window->size() + frame(), wanted));
}

/// Its size, or where only less has room as much as that: each side gives way by itself. Where
/// nothing has room it covers as little as can be.
QSize WindowPlacer::shrunk(const QWidget* window, const FreePlace& place,
                           const QPoint& wanted) const
{
    const QSize least = window->minimumSizeHint().expandedTo(window->minimumSize());
    const QSize room = m_host.window->screen()->availableGeometry().size() - frame();
    const QSize whole = window->size().boundedTo(room).expandedTo(least);
    QSize best;
    QSize smallest;
    for (int width = 100; width >= leastShare; width -= shareStep) {
        for (int height = 100; height >= leastShare; height -= shareStep) {
            const QSize size =
                QSize(whole.width() * width / 100, whole.height() * height / 100).expandedTo(least);
            smallest = size;
            if (area(size) > area(best) &&
                place.isFree({place.nearest(size + frame(), wanted), size + frame()})) {
                best = size;
            }
        }
    }
    return best.isValid() ? best : smallest;
}

/// All windows have the same frame as the host's, and get it late.
QSize WindowPlacer::frame() const
{
    return globalPlace(m_host.window).size() - m_host.window->size();
}

QPoint WindowPlacer::frameCorner() const
{
    return m_host.window->geometry().topLeft() - globalPlace(m_host.window).topLeft();
}

QPoint WindowPlacer::cornerOf(const QWidget* window) const
{
    return window->geometry().topLeft() - frameCorner();
}

void WindowPlacer::moveTo(QWidget* window, const QPoint& corner)
{
    window->setGeometry({corner + frameCorner(), window->size()});
    m_places[window].corner = corner;
    m_places[window].sincePut.start();
}

/// What the user covers is the user's choice, but not another window that is open now.
FreePlace WindowPlacer::placeFor(const QWidget* window)
{
    const Place place = m_places.value(window);
    QVector<QRect> taken;
    for (const QWidget* const other : QApplication::topLevelWidgets()) {
        if (other != window && other->isVisible() && isToolWindow(other)) {
            noteMove(other);
            const QPoint corner = m_places.value(other).corner.value_or(cornerOf(other));
            taken.append({corner, other->size() + frame()});
        }
    }
    QRect spared;
    if (!place.isUsers) {
        for (const QPointer<QWidget>& part : m_host.kept) {
            if (part && part->isVisible()) {
                taken.append(globalPlace(part));
            }
        }
        spared = m_host.board ? globalPlace(m_host.board) : QRect();
    }
    const QScreen* const chosen = place.corner ? QGuiApplication::screenAt(*place.corner) : nullptr;
    const QScreen* const screen = chosen ? chosen : m_host.window->screen();
    return {screen->availableGeometry(), taken, spared};
}

void WindowPlacer::noteMove(const QWidget* window)
{
    const auto place = m_places.find(window);
    // A window manager may put it a little aside.
    if (place != m_places.end() && place->corner && place->sincePut.elapsed() >= settleTime &&
        (cornerOf(window) - *place->corner).manhattanLength() > titleHeight) {
        place->corner = cornerOf(window);
        place->isUsers = true;
    }
}

void WindowPlacer::remember(const QWidget* window)
{
    noteMove(window);
    if (m_host.remembers && m_places[window].isUsers && !window->isMaximized() &&
        !window->isFullScreen()) {
        QVariantMap places = rememberedPlaces();
        places[window->objectName()] = *m_places[window].corner;
        Settings::set(placesKey, places);
    }
}

void WindowPlacer::rememberAll()
{
    for (const QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && m_places.contains(window)) {
            remember(window);
        }
    }
}

void WindowPlacer::forgetAll()
{
    Settings::set(placesKey, QVariantMap());
    for (Place& place : m_places) {
        place = {};
    }
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && m_places.contains(window)) {
            putWhereFree(window);
        }
    }
}
