#pragma once

#include <QStringList>

#include <functional>

/// Compares what a host does with what the interface requires, prints each difference in one line,
/// and counts.
class Report {
public:
    /// `isVerbose`: see step().
    explicit Report(bool isVerbose) : m_isVerbose(isVerbose) {}

    /// Whether both are equal; a difference is printed under the name `what`.
    bool expect(const QString& what, bool expected, bool got);
    bool expect(const QString& what, int expected, int got);
    /// Sizes go through two conversions: the last digits of a double do not count.
    bool expect(const QString& what, double expected, double got);
    bool expect(const QString& what, const QString& expected, const QString& got);
    bool expect(const QString& what, const QStringList& expected, const QStringList& got);

    /// Announces what is called next. If verbose, it is printed, so that one can see in which call
    /// a host crashes.
    void step(const QString& what);

    /// Reports that something could not be tried, and why.
    void untried(const QString& what, const QString& why);
    void untriedWithoutJob(const QString& what);

    /// Runs `action` as a step; an exception that leaves it is a difference named `what`.
    void run(const QString& what, const std::function<void()>& action);

    /// Prints the totals.
    void finish() const;
    bool isClean() const { return m_differences == 0; }

private:
    bool compared(bool isSame, const QString& what, const QString& expected, const QString& got);

    bool m_isVerbose;
    int m_tried = 0;
    int m_differences = 0;
    int m_untried = 0;
};
