// The files that the window opens and writes: a board goes to the canvas, a job is the window's
// own.

#include "messages/HostState.h"
#include "messages/WindowPicture.h"
#include "session/SessionRecorder.h"
#include "shared/CanvasControl.h"
#include "shared/ErrorBox.h"
#include "shared/FileQuestion.h"
#include "window/WorkbenchWindow.h"

#include <CamApiStandIn.h>
#include <FileKind.h>
#include <Files.h>

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QPixmap>
#include <QSignalBlocker>

using CanvasHost::FileError;

namespace {

QString droppedFile(const QMimeData* data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}

bool isJob(const QString& file)
{
    try {
        return CanvasHost::kindOf(CanvasHost::readWhole(file)) == CanvasHost::FileKind::Job;
    } catch (const FileError&) {
        return false;  // who opens it tells what is wrong
    }
}

}  // namespace

void WorkbenchWindow::chooseAndOpenJob()
{
    const FileQuestion question{FileQuestion::For::Opening,
                                tr("Open Job"),
                                {tr("Jobs (*.json)")},
                                {},
                                canvas()->files().file()};
    const QString file = question.ask(this);
    if (!file.isEmpty()) {
        openJob(file);
    }
}

bool WorkbenchWindow::openJob(const QString& file)
{
    if (!canvas()->files().mayClose()) {
        return false;
    }
    try {
        CanvasHost::loadJobs(file);
        LastFolder::remember(file);
        canvas()->files().closeAll();
        m_jobTree->fill(m_options.moduleDirectory);
    } catch (const FileError& error) {
        showError(this, tr("Cannot open the job"), error);
        return false;
    }
    listJobs();
    m_host->closeJob();
    openFirstJob();
    return true;
}

void WorkbenchWindow::openFirstJob()
{
    const CanvasHost::Job* const job = CanvasHost::currentJob();
    if (job) {
        m_host->openStep(QString::fromStdString(job->name));
    } else {
        showStep({}, {});
    }
}

void WorkbenchWindow::listJobs()
{
    const QSignalBlocker quiet(m_pHostJobCMB);
    m_pHostJobCMB->clear();
    for (const CanvasHost::Job& job : CanvasHost::jobs()) {
        m_pHostJobCMB->addItem(QString::fromStdString(job.name));
    }
}

void WorkbenchWindow::openFile(const QString& file)
{
    if (isJob(file)) {
        openJob(file);
    } else {
        canvas()->files().open(file);
    }
}

void WorkbenchWindow::listRecentFiles()
{
    m_recentMenu->clear();
    const QStringList files = canvas()->files().recent();
    for (const QString& file : files) {
        QAction* const action = m_recentMenu->addAction(
            QDir::toNativeSeparators(file).replace(QLatin1Char('&'), QStringLiteral("&&")));
        connect(action, &QAction::triggered, this, [this, file] { canvas()->files().open(file); });
    }
    m_recentMenu->setEnabled(!files.isEmpty());
}

void WorkbenchWindow::savePicture()
{
    // As the window is now, without the dialog.
    const QPixmap picture = pictureOf(this);
    const FileQuestion question{FileQuestion::For::Saving,
                                tr("Save Picture"),
                                {tr("Pictures (*.png)")},
                                QStringLiteral("workbench.png"),
                                canvas()->files().file()};
    const QString file = question.ask(this);
    if (file.isEmpty()) {
        return;
    }
    try {
        ::savePicture(picture, file);
        LastFolder::remember(file);
    } catch (const FileError& error) {
        showError(this, tr("Cannot save the picture"), error);
    }
}

void WorkbenchWindow::record(const QString& file)
{
    // A session starts as the program does without options, which is perhaps not how it is now.
    const CanvasHost::LengthUnit& unit =
        CanvasHost::lengthUnits().at(size_t(m_pHostUnitCMB->currentIndex()));
    const LanguageChoice& language =
        languageChoices().at(size_t(m_pHostLanguageCMB->currentIndex()));
    m_recorder->start(file, QStringLiteral("It begins with --unit %1 --language %2, in %3 / %4.")
                                .arg(QLatin1String(unit.name), QLatin1String(language.code),
                                     m_host->job(), m_host->step()));
    showRecording();
}

void WorkbenchWindow::startOrStopRecording()
{
    if (m_recorder->isRecording()) {
        // The step that stops it would start another one.
        m_recorder->stop(
            {QStringLiteral("menu"), m_fileMenu->objectName(), m_record->objectName()});
        showRecording();
        return;
    }
    const FileQuestion question{FileQuestion::For::Saving,
                                tr("Record Session"),
                                {tr("Sessions (*.session)")},
                                QStringLiteral("recorded.session"),
                                canvas()->files().file()};
    const QString file = question.ask(this);
    if (file.isEmpty()) {
        return;
    }
    try {
        record(file);
        LastFolder::remember(file);
    } catch (const FileError& error) {
        showError(this, tr("Cannot record the session"), error);
    }
}

void WorkbenchWindow::showRecording()
{
    m_record->setText(m_recorder->isRecording() ? tr("Stop Re&cording") : tr("Re&cord Session..."));
}

void WorkbenchWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!droppedFile(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void WorkbenchWindow::dropEvent(QDropEvent* event)
{
    // A program that was told of a move may remove the file.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The program that it comes from waits for the drop to end, but not for the user's answers.
    QMetaObject::invokeMethod(
        this, [this, file = droppedFile(event->mimeData())] { openFile(file); },
        Qt::QueuedConnection);
}
