#include "Runner.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace {

/// Keeps the time of every repetition, by benchmark. Nothing is printed.
class Collector : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.error_occurred) {
                std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(),
                             run.error_message.c_str());
                std::exit(EXIT_FAILURE);
            }
            if (run.run_type == Run::RT_Iteration) {
                const bool timed = !run.run_name.time_type.empty();
                const double unit = 1e9 / benchmark::GetTimeUnitMultiplier(run.time_unit);
                m_times[run.run_name.function_name + '/' + run.run_name.args].push_back(
                    unit * (timed ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime()));
            }
        }
    }

    /// Nanoseconds, in ascending order.
    std::vector<double> times(const std::string& name) const
    {
        const auto found = m_times.find(name);
        if (found == m_times.end()) {
            std::fprintf(stderr, "%s was not measured\n", name.c_str());
            std::exit(EXIT_FAILURE);
        }
        std::vector<double> sorted = found->second;
        std::sort(sorted.begin(), sorted.end());
        return sorted;
    }

private:
    std::map<std::string, std::vector<double>> m_times;
};

constexpr int growthRepetitions = 9;

double at(const std::vector<double>& sorted, double share)
{
    return sorted[static_cast<size_t>(std::lround(share * double(sorted.size() - 1)))];
}

double median(const std::vector<double>& sorted)
{
    return (at(sorted, 0.5) + sorted[(sorted.size() - 1) / 2]) / 2;
}

double halfMiddle(const std::vector<double>& sorted)
{
    return (at(sorted, 0.75) - at(sorted, 0.25)) / 2 / median(sorted);
}

/// The exponent of the power of n that fits best: the slope of the least squares line through the
/// logarithms.
double fittedExponent(const std::vector<std::pair<double, double>>& points)
{
    double sumX = 0;
    double sumY = 0;
    double sumXX = 0;
    double sumXY = 0;
    for (const auto& [n, time] : points) {
        const double x = std::log(n);
        const double y = std::log(time);
        sumX += x;
        sumY += y;
        sumXX += x * x;
        sumXY += x * y;
    }
    const auto count = double(points.size());
    return (count * sumXY - sumX * sumY) / (count * sumXX - sumX * sumX);
}

}  // namespace

void Runner::add(const char* id, const std::string& part,
                 std::function<Result(const std::string& name)> measure)
{
    m_tasks.push_back({&figure(id), part, std::move(measure)});
}

void Runner::addPair(const char* id, const std::string& part, const Body& project,
                     const Body& floor)
{
    add(id, part,
        [=](const std::string& name) { return measurePair(name, project, floor, false); });
}

void Runner::addTimedPair(const char* id, const std::string& part, const Body& project,
                          const Body& floor)
{
    add(id, part, [=](const std::string& name) { return measurePair(name, project, floor, true); });
}

void Runner::addGrowth(const char* id, long least, long most, const Body& body)
{
    add(id, std::to_string(least) + " to " + std::to_string(most),
        [=](const std::string& name) { return measureGrowth(name, least, most, body); });
}

void Runner::addCheck(const char* id, const std::string& part, const std::function<double()>& count)
{
    add(id, part, [=](const std::string& /*name*/) {
        Result result;
        result.value = count();
        return result;
    });
}

Result Runner::measurePair(const std::string& name, const Body& project, const Body& floor,
                           bool timed) const
{
    for (const auto& [side, body] : {std::pair("project", &project), std::pair("floor", &floor)}) {
        auto* const registered = benchmark::RegisterBenchmark((name + '/' + side).c_str(), *body);
        registered->Repetitions(m_effort.repetitions);
        if (timed) {
            registered->UseManualTime()->Iterations(1);
        } else {
            registered->MinTime(m_effort.seconds);
        }
    }
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector, '^' + name + "/(project|floor)");
    const auto projectTimes = collector.times(name + "/project/");
    const auto floorTimes = collector.times(name + "/floor/");

    Result result;
    result.project = median(projectTimes);
    result.floor = median(floorTimes);
    result.value = result.project / result.floor;
    result.spread = std::max(halfMiddle(projectTimes), halfMiddle(floorTimes));
    return result;
}

Result Runner::measureGrowth(const std::string& name, long least, long most, const Body& body) const
{
    std::vector<long> sizes;
    for (long size = least; size <= most; size *= 10) {
        sizes.push_back(size);
    }
    for (const long size : sizes) {
        benchmark::RegisterBenchmark((name + "/project").c_str(), body)
            ->Arg(size)
            ->Repetitions(std::min(m_effort.repetitions, growthRepetitions))
            ->MinTime(m_effort.growthSeconds);
    }
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector, '^' + name + "/project");
    std::vector<std::pair<double, double>> points;
    points.reserve(sizes.size());
    for (const long size : sizes) {
        points.emplace_back(size,
                            median(collector.times(name + "/project/" + std::to_string(size))));
    }

    Result result;
    result.project = points.back().second;
    result.floor = points.front().second;
    result.value = fittedExponent(points);
    return result;
}

std::vector<Result> Runner::run()
{
    std::vector<Result> results;
    for (const Task& task : m_tasks) {
        std::string name = task.figure->id;
        if (!m_effort.only.empty() && name.find(m_effort.only) == std::string::npos) {
            continue;
        }
        name += '/' + task.part;
        std::fprintf(stderr, "%s\n", name.c_str());
        std::replace(name.begin(), name.end(), ' ', '-');
        Result result = task.measure(name);
        result.figure = task.figure;
        result.part = task.part;
        results.push_back(result);
    }
    return results;
}
