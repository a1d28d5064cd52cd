// Measures every figure next to its floor, and prints one table.

#include "Groups.h"
#include "Heap.h"
#include "Runner.h"
#include "Table.h"

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
    // The two sides of a pair take turns in random order.
    static char interleaving[] = "--benchmark_enable_random_interleaving=true";
    char* arguments[] = {program, interleaving, nullptr};
    int count = 2;
    benchmark::Initialize(&count, arguments);
}

/// Ends the program if an option is not understood. `page` gets the table.
Effort readOptions(const QApplication& application, QString* page)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Measures the module next to minimal code that does the same work."));
    parser.addHelpOption();
    parser.addOptions(
        {{"markdown", "Also write the table into the page FILE.", "FILE"},
         {"only", "Measure the figures whose id contains TEXT.", "TEXT"},
         {"repetitions", "Measure each side N times.", "N", QString::number(Effort().repetitions)},
         {"quick", "Measure once, briefly, to see that everything works."}});
    parser.process(application);

    Effort effort;
    effort.only = parser.value("only").toStdString();
    effort.repetitions = std::max(1, parser.value("repetitions").toInt());
    if (parser.isSet("quick")) {
        effort.quick = true;
        effort.repetitions = 1;
        effort.seconds = effort.growthSeconds = 1e-6;
    }
    *page = parser.value("markdown");
    return effort;
}

/// Whether every figure without a time holds, which it must however busy the machine is.
bool untimedHold(const std::vector<Result>& results)
{
    return std::all_of(results.begin(), results.end(), [](const Result& result) {
        const Kind kind = result.figure->kind;
        return result.holds() || kind == Kind::Ratio || kind == Kind::Exponent;
    });
}

bool complete(const std::vector<Result>& results)
{
    return std::all_of(figures().begin(), figures().end(), [&](const Figure& wanted) {
        return std::any_of(results.begin(), results.end(),
                           [&](const Result& result) { return result.figure == &wanted; });
    });
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
    QString page;
    const Effort effort = readOptions(application, &page);
    if (!page.isEmpty() && !effort.only.empty()) {
        std::fputs("--markdown needs all figures, not just those of --only\n", stderr);
        return EXIT_FAILURE;
    }
    silenceLogs(argv[0]);
    startBenchmarks(argv[0]);

    Runner runner(effort);
    for (const auto add :
         {addStripFigures, addClickFigures, addIncomingFigures, addRecordFigures, addDialogFigures,
          addKeyFigures, addProcessFigures, addGrowthFigures, addMemoryFigures, addBoardFigures}) {
        add(runner);
    }
    const std::vector<Result> results = runner.run();
    if (results.empty()) {
        std::fprintf(stderr, "no figure's id contains \"%s\"\n", effort.only.c_str());
        return EXIT_FAILURE;
    }
    const QString table = markdownTable(results, effort);
    std::fputs(qUtf8Printable(table), stdout);
    if (effort.only.empty() && !complete(results)) {
        std::fputs("a figure is missing\n", stderr);
        return EXIT_FAILURE;
    }
    if (!page.isEmpty() && !putInto(page, table)) {
        return EXIT_FAILURE;
    }
    return untimedHold(results) ? EXIT_SUCCESS : EXIT_FAILURE;
}
