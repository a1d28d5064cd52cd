#pragma once

#include "Figures.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

/// How long and how often to measure.
struct Effort {
    bool quick = false;            ///< once, as briefly as possible: shows that everything works
    int repetitions = 31;          ///< of each side of a pair
    double seconds = 0.03;         ///< of each repetition of a side
    double growthSeconds = 0.005;  ///< of each repetition of a size
    std::string only;              ///< part of the ids that are wanted; empty: all
};

/// A row of the table.
struct Result {
    const Figure* figure = nullptr;
    std::string part;    ///< of the figure; empty if it has no parts
    double project = 0;  ///< nanoseconds; for an exponent the largest size's time
    double floor = 0;    ///< nanoseconds; for an exponent the smallest size's time
    double value = 0;    ///< what is compared with the target
    double spread = 0;   ///< for a ratio: half the middle half of the repetitions, over the median
    bool holds() const { return value <= figure->target; }
};

/// Collects the benchmarks of all figures, and runs them one figure after the other: the two sides
/// of a pair in random order in the same seconds, so that what the machine does affects both.
class Runner {
public:
    using Body = std::function<void(benchmark::State&)>;

    explicit Runner(const Effort& effort) : m_effort(effort) {}
    const Effort& effort() const { return m_effort; }

    /// Both sides do the same work per iteration.
    void addPair(const char* id, const std::string& part, const Body& project, const Body& floor);
    /// As addPair(), for sides that measure by themselves and set the time of each iteration.
    void addTimedPair(const char* id, const std::string& part, const Body& project,
                      const Body& floor);
    /// `body` does work of the size state.range(0).
    void addGrowth(const char* id, long least, long most, const Body& body);
    /// `count` returns the bytes or calls; it runs once.
    void addCheck(const char* id, const std::string& part, const std::function<double()>& count);

    /// Runs everything wanted, and reports progress on stderr.
    std::vector<Result> run();

private:
    struct Task {
        const Figure* figure;
        std::string part;
        std::function<Result(const std::string& name)> measure;
    };
    Result measurePair(const std::string& name, const Body& project, const Body& floor,
                       bool timed) const;
    Result measureGrowth(const std::string& name, long least, long most, const Body& body) const;
    void add(const char* id, const std::string& part,
             std::function<Result(const std::string& name)> measure);

    Effort m_effort;
    std::vector<Task> m_tasks;
};
