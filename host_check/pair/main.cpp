// Opens the module in a window, and uses it as a user would: started by host_check --module.

#include "Strip.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

#include <glog/logging.h>

namespace {

PairOptions readOptions()
{
    QCommandLineParser parser;
    const QStringList names = {"module", "unit", "job", "step", "switch-unit", "host-library"};
    for (const QString& name : names) {
        parser.addOption({name, QString(), name});
    }
    parser.process(QApplication::arguments());
    PairOptions options;
    options.module = parser.value(names[0]);
    options.isMetric = parser.value(names[1]) == QLatin1String("metric");
    options.job = parser.value(names[2]);
    options.step = parser.value(names[3]);
    options.switchUnit = parser.value(names[4]);
    options.hostLibraries = parser.values(names[5]);
    return options;
}

/// At once: what is said last before a crash must arrive.
void printLine(const Judgement& judgement)
{
    QTextStream(stdout) << judgement.toLine() << '\n';
}

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    // As every host does before it opens a module; and the log outlives the module.
    google::InitGoogleLogging(argv[0]);
    FLAGS_logtostderr = true;
    QApplication::setQuitOnLastWindowClosed(false);
    Driver driver{Report(printLine)};
    Strip(driver, readOptions()).run();
    driver.report().step(lastStep);
    return 0;
}
