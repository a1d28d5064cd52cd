#include "DemoJobs.h"

#include <CamApiStandIn.h>

#include <utility>

namespace {

CanvasHost::Job demoJob(const char* name, std::vector<std::string> specialSymbols)
{
    CanvasHost::Job job;
    job.name = name;
    job.steps = {"step"};
    job.fonts = {"simple", "standard"};
    job.specialSymbols = std::move(specialSymbols);
    job.userSymbols = {"logo"};
    job.specialTexts = {"JOB", "DATE"};
    job.attributes = {{".net", CanvasHost::AttributeKind::Text, {}},
                      {".smd", CanvasHost::AttributeKind::Flag, {}}};
    return job;
}

}  // namespace

void openDemoJobs()
{
    CanvasHost::clearJobs();
    CanvasHost::addJob(demoJob("job", {"fiducial_cross", "Target 1"}));
    CanvasHost::addJob(demoJob("other", {"coupon"}));
}
