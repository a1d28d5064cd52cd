#include "Main.h"

#include <QFileInfo>
#include <QLoggingCategory>
#include <QMap>

#include <glog/logging.h>

#include <cstdio>
#include <vector>

namespace {

QMap<QString, TestProgram::Run>& classes()
{
    static QMap<QString, TestProgram::Run> all;
    return all;
}

/// Nothing is written to files or the terminal: tests that look at the log catch it.
void keepLogQuiet(const char* program)
{
    FLAGS_stderrthreshold = google::NUM_SEVERITIES;
    for (google::LogSeverity severity = 0; severity < google::NUM_SEVERITIES; ++severity) {
        google::SetLogDestination(severity, "");
    }
    google::InitGoogleLogging(program);
    // Otherwise each record that is sent is logged with one line per key.
    QLoggingCategory::setFilterRules(QStringLiteral("canvastoolstrip.record.debug=false"));
}

}  // namespace

bool TestProgram::add(const char* sourceFile, Run run)
{
    classes().insert(QFileInfo(sourceFile).baseName().remove(QStringLiteral("test_")), run);
    return true;
}

bool TestProgram::isFull()
{
    return qEnvironmentVariableIsSet("CTS_FULL");
}

int main(int argc, char** argv)
{
    const auto chosen = classes().constFind(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    if (chosen == classes().constEnd()) {
        std::fprintf(stderr, "usage: %s CLASS [options of Qt Test], where CLASS is one of\n",
                     argv[0]);
        for (const QString& name : classes().keys()) {
            std::fprintf(stderr, "  %s\n", qPrintable(name));
        }
        return 2;
    }
    std::vector<char*> rest(argv, argv + argc);
    rest.erase(rest.begin() + 1);
    int count = static_cast<int>(rest.size());
    rest.push_back(nullptr);
    QApplication application(count, rest.data());
    keepLogQuiet(argv[0]);
    const int result = chosen.value()(count, rest.data());
    google::ShutdownGoogleLogging();
    return result;
}
