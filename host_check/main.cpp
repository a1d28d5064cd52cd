// Checks a host's four libraries against the interface that host/ documents.

#include "Checks.h"
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
    "usage: host_check --unit metric|inch [--job NAME] [--step NAME] [--verbose]\n";

/// False, with the usage on stderr, if the options are not understood.
bool readOptions(Situation& situation, bool& isVerbose)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Checks the host's libraries against the interface of the tool strip. Each "
        "difference is one line; the exit status is 1 if there is any. Run it once for "
        "each unit."));
    const QCommandLineOption unit(
        QStringLiteral("unit"), QStringLiteral("The unit that the host is set to: metric or inch."),
        QStringLiteral("UNIT"));
    const QCommandLineOption job(QStringLiteral("job"),
                                 QStringLiteral("The job that is open in the host."),
                                 QStringLiteral("NAME"));
    const QCommandLineOption step(QStringLiteral("step"),
                                  QStringLiteral("A step of that job, for its special texts."),
                                  QStringLiteral("NAME"));
    const QCommandLineOption verbose(
        QStringLiteral("verbose"),
        QStringLiteral("Print each step before it is tried, to see where a host crashes."));
    parser.addOptions({unit, job, step, verbose});
    const QCommandLineOption help = parser.addHelpOption();
    // Not process(): it would exit with the status that means a difference.
    if (!parser.parse(QApplication::arguments())) {
        QTextStream(stderr) << parser.errorText() << '\n' << usage;
        return false;
    }
    if (parser.isSet(help)) {
        parser.showHelp();
    }
    const QString value = parser.value(unit);
    situation.isMetric = value == QLatin1String("metric");
    if ((!situation.isMetric && value != QLatin1String("inch")) ||
        !parser.positionalArguments().isEmpty()) {
        QTextStream(stderr) << usage;
        return false;
    }
    situation.job = parser.value(job);
    situation.step = parser.value(step);
    isVerbose = parser.isSet(verbose);
    return true;
}

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Situation situation;
    bool isVerbose = false;
    if (!readOptions(situation, isVerbose)) {
        return wrongUsage;
    }
    Report report(isVerbose);
    QWidget window;
    situation.context = &window;
    report.run(QStringLiteral("GetPluginInstance()"), [&] {
        situation.strip = static_cast<Canvas_Tool_Strip*>(GetPluginInstance(&window));
        if (report.expect(QStringLiteral("GetPluginInstance() gives a tool strip"), true,
                          situation.strip != nullptr)) {
            window.setLayout(situation.strip);
        }
    });
    checkPluginManager(report);
    checkCamApi(report, situation);
    checkUiApi(report, situation);
    checkLineEdit(report, situation);
    checkCommonWidgets(report, situation);
    checkChoosers(report, situation);
    report.finish();
    return report.isClean() ? 0 : different;
}
