#include "DemoJobs.h"

#include <CamApiStandIn.h>

namespace {

CanvasHost::Job demoJob(const char* name)
{
    CanvasHost::Job job;
    job.name = name;
    job.steps = {"step"};
    job.userSymbols = {"logo"};
    job.attributes = {{".net", CanvasHost::AttributeKind::Text, {}},
                      {".smd", CanvasHost::AttributeKind::Flag, {}}};
    return job;
}

}  // namespace

void openDemoJobs()
{
    CanvasHost::Job job = demoJob("job");
    job.fonts = {"simple", "standard"};
    job.specialSymbols = {"fiducial_cross", "Target 1"};
    job.specialTexts = {"JOB", "DATE"};

    CanvasHost::Job other = demoJob("other");
    other.fonts = {"wide"};
    other.specialSymbols = {"coupon"};
    other.specialTexts = {"LAYER"};

    CanvasHost::clearJobs();
    CanvasHost::addJob(job);
    CanvasHost::addJob(other);
}
