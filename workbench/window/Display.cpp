#include "window/Display.h"

#include <FileError.h>

#include <QString>

#include <cstdio>
#include <cstdlib>

namespace {

int statusWithoutDisplay = EXIT_FAILURE;
QString firstComplaint;
QtMessageHandler handlerBefore = nullptr;

void hearQt(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg) {
        const CanvasHost::FileError error{
            QStringLiteral("workbench"), 0,
            QStringLiteral("no window can be shown: ") + firstComplaint};
        fprintf(stderr, "%s\n", qUtf8Printable(error.text()));
        // Nothing exists yet that needs an orderly end.
        _Exit(statusWithoutDisplay);
    }
    // The first of the platform's complaints is the reason, the others follow from it.
    if (!QByteArray(context.category).startsWith("qt.qpa")) {
        handlerBefore(type, context, text);
    } else if (firstComplaint.isEmpty()) {
        firstComplaint = text.trimmed();
    }
}

}  // namespace

std::unique_ptr<QApplication> openApplication(int& argc, char** argv, int withoutDisplay)
{
    statusWithoutDisplay = withoutDisplay;
    handlerBefore = qInstallMessageHandler(hearQt);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(handlerBefore);
    return application;
}
