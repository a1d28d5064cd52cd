// A process that has opened no module yet: opens the given library, has it construct a
// tool strip, and prints the nanoseconds of processor time that this took. With "log" before the
// library the host has set up its log, and so has loaded the log's library.

#include <QApplication>
#include <QGridLayout>
#include <QLibrary>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace {

long long processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return time.tv_sec * 1000000000LL + time.tv_nsec;
}

int fail(const QLibrary& library)
{
    std::fprintf(stderr, "%s\n", qPrintable(library.errorString()));
    return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QLibrary log(QStringLiteral(LOG_LIBRARY));
    if (argc > 2 && std::strcmp(argv[1], "log") == 0 && !log.load()) {
        return fail(log);
    }
    QWidget panel;
    const long long start = processorTime();
    QLibrary library(QString::fromLocal8Bit(argv[argc - 1]));
    using CreateInstance = void* (*)(QWidget * parent);
    const auto create = reinterpret_cast<CreateInstance>(library.resolve("GetPluginInstance"));
    void* const strip = create ? create(&panel) : nullptr;
    const long long taken = processorTime() - start;
    if (!strip) {
        return fail(library);
    }
    panel.setLayout(static_cast<QGridLayout*>(strip));
    std::printf("%lld\n", taken);
    return EXIT_SUCCESS;
}
