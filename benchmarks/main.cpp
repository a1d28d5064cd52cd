// Measures every figure next to its floor, and prints one table.

#include "Groups.h"
#include "Heap.h"
#include "Runner.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLoggingCategory>

#include <glog/logging.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

/// Nothing is logged while figures are measured, unless a figure says so. The windowless platform
/// would report at each raise() that it does not support it.
void silenceLogs(char* program)
{
    FLAGS_stderrthreshold = google::NUM_SEVERITIES;
    for (google::LogSeverity severity = 0; severity < google::NUM_SEVERITIES; ++severity) {
        google::SetLogDestination(severity, "");
    }
    google::InitGoogleLogging(program);
    QLoggingCategory::setFilterRules(
        QStringLiteral("canvastoolstrip.*=false\ndefault.warning=false"));
}

void startBenchmarks(char* program)
{
    // The two sides of a figure take turns in random order.
    static char interleaving[] = "--benchmark_enable_random_interleaving=true";
    char* arguments[] = {program, interleaving, nullptr};
    int count = 2;
    benchmark::Initialize(&count, arguments);
}

/// Ends the program if an option is not understood.
Effort readOptions(const QApplication& application)
{
    Effort effort;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Measures the module next to minimal code that does the same work."));
    parser.addHelpOption();
    parser.addOptions(
        {{"only", "Measure the figures whose id contains TEXT.", "TEXT"},
         {"repetitions", "Measure each side N times.", "N", QString::number(effort.repetitions)},
         {"quick", "Measure once, briefly, to see that everything works."}});
    parser.process(application);

    effort.only = parser.value("only").toStdString();
    effort.quick = parser.isSet("quick");
    effort.repetitions = effort.quick ? 1 : std::max(1, parser.value("repetitions").toInt());
    return effort;
}

}  // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    Heap::keepMemory();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const Effort effort = readOptions(application);
    silenceLogs(argv[0]);
    startBenchmarks(argv[0]);

    Runner runner(effort);
    for (const auto add : {addStripFigures, addIncomingFigures, addRecordFigures, addDialogFigures,
                           addKeyFigures, addProcessFigures, addGrowthFigures, addBoardFigures}) {
        add(runner);
    }
    const std::vector<Result> results = runner.run();
    std::fputs(markdownTable(results, effort).c_str(), stdout);
    if (results.empty()) {
        std::fprintf(stderr, "no figure's id contains \"%s\"\n", effort.only.c_str());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
