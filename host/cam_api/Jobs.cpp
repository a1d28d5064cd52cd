#include "CamApiStandIn.h"
#include "JobFile.h"
#include "cam_api.h"

#include <FileError.h>

#include <QFileInfo>

#include <algorithm>

namespace CanvasHost {
namespace {

struct State {
    QString file;
    std::vector<Job> jobs;
    std::string current;
};

State stateOf(const QString& jobFile)
{
    State loaded;
    loaded.file = QFileInfo(jobFile).canonicalFilePath();
    loaded.jobs = readJobFile(jobFile);
    loaded.current = loaded.jobs.empty() ? std::string() : loaded.jobs.front().name;
    return loaded;
}

State initialState()
{
    const QString file = qEnvironmentVariable("CANVAS_HOST_JOBS");
    return file.isEmpty() ? State() : stateOf(file);
}

State& state()
{
    static State theState = initialState();
    return theState;
}

std::vector<Job>::iterator position(const std::string& name)
{
    std::vector<Job>& all = state().jobs;
    return std::find_if(all.begin(), all.end(), [&](const Job& job) { return job.name == name; });
}

}  // namespace

void loadJobs(const QString& file)
{
    state() = stateOf(file);
}

QString jobFile()
{
    return state().file;
}

const std::vector<Job>& jobs()
{
    return state().jobs;
}

void addJob(const Job& job)
{
    const auto existing = position(job.name);
    if (existing != state().jobs.end()) {
        *existing = job;
        return;
    }
    if (state().jobs.empty()) {
        state().current = job.name;
    }
    state().jobs.push_back(job);
}

void clearJobs()
{
    state() = State();
}

const Job* currentJob()
{
    return findJob(state().current);
}

bool setCurrentJob(const std::string& name)
{
    if (!findJob(name)) {
        return false;
    }
    state().current = name;
    return true;
}

const Job* findJob(const std::string& name)
{
    const auto found = position(name);
    return found == state().jobs.end() ? nullptr : &*found;
}

CamApiOverrides& camApiOverrides()
{
    static CamApiOverrides overrides;
    return overrides;
}

}  // namespace CanvasHost

namespace ZENTRA {
namespace API {

void get_special_symbol_names(const std::string& job, std::vector<std::string>& names)
{
    if (const auto& replacement = CanvasHost::camApiOverrides().get_special_symbol_names) {
        replacement(job, names);
        return;
    }
    const CanvasHost::Job* const found = CanvasHost::findJob(job);
    names = found ? found->specialSymbols : std::vector<std::string>();
}

void get_fonts(const std::string& job, std::vector<std::string>& names)
{
    if (const auto& replacement = CanvasHost::camApiOverrides().get_fonts) {
        replacement(job, names);
        return;
    }
    const CanvasHost::Job* const found = CanvasHost::findJob(job);
    names = found ? found->fonts : std::vector<std::string>();
}

}  // namespace API
}  // namespace ZENTRA
