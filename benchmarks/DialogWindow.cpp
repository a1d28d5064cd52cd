#include "DialogWindow.h"

#include "addfeature/AddFeature.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QLineEdit>
#include <QToolButton>

void openBenchmarkJob(int specialSymbols)
{
    CanvasHost::Job job;
    job.name = "job";
    job.steps = {"step"};
    job.fonts = {"simple", "standard"};
    for (int i = 0; i < specialSymbols; ++i) {
        job.specialSymbols.push_back("special symbol of the job " + std::to_string(i));
    }
    CanvasHost::clearJobs();
    CanvasHost::addJob(job);
    CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Mil);
}

DialogWindow::DialogWindow(bool canvasKeeps)
    : canvas(canvasKeeps), connected(canvas), strip(new Canvas_Tool_Strip(&panel))
{
    openBenchmarkJob();
    panel.setLayout(strip);
    panel.showPainted();
    dialog = new AddFeature(&panel, "job", "step", &panel);
    dialog->setToolStrip(strip);
    strip->SetAllButtonchecked(
        false, qobject_cast<QToolButton*>(strip->itemAt(int(Tool::AddFeature))->widget()));
    dialog->show();
    dialog->findChild<QLineEdit*>(QStringLiteral("m_pSymbolTextLE"))->setText("r10");
    QApplication::processEvents();
    dialog->getChangeCurrentTool();
}
