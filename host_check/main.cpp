// Checks what the tool strip relies on in a host's four libraries.

#include "Checks.h"
#include "HostLibraries.h"
#include "PairRun.h"
#include "Printer.h"
#include "Report.h"
#include "plugin/PluginEntry.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>
#include <QWidget>

namespace {

constexpr int different = 1;
constexpr int wrongUsage = 2;
constexpr const char* usage =
    "usage: host_check --unit metric|inch [--job NAME] [--step NAME] [--attribute NAME=VALUE]...\n"
    "                  [--module PATH [--switch-unit COMMAND]] [--verbose]\n"
    "       host_check --list\n";

struct Options {
    Situation situation;
    QString unit;
    QString module;
    QString switchUnit;
    bool isVerbose = false;
    bool isList = false;
};

QCommandLineOption option(const char* name, const char* description, const char* value)
{
    return {QLatin1String(name), QLatin1String(description), QLatin1String(value)};
}

/// False if an attribute is not understood.
bool readAttributes(const QStringList& texts, Situation& situation)
{
    for (const QString& text : texts) {
        const int equals = text.indexOf('=');
        if (equals <= 0) {
            return false;
        }
        situation.attributes.emplace_back(text.left(equals).toStdString(),
                                          text.mid(equals + 1).toStdString());
    }
    return situation.attributes.size() != 1;
}

/// False, with what is wrong on stderr, if the options are not understood.
bool readOptions(Options& options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Checks what the tool strip relies on in the host's libraries. The exit status is 1 if "
        "anything differs. Run it once for each unit."));
    const auto unit = option("unit", "The unit that the host is set to: metric or inch.", "UNIT");
    const auto job = option("job", "The job that is open in the host.", "NAME");
    const auto step = option("step", "A step of that job, for its special texts.", "NAME");
    const auto attribute =
        option("attribute", "An attribute that the job knows; give two.", "NAME=VALUE");
    const auto module = option("module", "Try this module in the host as well.", "PATH");
    const auto switchUnit =
        option("switch-unit", "Switches the host's unit when run with metric or inch at its end.",
               "COMMAND");
    const QCommandLineOption verbose(
        QStringLiteral("verbose"),
        QStringLiteral("Print each step before it is tried, to see where a host crashes."));
    const QCommandLineOption list(QStringLiteral("list"),
                                  QStringLiteral("Print what the module relies on, in Markdown."));
    parser.addOptions({unit, job, step, attribute, module, switchUnit, verbose, list});
    const QCommandLineOption help = parser.addHelpOption();
    // Not process(): it would exit with the status that means a difference.
    if (!parser.parse(QApplication::arguments())) {
        QTextStream(stderr) << parser.errorText() << '\n' << usage;
        return false;
    }
    if (parser.isSet(help)) {
        parser.showHelp();
    }
    options.isList = parser.isSet(list);
    options.unit = parser.value(unit);
    options.situation.isMetric = options.unit == QLatin1String("metric");
    options.situation.job = parser.value(job);
    options.situation.step = parser.value(step);
    options.module = parser.value(module);
    options.switchUnit = parser.value(switchUnit);
    options.isVerbose = parser.isSet(verbose);
    const bool isUnitKnown =
        options.isList || options.situation.isMetric || options.unit == QLatin1String("inch");
    if (!isUnitKnown || !parser.positionalArguments().isEmpty() ||
        (options.module.isEmpty() && !options.switchUnit.isEmpty()) ||
        !readAttributes(parser.values(attribute), options.situation)) {
        QTextStream(stderr) << usage;
        return false;
    }
    return true;
}

void checkCalls(Report& report, Situation& situation)
{
    QWidget window;
    situation.context = &window;
    report.run(Row::EqVisible, QStringLiteral("GetPluginInstance()"), [&] {
        situation.strip = static_cast<Canvas_Tool_Strip*>(GetPluginInstance(&window));
        window.setLayout(situation.strip);
    });
    checkManager(report);
    checkNames(report, situation);
    checkUnits(report, situation);
    checkLegal(report, situation);
    checkLineEdit(report, situation);
    checkWindows(report, situation);
    checkChoosers(report, situation);
}

void checkPair(const Options& options, const TakeJudgement& take)
{
    QStringList arguments = {QStringLiteral("--module"),      options.module,
                             QStringLiteral("--unit"),        options.unit,
                             QStringLiteral("--job"),         options.situation.job,
                             QStringLiteral("--step"),        options.situation.step,
                             QStringLiteral("--switch-unit"), options.switchUnit};
    for (const QString& file : hostLibraries()) {
        arguments << QStringLiteral("--host-library") << file;
    }
    PairRun(arguments, take).run();
}

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Options options;
    if (!readOptions(options)) {
        return wrongUsage;
    }
    if (options.isList) {
        Printer::printTable();
        return 0;
    }
    Printer printer(options.isVerbose);
    const TakeJudgement take = [&](const Judgement& judgement) { printer.take(judgement); };
    Report report(take);
    checkCalls(report, options.situation);
    if (!options.module.isEmpty()) {
        checkPair(options, take);
    }
    printer.finish();
    return printer.isClean() ? 0 : different;
}
