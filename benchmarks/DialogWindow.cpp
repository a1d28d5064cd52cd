#include "DialogWindow.h"

#include "addfeature/AddFeature.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QLineEdit>

namespace {

const std::string benchmarkJob = "job";

}  // namespace

void openBenchmarkJob(int specialSymbols)
{
    CanvasHost::Job job;
    job.name = benchmarkJob;
    job.steps = {"step"};
    job.fonts = {"simple", "standard"};
    for (int i = 0; i < specialSymbols; ++i) {
        job.specialSymbols.push_back("special symbol of the job " + std::to_string(i));
    }
    CanvasHost::clearJobs();
    CanvasHost::addJob(job);
    CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Mil);
}

PluginMetaData messageFromCanvas(int code, qint64 extra)
{
    PluginMetaData message(ModuleNames::viewer, ModuleNames::toolStrip);
    message.code = code;
    message.extra = extra;
    return message;
}

DialogWindow::DialogWindow(bool canvasKeeps)
    : canvas(canvasKeeps), connected(canvas), strip(new Canvas_Tool_Strip(&panel))
{
    openBenchmarkJob();
    panel.setLayout(strip);
    showPainted(panel);
    strip->recMsgFromManager(
        messageFromCanvas(MessageCodes::Accepted::JobName, ExtraWord::pointingAt(benchmarkJob)));
    strip->On_AddFeature_Clicked();
    dialog = panel.findChild<AddFeature*>();
    dialog->findChild<QLineEdit*>(QStringLiteral("m_pSymbolTextLE"))->setText("r10");
    QApplication::processEvents();
    dialog->getChangeCurrentTool();
}
