#include "messages/MessageLog.h"
#include "messages/MessageTrace.h"
#include "messages/WindowPicture.h"
#include "session/SessionParser.h"
#include "session/SessionPlayer.h"
#include "shared/CanvasControl.h"
#include "shared/FileQuestion.h"
#include "shared/Settings.h"
#include "window/Display.h"
#include "window/Look.h"
#include "window/Options.h"
#include "window/WorkbenchWindow.h"

#include <CamApiStandIn.h>
#include <FileError.h>
#include <FileKind.h>
#include <Files.h>

#include <QApplication>
#include <QCoreApplication>
#include <QFileInfo>
#include <QIcon>
#include <QImageReader>
#include <QLoggingCategory>
#include <QPixmap>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>

#include <cstdio>
#include <optional>

using CanvasHost::FileError;

namespace {

enum ExitStatus { Good = 0, StepFailed = 1, BadInput = 2 };

void complain(const QString& text)
{
    fprintf(stderr, "%s\n", qUtf8Printable(text));
}

/// What the command line names, read and opened.
struct Inputs {
    Options options;
    Session session;
    MessageTrace trace;
};

/// Takes the file that was named without an option for what it is.
void sortFile(Options* options)
{
    if (options->file.isEmpty()) {
        return;
    }
    const QByteArray content = CanvasHost::readWhole(options->file);
    const bool isJob = CanvasHost::kindOf(content) == CanvasHost::FileKind::Job;
    if (isJob ? options->isJobGiven : !options->boardFile.isEmpty()) {
        throw FileError{options->file, 0,
                        QStringLiteral("another one is named by an option already")};
    }
    QString& place = isJob ? options->jobFile : options->boardFile;
    place = options->file;
    options->isJobGiven = options->isJobGiven || isJob;
}

/// Reads everything that may be wrong before a window is made.
void readInputs(int argc, char* argv[], Inputs* inputs)
{
    inputs->options = Options::ofProgram(argc, argv);
    sortFile(&inputs->options);
    const Options& options = inputs->options;
    CanvasHost::loadJobs(options.jobFile);
    if (!options.sessionFile.isEmpty()) {
        inputs->session = SessionParser::readFile(options.sessionFile);
    }
    if (!options.recordFile.isEmpty() && QFileInfo::exists(options.recordFile) &&
        QFileInfo(options.recordFile) == QFileInfo(options.sessionFile)) {
        throw FileError{options.recordFile, 0,
                        QStringLiteral("cannot record over the session that is played")};
    }
    if (!options.traceFile.isEmpty()) {
        inputs->trace.open(options.traceFile);
    }
}

/// Whether a user is at work, and nothing is played, recorded or pictured.
bool isByHand(const Options& options)
{
    return !options.exit && options.sessionFile.isEmpty() && options.recordFile.isEmpty() &&
           options.screenshotFile.isEmpty();
}

/// The file of the settings: the user's where a user is at work, otherwise a new one in `own`.
QString settingsFile(const Options& options, std::optional<QTemporaryDir>* own)
{
    if (!options.settingsFile.isEmpty()) {
        return options.settingsFile;
    }
    if (isByHand(options)) {
        return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
               QStringLiteral("/canvas-tool-strip/workbench.ini");
    }
    return own->emplace().filePath(QStringLiteral("workbench.ini"));
}

/// Qt reads such pictures by a plug-in, and shows nothing without it.
void requirePictures(const char* format)
{
    if (!QImageReader::supportedImageFormats().contains(format)) {
        throw FileError{
            QStringLiteral("workbench"), 0,
            QStringLiteral("Qt's plug-in imageformats/q%1 is missing").arg(QLatin1String(format))};
    }
}

/// Calls `then` when `window` has been on the screen for a moment.
void whenPainted(QWidget* window, const std::function<void()>& then)
{
    const bool exposed = window->windowHandle() && window->windowHandle()->isExposed();
    QTimer::singleShot(exposed ? 150 : 20, window, [=] {
        if (exposed) {
            then();
        } else {
            whenPainted(window, then);
        }
    });
}

/// Writes what the options ask for once everything has been played.
void writeOutputs(const Options& options, WorkbenchWindow* window)
{
    if (!options.exportFile.isEmpty()) {
        const QString leftOut = window->canvas()->files().exportTo(options.exportFile);
        if (!leftOut.isEmpty()) {
            complain(options.exportFile + QStringLiteral(": ") + leftOut);
        }
    }
    if (!options.screenshotFile.isEmpty()) {
        savePicture(pictureOf(window), options.screenshotFile);
    }
}

void keepForRecovery(const Options& options, const WorkbenchWindow& window)
{
    if (isByHand(options) || options.recovery) {
        window.canvas()->files().keepForRecovery();
    }
}

/// Everything has been played.
void end(const Options& options, WorkbenchWindow* window)
{
    try {
        writeOutputs(options, window);
        if (options.exit) {
            QCoreApplication::exit(Good);
        }
    } catch (const FileError& error) {
        complain(error.text());
        QCoreApplication::exit(BadInput);
    }
    if (!options.boardFile.isEmpty() && isByHand(options)) {
        window->canvas()->files().open(options.boardFile);
    }
    if (options.sessionFile.isEmpty()) {
        keepForRecovery(options, *window);
    }
}

/// What the program remembers, and how it looks.
void prepare(Options* options, std::optional<QTemporaryDir>* ownSettings)
{
    QApplication::setApplicationName(QStringLiteral("canvas-workbench"));
    QApplication::setDesktopFileName(QStringLiteral("canvas-workbench"));
    // A session cannot reach into the dialogs of the platform.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs, !isByHand(*options));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/workbench/canvas-workbench.svg")));
    Settings::keepIn(settingsFile(*options, ownSettings));
    if (!options->sessionFile.isEmpty() || !options->recordFile.isEmpty()) {
        Settings::ignoreChoices();
    }
    options->recall();
    if (options->isJobGiven) {
        LastFolder::remember(options->jobFile);
    }
    Look::dress(*options);
}

int run(int argc, char* argv[])
{
    Inputs inputs;
    readInputs(argc, argv, &inputs);
    Options& options = inputs.options;
    if (!options.log) {
        QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    }
    const auto application = openApplication(argc, argv, BadInput);
    requirePictures("jpeg");
    std::optional<QTemporaryDir> ownSettings;
    prepare(&options, &ownSettings);
    MessageLog log;
    QObject::connect(&log, &MessageLog::appended, application.get(),
                     [&](const MessageRecord& message) { inputs.trace.append(message); });
    WorkbenchWindow window(options, &log);
    window.start();
    requirePictures("svg");  // after the canvas, which would name Qt's library that both need
    if (!options.boardFile.isEmpty() && !isByHand(options)) {
        window.canvas()->files().openAtOnce(options.boardFile);
    }
    if (!options.recordFile.isEmpty()) {
        window.record(options.recordFile);
    }
    SessionPlayer player(inputs.session, window.host(), &window, &log);
    QObject::connect(&player, &SessionPlayer::noted, application.get(), complain);
    QObject::connect(&player, &SessionPlayer::failed, application.get(), [](const QString& text) {
        complain(text);
        QCoreApplication::exit(StepFailed);
    });
    QObject::connect(&player, &SessionPlayer::finished, &window, [&] { end(options, &window); });
    QObject::connect(&window, &WorkbenchWindow::closed, application.get(), &QCoreApplication::quit);
    window.canvas()->files().setMayAsk(
        [&] { return player.isOver() ? !options.exit : player.expectsBox(); });
    window.show();
    whenPainted(&window, [&] {
        // A session answers the offer itself; who sits there is asked when nothing is played.
        if (!options.sessionFile.isEmpty()) {
            keepForRecovery(options, window);
        }
        player.start();
    });
    return QApplication::exec();
}

}  // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    try {
        return run(argc, argv);
    } catch (const FileError& error) {
        complain(error.text());
        return BadInput;
    }
}
