// Figures for a process that opens the library for the first time.

#include "Groups.h"
#include "Runner.h"

#include <QProcess>

namespace {

/// A side that starts a process which opens the library; the time is the one that it prints.
Runner::Body starting(const char* library, bool hasLog)
{
    const auto arguments = (hasLog ? QStringList("log") : QStringList()) << library;
    return [arguments](benchmark::State& state) {
        for (auto _ : state) {
            QProcess process;
            process.start(QStringLiteral(FRESH_PROCESS), arguments);
            bool isNumber = false;
            const bool ended = process.waitForFinished();
            const double nanoseconds =
                process.readAllStandardOutput().trimmed().toDouble(&isNumber);
            if (!ended || process.exitCode() != 0 || !isNumber) {
                state.SkipWithError(process.readAllStandardError() +
                                    process.errorString().toUtf8());
                return;
            }
            state.SetIterationTime(nanoseconds / 1e9);
        }
    };
}

}  // namespace

void addProcessFigures(Runner& runner)
{
    const std::string what = "fresh process: library opened, strip constructed: ";
    runner.add({"process", what + "host has its log", 1.10, "", 1, true},
               starting(MODULE_LIBRARY, true), starting(MINIMAL_LIBRARY, true));
    runner.add(
        {"process", what + "host without log", 1.10, "the log's library is loaded along", 1, true},
        starting(MODULE_LIBRARY, false), starting(MINIMAL_LIBRARY, false));
}
