// Figure for a process that opens the library for the first time.

#include "Groups.h"
#include "Runner.h"

#include <QProcess>

namespace {

/// Starts a process that opens the library named last; the time is the one that it prints.
void startProcess(benchmark::State& state, const QStringList& arguments)
{
    for (auto _ : state) {
        QProcess process;
        process.start(QStringLiteral(FRESH_PROCESS), arguments);
        bool isNumber = false;
        const bool ended = process.waitForFinished();
        const double nanoseconds = process.readAllStandardOutput().trimmed().toDouble(&isNumber);
        if (!ended || process.exitCode() != 0 || !isNumber) {
            state.SkipWithError(process.readAllStandardError() + process.errorString().toUtf8());
            return;
        }
        state.SetIterationTime(nanoseconds / 1e9);
    }
}

}  // namespace

void addProcessFigures(Runner& runner)
{
    for (const bool hasLog : {true, false}) {
        const QStringList log = hasLog ? QStringList{QStringLiteral("log")} : QStringList{};
        const QStringList project = log + QStringList{QStringLiteral(MODULE_LIBRARY)};
        const QStringList floor = log + QStringList{QStringLiteral(MINIMAL_LIBRARY)};
        runner.addTimedPair(
            "process", hasLog ? "host has its log" : "host without log",
            [=](benchmark::State& state) { startProcess(state, project); },
            [=](benchmark::State& state) { startProcess(state, floor); });
    }
}
