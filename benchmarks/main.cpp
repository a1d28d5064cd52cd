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

/// Ends the program if an option is not understood.
Effort readOptions(const QApplication& application, QString* jsonFile, QString* page)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Measures the module next to minimal code that does the same work."));
    parser.addHelpOption();
    const QCommandLineOption json(QStringLiteral("json"),
                                  QStringLiteral("Also write the figures to FILE."),
                                  QStringLiteral("FILE"));
    const QCommandLineOption markdown(QStringLiteral("markdown"),
                                      QStringLiteral("Also write the table into the page FILE."),
                                      QStringLiteral("FILE"));
    const QCommandLineOption only(QStringLiteral("only"),
                                  QStringLiteral("Measure the figures whose id contains TEXT."),
                                  QStringLiteral("TEXT"));
    const QCommandLineOption repetitions(
        QStringLiteral("repetitions"), QStringLiteral("Measure each side N times."),
        QStringLiteral("N"), QString::number(Effort().repetitions));
    const QCommandLineOption quick(
        QStringLiteral("quick"),
        QStringLiteral("Measure once, briefly, to see that everything works."));
    parser.addOptions({json, markdown, only, repetitions, quick});
    parser.process(application);

    Effort effort;
    effort.only = parser.value(only).toStdString();
    effort.repetitions = std::max(1, parser.value(repetitions).toInt());
    if (parser.isSet(quick)) {
        effort.quick = true;
        effort.repetitions = 1;
        effort.seconds = effort.growthSeconds = 1e-6;
    }
    *jsonFile = parser.value(json);
    *page = parser.value(markdown);
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
    QString jsonFile;
    QString page;
    const Effort effort = readOptions(application, &jsonFile, &page);
    if (!page.isEmpty() && !effort.only.empty()) {
        std::fputs("--markdown needs all figures, not just those of --only\n", stderr);
        return EXIT_FAILURE;
    }
    silenceLogs(argv[0]);
    startBenchmarks(argv[0]);

    Runner runner(effort);
    for (const auto add : {addStripFigures, addClickFigures, addIncomingFigures, addRecordFigures,
                           addDialogFigures, addKeyFigures, addProcessFigures, addGrowthFigures,
                           addMemoryFigures, addBoardFigures, addHostCallFigures}) {
        add(runner);
    }
    const std::vector<Result> results = runner.run();
    if (results.empty()) {
        std::fprintf(stderr, "no figure's id contains \"%s\"\n", effort.only.c_str());
        return EXIT_FAILURE;
    }
    std::fputs(qUtf8Printable(resultTable(results)), stdout);
    if (!jsonFile.isEmpty() && !writeJson(results, effort, jsonFile)) {
        return EXIT_FAILURE;
    }
    if (effort.only.empty() && !complete(results)) {
        std::fputs("a figure is missing\n", stderr);
        return EXIT_FAILURE;
    }
    if (!page.isEmpty() && !writeMarkdown(results, effort, page)) {
        return EXIT_FAILURE;
    }
    return untimedHold(results) ? EXIT_SUCCESS : EXIT_FAILURE;
}
