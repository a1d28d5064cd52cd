#pragma once

#include <QWidget>

/// A window that is asked for while it is open comes to the front and takes the keyboard.
inline void comeAgain(QWidget* window, bool isAskedFor)
{
    if (isAskedFor && window->isVisible()) {
        window->raise();
        window->activateWindow();
    }
}
