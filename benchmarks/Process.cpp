// Figure of a process that opens the library for the first time.

#include "Groups.h"
#include "Runner.h"

#include <QProcess>

namespace {

/// Starts a process that opens `library`; the time is the one that it tells.
void startProcess(benchmark::State& state, const char* library)
{
    for (auto _ : state) {
        QProcess process;
        process.start(QStringLiteral(FRESH_PROCESS), {QString::fromLocal8Bit(library)});
        bool isNumber = false;
        const bool ended = process.waitForFinished();
        const double nanoseconds = process.readAllStandardOutput().trimmed().toDouble(&isNumber);
        if (!ended || !isNumber) {
            state.SkipWithError(process.readAllStandardError() + process.errorString().toUtf8());
            return;
        }
        state.SetIterationTime(nanoseconds / 1e9);
    }
}

}  // namespace

void addProcessFigures(Runner& runner)
{
    runner.addTimedPair(
        "process", [](benchmark::State& state) { startProcess(state, MODULE_LIBRARY); },
        [](benchmark::State& state) { startProcess(state, MINIMAL_LIBRARY); });
}
