#include "Desktop.h"

#include <QApplication>
#include <QImage>
#include <QPointer>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <functional>

namespace {

// In ms: for the window manager to respond, and for keys and clicks to arrive.
constexpr int settleTime = 60;
constexpr int longestTime = 30000;

/// Counts the events of some types that reach the program's windows.
class Arrivals : public QObject {
public:
    explicit Arrivals(const QVector<QEvent::Type>& types) : m_types(types)
    {
        qApp->installEventFilter(this);
    }
    int count() const { return m_count; }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        m_count += receiver->isWindowType() && m_types.contains(event->type()) ? 1 : 0;
        return false;
    }

private:
    QVector<QEvent::Type> m_types;
    int m_count = 0;
};

/// Returns without a word when the time is over: what a step must bring about is for the test to
/// see.
void waitAtMost(int milliseconds, const std::function<bool()>& isMet)
{
    static_cast<void>(QTest::qWaitFor(isMet, milliseconds));
}

/// Starts xdotool, which runs as long as the test and executes the lines that are written to it.
QProcess* startTool()
{
    static QPointer<QProcess> tool = new QProcess(qApp);
    tool->start("xdotool", {"-"});
    if (!tool->waitForStarted()) {
        qFatal("xdotool cannot be started");
    }
    qAddPostRoutine([] {
        tool->closeWriteChannel();
        tool->waitForFinished();
    });
    return tool;
}

/// Has xdotool execute the command. Returns when its effect is there and has been handled.
void act(const QString& command, const std::function<bool()>& isDone)
{
    static QProcess* const tool = startTool();
    tool->write(qPrintable(command + '\n'));
    tool->waitForBytesWritten();
    if (!QTest::qWaitFor(isDone, longestTime)) {
        qFatal("nothing came of \"%s\"", qPrintable(command));
    }
    QApplication::processEvents();
}

/// A modal window that opens in between keeps the releases from the others.
void actUntilReleased(const QString& command, int releases)
{
    const Arrivals released({QEvent::KeyRelease, QEvent::MouseButtonRelease});
    const Arrivals blocked({QEvent::WindowBlocked});
    act(command, [&] { return released.count() >= releases || blocked.count() > 0; });
}

}  // namespace

void Desktop::waitForWindow(QWidget* window)
{
    constexpr int attempts = 4;
    for (int attempt = 0; !QTest::qWaitForWindowActive(window, 2500); ++attempt) {
        if (attempt == attempts) {
            qFatal("the window %s does not become active", qPrintable(window->objectName()));
        }
        window->activateWindow();
    }
    QTest::qWait(settleTime);
}

QRect Desktop::frame(const QWidget& window)
{
    return window.windowHandle()->frameGeometry();
}

void Desktop::move(QWidget& window, const QPoint& place)
{
    const Arrivals moved({QEvent::Move});
    const int longest = window.pos() == place ? settleTime : longestTime;
    window.move(place);
    waitAtMost(longest, [&] { return moved.count() > 0; });
}

void Desktop::click(const QWidget& widget, int button, QPoint place)
{
    if (!widget.isVisible()) {
        qFatal("%s is not on the screen", qPrintable(widget.objectName()));
    }
    clickAt(widget.mapToGlobal(place.x() < 0 ? widget.rect().center() : place), button);
}

void Desktop::clickAt(const QPoint& globalPlace, int button)
{
    const QWidget* const clicked = QApplication::widgetAt(globalPlace);
    const QPointer<QWidget> window = clicked ? clicked->window() : nullptr;
    const QPointer<QWidget> before = QApplication::activeWindow();
    actUntilReleased(QStringLiteral("mousemove %1 %2 click --delay 1 %3")
                         .arg(globalPlace.x())
                         .arg(globalPlace.y())
                         .arg(button),
                     1);
    // The window manager makes it the active one, unless the click has opened another.
    waitAtMost(settleTime, [&] {
        const QWidget* const active = QApplication::activeWindow();
        return !window || active == window || (active && active != before);
    });
}

bool Desktop::isSeen(const QWidget& window)
{
    const QImage wanted = const_cast<QWidget&>(window).grab().toImage();
    const QPoint corner = window.mapToGlobal(QPoint());
    const QImage seen = window.screen()
                            ->grabWindow(0, corner.x(), corner.y(), window.width(), window.height())
                            .toImage()
                            .convertToFormat(wanted.format());
    int different = 0;
    for (int y = 0; y < qMin(seen.height(), wanted.height()); ++y) {
        for (int x = 0; x < qMin(seen.width(), wanted.width()); ++x) {
            different += seen.pixel(x, y) != wanted.pixel(x, y);
        }
    }
    return seen.size() == wanted.size() && different * 100 < seen.width() * seen.height();
}

void Desktop::type(const QString& text)
{
    actUntilReleased("type --delay 5 " + text, text.size());
}

void Desktop::key(const QString& name)
{
    actUntilReleased("key --delay 4 " + name, name.count('+') + 1);
}

void Desktop::closeByKeys(const QWidget& window)
{
    act("keydown alt key --delay 4 F4",
        [&] { return !window.isVisible() || QApplication::activeModalWidget(); });
    // Released when another window has the keyboard: what a window that is gone was to be told is
    // told to none, and the key would seem to stay down.
    QTest::qWait(settleTime);
    const Arrivals released({QEvent::KeyRelease});
    act("keyup alt", [] { return true; });
    // Where windows are emulated it may be told to none all the same.
    waitAtMost(50 * settleTime, [&] { return released.count() > 0; });
}
