#include "OpenWindow.h"

#include "Desktop.h"

#include <CamApiStandIn.h>

std::unique_ptr<WorkbenchWindow> openWindow(MessageLog& log)
{
    Options options;
    options.moduleDirectory = MODULE_DIR;
    auto window = std::make_unique<WorkbenchWindow>(options, &log);
    CanvasHost::loadJobs(JOB_FILE);
    window->start();
    window->move(20, 40);
    window->show();
    Desktop::waitForWindow(window.get());
    log.clear();
    return window;
}
