#include "messages/MessageLog.h"
#include "messages/MessageTrace.h"
#include "messages/WindowPicture.h"
#include "session/SessionParser.h"
#include "session/SessionPlayer.h"
#include "session/SessionRecorder.h"
#include "window/Options.h"
#include "window/WorkbenchWindow.h"

#include <CamApiStandIn.h>

#include <QApplication>
#include <QFileInfo>
#include <QPixmap>
#include <QStyleFactory>
#include <QTimer>
#include <QWindow>

#include <cstdio>

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x38, 0x3d), QColor(0x2d, 0x30, 0x34));
    palette.setColor(QPalette::Base, QColor(0x22, 0x24, 0x28));
    palette.setColor(QPalette::AlternateBase, QColor(0x2a, 0x2d, 0x31));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x7d, 0xd1));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(0x9a, 0xa0, 0xa8));
    return palette;
}

/// The look that the options ask for, set before any window is made.
void dress(const Options& options)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (options.isDark) {
        QApplication::setPalette(darkPalette());
    }
    if (options.fontSize > 0) {
        QFont font = QApplication::font();
        font.setPointSize(options.fontSize);
        QApplication::setFont(font);
    }
}

enum ExitStatus { Good = 0, StepFailed = 1, BadInput = 2 };

void complain(const QString& text)
{
    fprintf(stderr, "%s\n", qUtf8Printable(text));
}

QString ours(const QString& text)
{
    return QStringLiteral("workbench: ") + text;
}

/// What the command line names, read and opened.
struct Inputs {
    Options options;
    Session session;
    MessageTrace trace;
};

/// Reads everything that may be wrong before a window is made; empty when all is well.
QString readInputs(int argc, char* argv[], Inputs* inputs)
{
    QString error;
    inputs->options = Options::ofProgram(argc, argv, &error);
    const Options& options = inputs->options;
    if (!error.isEmpty()) {
        return ours(error);
    }
    if (!CanvasHost::loadJobs(options.jobFile, &error)) {
        return error;
    }
    if (!options.sessionFile.isEmpty() &&
        !SessionParser::readFile(options.sessionFile, &inputs->session, &error)) {
        return inputs->session.file.isEmpty() ? ours(error) : error;
    }
    if (!options.recordFile.isEmpty() && QFileInfo::exists(options.recordFile) &&
        QFileInfo(options.recordFile) == QFileInfo(options.sessionFile)) {
        return ours(QStringLiteral("%1: a session is not recorded over the one that is played")
                        .arg(options.recordFile));
    }
    if (!options.traceFile.isEmpty() && !inputs->trace.open(options.traceFile)) {
        return ours(QStringLiteral("%1: %2").arg(options.traceFile, inputs->trace.errorText()));
    }
    return {};
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

/// Has the canvas open or export a file; what went wrong, empty when nothing did. The canvas is a
/// module, known by its name and methods alone.
QString askCanvas(QWidget* window, const char* method, const QString& file)
{
    auto* const canvas = window->findChild<QWidget*>(QStringLiteral("m_pViewer"));
    QString error;
    const bool isKnown =
        canvas && QMetaObject::invokeMethod(canvas, method, Q_RETURN_ARG(QString, error),
                                            Q_ARG(QString, file));
    return isKnown ? error : QStringLiteral("%1: the canvas knows no %2").arg(file, method);
}

void end(const Options& options, QWidget* window)
{
    int status = Good;
    if (!options.exportFile.isEmpty()) {
        const QString error = askCanvas(window, "exportBoard", options.exportFile);
        if (!error.isEmpty()) {
            complain(error);
            status = BadInput;
        }
    }
    if (!options.screenshotFile.isEmpty() && !pictureOf(window).save(options.screenshotFile)) {
        complain(
            ours(QStringLiteral("%1: the picture cannot be written").arg(options.screenshotFile)));
        status = BadInput;
    }
    if (options.exit || status != Good) {
        QCoreApplication::exit(status);
    }
}

}  // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    Inputs inputs;
    QString error = readInputs(argc, argv, &inputs);
    if (!error.isEmpty()) {
        complain(error);
        return BadInput;
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("workbench"));
    dress(inputs.options);
    MessageLog log;
    QObject::connect(&log, &MessageLog::appended, &application,
                     [&](const MessageRecord& message) { inputs.trace.append(message); });
    WorkbenchWindow window(inputs.options, &log);
    if (!window.start(&error)) {
        complain(ours(error));
        return BadInput;
    }
    if (!inputs.options.boardFile.isEmpty()) {
        error = askCanvas(&window, "openBoard", inputs.options.boardFile);
        if (!error.isEmpty()) {
            complain(error);
            return BadInput;
        }
    }
    SessionRecorder recorder(&window);
    const QString record = inputs.options.recordFile;
    if (!record.isEmpty() && !recorder.start(record, &error)) {
        complain(ours(QStringLiteral("%1: %2").arg(record, error)));
        return BadInput;
    }
    SessionPlayer player(inputs.session, window.host(), &window, &log);
    QObject::connect(&player, &SessionPlayer::noted, &application, complain);
    QObject::connect(&player, &SessionPlayer::failed, &application, [](const QString& text) {
        complain(text);
        QCoreApplication::exit(StepFailed);
    });
    QObject::connect(&player, &SessionPlayer::finished, &window,
                     [&] { end(inputs.options, &window); });
    window.show();
    whenPainted(&window, [&] { player.start(); });
    return QApplication::exec();
}
