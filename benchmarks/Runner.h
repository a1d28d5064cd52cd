#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

/// How long and how often to measure.
struct Effort {
    bool quick = false;    ///< once, as briefly as possible: shows that everything works
    int repetitions = 31;  ///< of each side
    std::string only;      ///< part of the ids that are wanted; empty: all
};

/// A row of the table: what is measured, and what its ratio may be at most.
struct Figure {
    const char* id;
    std::string what;
    double target;
    const char* why = "";      ///< it may miss the target
    double timesAsMuch = 1;    ///< done on the project's side; the ratio is then the exponent
    bool timesItself = false;  ///< the sides set the time of each iteration
};

struct Result {
    Figure figure;
    double project;  ///< nanoseconds
    double floor;    ///< nanoseconds
    double ratio;
    double spread;  ///< half the middle half of the repetitions, over the median
    bool holds() const { return ratio <= figure.target; }
};

/// Collects the sides of all figures, and runs them one figure after the other: the two sides in
/// random order in the same seconds, so that what the machine does affects both.
class Runner {
public:
    using Body = std::function<void(benchmark::State&)>;
    using SizedBody = void (*)(benchmark::State&, int size);

    explicit Runner(const Effort& effort) : m_effort(effort) {}
    const Effort& effort() const { return m_effort; }

    /// Both sides do the same work per iteration.
    void add(const Figure& figure, const Body& project, const Body& floor);
    /// The sides are `most` and `least` of the same work; the ratio is the exponent of its growth.
    void addGrowth(Figure figure, int least, int most, SizedBody body);

    /// Runs everything wanted, and reports progress on stderr.
    std::vector<Result> run() const;

private:
    struct Task {
        Figure figure;
        Body project;
        Body floor;
    };
    Result measure(const Task& task) const;

    Effort m_effort;
    std::vector<Task> m_tasks;
};

/// The results as one table, in Markdown; below it, on what they were measured.
std::string markdownTable(const std::vector<Result>& results, const Effort& effort);
