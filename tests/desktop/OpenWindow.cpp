#include "OpenWindow.h"

#include "Desktop.h"

std::unique_ptr<WorkbenchWindow> openWindow(MessageLog& log)
{
    auto window = startWorkbench(log);
    window->move(20, 40);
    window->show();
    Desktop::waitForWindow(window.get());
    log.clear();
    return window;
}
