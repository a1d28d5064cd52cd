#include "Runner.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace {

constexpr double secondsOfARepetition = 0.03;
constexpr int repetitionsOfAGrowth = 9;

/// Keeps the time of every repetition, by side. Nothing is printed.
class Collector : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.error_occurred) {
                std::fprintf(stderr, "%s\n", run.error_message.c_str());
                std::exit(EXIT_FAILURE);
            }
            if (run.run_type == Run::RT_Iteration) {
                times[run.run_name.function_name].push_back(run.run_name.time_type.empty()
                                                                ? run.GetAdjustedCPUTime()
                                                                : run.GetAdjustedRealTime());
            }
        }
    }

    std::map<std::string, std::vector<double>> times;  // nanoseconds
};

/// What that share of the times does not exceed.
double quantile(std::vector<double>& times, double share)
{
    std::sort(times.begin(), times.end());
    return times.at(static_cast<size_t>(std::lround(share * double(times.size() - 1))));
}

double spread(std::vector<double>& times)
{
    return (quantile(times, 0.75) - quantile(times, 0.25)) / 2 / quantile(times, 0.5);
}

}  // namespace

void Runner::add(const Figure& figure, const Body& project, const Body& floor)
{
    m_tasks.push_back({figure, project, floor});
}

void Runner::addGrowth(Figure figure, int least, int most, SizedBody body)
{
    figure.what += ": " + std::to_string(most) + ", floor " + std::to_string(least);
    figure.timesAsMuch = double(most) / least;
    add(
        figure, [=](benchmark::State& state) { body(state, most); },
        [=](benchmark::State& state) { body(state, least); });
}

Result Runner::measure(const Task& task) const
{
    const bool grows = task.figure.timesAsMuch > 1;
    for (const auto& [side, body] :
         {std::pair("project", task.project), std::pair("floor", task.floor)}) {
        auto* const registered = benchmark::RegisterBenchmark(side, body);
        registered->Repetitions(grows ? std::min(m_effort.repetitions, repetitionsOfAGrowth)
                                      : m_effort.repetitions);
        if (task.figure.timesItself) {
            registered->UseManualTime()->Iterations(1);
        } else {
            registered->MinTime(m_effort.quick ? 1e-6 : secondsOfARepetition);
        }
    }
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector, ".");
    benchmark::ClearRegisteredBenchmarks();

    auto& projects = collector.times["project"];
    auto& floors = collector.times["floor"];
    Result result{task.figure, quantile(projects, 0.5), quantile(floors, 0.5), 0,
                  std::max(spread(projects), spread(floors))};
    result.ratio = result.project / result.floor;
    if (grows) {
        result.ratio = std::log(result.ratio) / std::log(task.figure.timesAsMuch);
    }
    return result;
}

std::vector<Result> Runner::run() const
{
    std::vector<Result> results;
    for (const Task& task : m_tasks) {
        if (std::string(task.figure.id).find(m_effort.only) != std::string::npos) {
            std::fprintf(stderr, "%s, %s\n", task.figure.id, task.figure.what.c_str());
            results.push_back(measure(task));
        }
    }
    return results;
}
