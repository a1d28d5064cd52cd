#include "Desktop.h"

#include <QProcess>
#include <QTest>
#include <QWidget>

namespace {

constexpr int settleTime = 60;  // ms for the window manager and the program to respond

void act(const QStringList& arguments)
{
    QProcess tool;
    QEventLoop loop;
    QObject::connect(&tool, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &loop,
                     &QEventLoop::quit);
    tool.start("xdotool", arguments);
    if (!tool.waitForStarted()) {
        qFatal("xdotool cannot be started");
    }
    loop.exec();
    if (tool.exitCode() != 0) {
        qFatal("xdotool: %s", tool.readAllStandardError().constData());
    }
    QTest::qWait(settleTime);
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

void Desktop::click(const QWidget& widget, int button, QPoint place)
{
    if (!widget.isVisible()) {
        qFatal("%s is not on the screen", qPrintable(widget.objectName()));
    }
    clickAt(widget.mapToGlobal(place.x() < 0 ? widget.rect().center() : place), button);
}

void Desktop::clickAt(const QPoint& globalPlace, int button)
{
    act({"mousemove", QString::number(globalPlace.x()), QString::number(globalPlace.y()), "click",
         QString::number(button)});
}

void Desktop::type(const QString& text)
{
    act({"type", "--delay", "5", text});
}

void Desktop::key(const QString& name)
{
    act({"key", name});
}
