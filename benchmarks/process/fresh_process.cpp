// A process that has opened no module yet: opens the library that it is told, has it construct a
// tool strip, and prints the nanoseconds that this took.

#include <QApplication>
#include <QLibrary>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget panel;
    const auto start = std::chrono::steady_clock::now();
    QLibrary library(QString::fromLocal8Bit(argv[argc - 1]));
    using CreateInstance = void* (*)(QWidget * parent);
    const auto create = reinterpret_cast<CreateInstance>(library.resolve("GetPluginInstance"));
    const void* const strip = create ? create(&panel) : nullptr;
    const std::chrono::nanoseconds taken = std::chrono::steady_clock::now() - start;
    if (!strip) {
        std::fprintf(stderr, "%s\n", qPrintable(library.errorString()));
        return EXIT_FAILURE;
    }
    std::printf("%lld\n", static_cast<long long>(taken.count()));
    return EXIT_SUCCESS;
}
