#include "Main.h"

#include <QLoggingCategory>

#include <glog/logging.h>

int runTests(QObject& test, int argc, char** argv)
{
    // Nothing is written to files or the terminal: tests that look at the log catch it.
    FLAGS_stderrthreshold = google::NUM_SEVERITIES;
    for (google::LogSeverity severity = 0; severity < google::NUM_SEVERITIES; ++severity) {
        google::SetLogDestination(severity, "");
    }
    google::InitGoogleLogging(argv[0]);
    // Of each record that is sent there would be a line a key.
    QLoggingCategory::setFilterRules(QStringLiteral("canvastoolstrip.record.debug=false"));
    const int result = QTest::qExec(&test, argc, argv);
    google::ShutdownGoogleLogging();
    return result;
}
