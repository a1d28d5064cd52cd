#include "window/WindowLayout.h"

#include "shared/Settings.h"
#include "window/FreePlace.h"

#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QLockFile>
#include <QMainWindow>
#include <QScreen>

namespace {

const QString geometryKey = QStringLiteral("window/geometry");
const QString docksKey = QStringLiteral("window/docks");

constexpr QSize roomy(1200, 860);
constexpr int shortScreen = 640;  // less height: strip and job tree share tabs
constexpr QPoint corner(20, 40);
constexpr QPoint instanceOffset(36, 36);
constexpr int mostInstances = 6;
// The window's frame is not known before it is shown: as wide and high as they come.
constexpr QSize frame(12, 40);

/// As much of `wanted` as the screen has room for, and inside it.
QRect inside(const QRect& screen, const QPoint& position, const QSize& wanted)
{
    const QSize size = wanted.boundedTo(screen.size() - frame);
    return {FreePlace(screen, {}).nearest(size + frame, position), size};
}

}  // namespace

WindowLayout::WindowLayout(QMainWindow* window, const Docks& docks)
    : m_window(window), m_docks(docks)
{
    m_window->addDockWidget(Qt::LeftDockWidgetArea, docks.strip);
    m_window->addDockWidget(Qt::LeftDockWidgetArea, docks.jobTree);
    m_window->addDockWidget(Qt::BottomDockWidgetArea, docks.monitor);
    const int height = m_window->screen()->availableGeometry().height() - frame.height();
    // If the height is not enough for all, the strip gets the whole of it.
    m_window->setCorner(Qt::BottomLeftCorner, height < roomy.height() ? Qt::LeftDockWidgetArea
                                                                      : Qt::BottomDockWidgetArea);
    if (height < shortScreen) {
        m_window->tabifyDockWidget(docks.strip, docks.jobTree);
        docks.strip->raise();
    }
    m_first = m_window->saveState();
}

WindowLayout::~WindowLayout() = default;

void WindowLayout::restore()
{
    place();
    m_window->restoreGeometry(Settings::value(geometryKey).toByteArray());
    m_window->restoreState(Settings::value(docksKey).toByteArray());
    m_instance = findInstance();
    if (m_instance > 0) {
        const QRect screen = m_window->screen()->availableGeometry();
        const QPoint position = m_window->pos() + m_instance * instanceOffset;
        // Where there is no room to the right and below, the window becomes smaller.
        const QSize room(screen.right() - position.x() - frame.width(),
                         screen.bottom() - position.y() - frame.height());
        m_window->setWindowState(Qt::WindowNoState);
        m_window->resize(m_window->size().boundedTo(room));
        m_window->move(position);
    }
}

void WindowLayout::restoreFirst()
{
    m_window->setWindowState(Qt::WindowNoState);
    m_window->restoreState(m_first);
    place();
}

void WindowLayout::place()
{
    const QRect screen = m_window->screen()->availableGeometry();
    const QRect place = inside(screen, screen.topLeft() + corner, roomy);
    m_window->resize(place.size());
    m_window->move(place.topLeft());
    m_window->resizeDocks({m_docks.strip}, {220}, Qt::Horizontal);
    m_window->resizeDocks({m_docks.monitor}, {place.height() * 3 / 10}, Qt::Vertical);
}

void WindowLayout::save() const
{
    if (isRemembered()) {
        Settings::set(geometryKey, m_window->saveGeometry());
        Settings::set(docksKey, m_window->saveState());
    }
}

int WindowLayout::findInstance()
{
    const QString settings = Settings::file();
    if (settings.isEmpty()) {
        return 0;
    }
    QFileInfo(settings).dir().mkpath(QStringLiteral("."));
    for (int number = 0; number < mostInstances; ++number) {
        m_lock =
            std::make_unique<QLockFile>(QStringLiteral("%1.%2.lock").arg(settings).arg(number));
        m_lock->setStaleLockTime(0);
        if (m_lock->tryLock()) {
            return number;
        }
    }
    return mostInstances;
}
