#pragma once

#include "Judgement.h"

#include <QStringList>

/// What the checks say, each about a row of the table.
class Report {
public:
    explicit Report(TakeJudgement take) : m_take(std::move(take)) {}

    /// Whether `came` is as `expected`; `done` says what was done.
    bool expect(Row row, const QString& done, bool expected, bool came);
    bool expect(Row row, const QString& done, int expected, int came);
    bool expect(Row row, const QString& done, const QString& expected, const QString& came);
    bool expect(Row row, const QString& done, const QStringList& expected, const QStringList& came);
    /// The same, with a comparison of the caller's.
    bool judge(Row row, const QString& done, bool holds, const QString& expected,
               const QString& came);

    /// Says what is called next, to see in which call a host crashes.
    void step(const QString& what);
    /// Says why a row could not be judged.
    void untried(Row row, const QString& why);

    /// Runs `action`, which judges, as a step; an exception that leaves it is a difference of the
    /// row.
    void run(Row row, const QString& what, const std::function<void()>& action);
    /// The same of an `action` of which nothing more is expected than that it returns.
    void expectReturn(Row row, const QString& what, const std::function<void()>& action);

private:
    void expectNothing(Row row, const QString& what, const QString& thrown);

    TakeJudgement m_take;
};
