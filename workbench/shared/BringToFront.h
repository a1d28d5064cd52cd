#pragma once

#include <QWidget>

/// Shows the window in front of the others, also where it is open already or minimized.
inline void bringToFront(QWidget* window)
{
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}
