#include "viewer/FileActions.h"

#include "board/BoardFile.h"
#include "shared/ErrorBox.h"
#include "shared/FileQuestion.h"
#include "shared/Named.h"
#include "shared/Settings.h"
#include "viewer/FileNames.h"
#include "viewer/RecoveryOffer.h"
#include "viewer/UnknownTexts.h"
#include "viewer/UnsavedBox.h"

#include <CamApiStandIn.h>
#include <FileError.h>

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

#include <algorithm>

FileActions::FileActions(CanvasController& canvas, QWidget* pane)
    : QObject(pane), m_canvas(canvas), m_pane(pane)
{
    m_new = add("m_pNewBoardAct", QKeySequence::New, [this] { startNew(); });
    m_open = add("m_pOpenBoardAct", QKeySequence::Open, [this] { chooseAndOpen(); });
    m_save = add("m_pSaveBoardAct", QKeySequence::Save, [this] { save(shown()); });
    m_saveAs =
        add("m_pSaveBoardAsAct", QStringLiteral("Ctrl+Shift+S"), [this] { saveAs(shown()); });
    m_export = add("m_pExportBoardAct", QStringLiteral("Ctrl+E"), [this] { chooseAndExport(); });
    watch();
    connect(&canvas, &CanvasController::documentOpened, this, &FileActions::watch);
    retranslate();
}

QAction* FileActions::add(const char* name, const QKeySequence& shortcut,
                          const std::function<void()>& work)
{
    auto* const action = named(new QAction(this), name);
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, work);
    return action;
}

void FileActions::retranslate()
{
    m_new->setText(tr("&New"));
    m_open->setText(tr("&Open..."));
    m_save->setText(tr("&Save"));
    m_saveAs->setText(tr("Save &As..."));
    m_export->setText(tr("&Export..."));
    m_open->setIconText(tr("Open"));
    m_save->setIconText(tr("Save"));
    m_export->setIconText(tr("Export"));
    m_open->setToolTip(tr("Open a board file"));
    m_save->setToolTip(tr("Save the board as a file"));
    m_export->setToolTip(tr("Export the board as Gerber or as a picture"));
}

void FileActions::watch()
{
    Document* const document = &m_canvas.document();
    const auto isIt = [document](const OpenStep& step) { return step.document == document; };
    if (std::none_of(m_steps.begin(), m_steps.end(), isIt)) {
        m_steps.push_back({document, CanvasHost::jobFile(), m_canvas.job(), m_canvas.step(), {}});
        const QUndoStack& history = document->history();
        connect(&history, &QUndoStack::indexChanged, this, &FileActions::changed);
        connect(&history, &QUndoStack::cleanChanged, this, &FileActions::changed);
    }
    Q_EMIT changed();
}

OpenStep& FileActions::shown()
{
    return *std::find_if(m_steps.begin(), m_steps.end(), [this](const OpenStep& step) {
        return step.document == &m_canvas.document();
    });
}

const OpenStep& FileActions::shown() const
{
    return const_cast<FileActions*>(this)->shown();
}

bool FileActions::isModified() const
{
    return m_canvas.document().isModified();
}

void FileActions::setChanged(const std::function<void()>& changed)
{
    connect(this, &FileActions::changed, this, changed);
}

QStringList FileActions::recent() const
{
    return FileNames::recent();
}

QString FileActions::file() const
{
    return shown().file;
}

void FileActions::openAtOnce(const QString& file)
{
    const Pcb::Board board = Pcb::readBoardFile(file);
    show(board, file);
    sayOpened(file, UnknownTexts::drawn(board));
}

void FileActions::show(const Pcb::Board& board, const QString& file)
{
    shown().document->replace(board);
    setFile(shown(), file);
    FileNames::remember(file);
    Q_EMIT opened();
}

void FileActions::sayOpened(const QString& file, const QString& unknown)
{
    m_canvas.say((unknown + QLatin1Char(' ') + tr("Opened %1.").arg(file)).trimmed());
}

QString FileActions::exportTo(const QString& file)
{
    const Pcb::Board board = m_canvas.document().board();
    Pcb::exportBoard(board, file);
    return UnknownTexts::leftOut(board);
}

bool FileActions::open(const QString& file)
{
    return mayReplace(shown()) && tryToOpen(file);
}

bool FileActions::tryToOpen(const QString& file)
{
    Pcb::Board board;
    const bool isRead =
        attempt(tr("Cannot open the board"), tr("Opening %1...").arg(QFileInfo(file).fileName()),
                [&](const Pcb::Progress& progress) { board = Pcb::readBoardFile(file, progress); });
    if (isRead) {
        show(board, file);
        const QString unknown = UnknownTexts::drawn(board);
        tell(unknown);
        sayOpened(file, unknown);
    }
    return isRead;
}

void FileActions::startNew()
{
    if (mayReplace(shown())) {
        Pcb::Board empty = shown().document->board();
        empty.features.clear();
        shown().document->replace(empty);
        setFile(shown(), {});
        Q_EMIT opened();
    }
}

void FileActions::chooseAndOpen()
{
    // Before the file is chosen, so that the choice is not in vain.
    if (mayReplace(shown())) {
        const QString chosen = FileNames::ask(FileNames::Purpose::Open, file(), {}, m_pane);
        if (!chosen.isEmpty()) {
            tryToOpen(chosen);
        }
    }
}

void FileActions::chooseAndExport()
{
    QString name = QFileInfo(offeredName(shown())).completeBaseName();
    if (name.contains(QLatin1Char('.'))) {
        name += QStringLiteral(".gbr");  // the dialog completes names without a dot only
    }
    const QString chosen = FileNames::ask(FileNames::Purpose::Export, file(), name, m_pane);
    if (chosen.isEmpty()) {
        return;
    }
    const Pcb::Board board = shown().document->board();
    if (attempt(tr("Cannot export the board"),
                tr("Exporting %1...").arg(QFileInfo(chosen).fileName()),
                [&](const Pcb::Progress& progress) { exportBoard(board, chosen, progress); })) {
        LastFolder::remember(chosen);
        tell(UnknownTexts::leftOut(board));
        m_canvas.say(tr("Wrote %1.").arg(chosen));
    }
}

void FileActions::tell(const QString& words)
{
    if (!words.isEmpty() && m_mayAsk()) {
        QMessageBox box(QMessageBox::Warning, tr("Unknown Shapes"), words, QMessageBox::Ok,
                        m_pane->window());
        box.setObjectName(QStringLiteral("m_pUnknownBox"));
        box.setTextFormat(Qt::PlainText);
        box.exec();
    }
}

bool FileActions::mayClose()
{
    std::vector<OpenStep*> changed;
    for (OpenStep& step : m_steps) {
        if (step.document->isModified()) {
            changed.push_back(&step);
        }
    }
    return changed.size() > 1 ? mayCloseAll(changed)
                              : changed.empty() || mayReplace(*changed.front());
}

void FileActions::closeAll()
{
    m_steps.clear();
    if (m_recovery) {
        m_recovery->forgetAll();
    }
    m_canvas.closeAll();
}

bool FileActions::mayReplace(OpenStep& step)
{
    if (!step.document->isModified() || !m_mayAsk()) {
        return true;
    }
    const int answer = UnsavedBox::ask(step, m_pane->window());
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save(step));
}

bool FileActions::mayCloseAll(const std::vector<OpenStep*>& changed)
{
    if (!m_mayAsk()) {
        return true;
    }
    const int answer = UnsavedBox::ask(changed, m_pane->window());
    return answer == QMessageBox::Discard ||
           (answer == QMessageBox::SaveAll &&
            std::all_of(changed.begin(), changed.end(),
                        [this](OpenStep* step) { return save(*step); }));
}

bool FileActions::save(OpenStep& step)
{
    return step.file.isEmpty() ? saveAs(step) : write(step, step.file);
}

bool FileActions::saveAs(OpenStep& step)
{
    const QString file =
        FileNames::ask(FileNames::Purpose::Save, step.file, offeredName(step), m_pane);
    return !file.isEmpty() && write(step, file);
}

bool FileActions::write(OpenStep& step, const QString& file)
{
    const Pcb::Board board = step.document->board();
    if (!attempt(tr("Cannot save the board"), tr("Saving %1...").arg(QFileInfo(file).fileName()),
                 [&](const Pcb::Progress& progress) { writeBoardFile(board, file, progress); })) {
        return false;
    }
    step.document->setSaved();
    setFile(step, file);
    FileNames::remember(file);
    m_canvas.say(tr("Wrote %1.").arg(file));
    return true;
}

void FileActions::setFile(OpenStep& step, const QString& file)
{
    step.file = file;
    Q_EMIT changed();
}

QString FileActions::offeredName(const OpenStep& step)
{
    if (!step.file.isEmpty()) {
        return QFileInfo(step.file).fileName();
    }
    const Pcb::Board& board = step.document->board();
    return board.job.isEmpty() ? QStringLiteral("board.json")
                               : QStringLiteral("%1-%2.json").arg(board.job, board.step);
}

bool FileActions::attempt(const QString& failure, const QString& text, const LongWork::Work& work)
{
    try {
        const bool isDone = LongWork::run(m_pane->window(), text, work);
        if (!isDone) {
            m_canvas.say(tr("Cancelled."));
        }
        return isDone;
    } catch (const CanvasHost::FileError& error) {
        showError(m_pane, failure, error);
        return false;
    }
}

void FileActions::keepForRecovery()
{
    if (Settings::file().isEmpty()) {
        return;
    }
    auto abandoned = RecoveryFolder::abandoned();
    m_recovery = std::make_unique<Recovery>(m_steps);
    connect(this, &FileActions::changed, m_recovery.get(), &Recovery::update);
    connect(m_recovery.get(), &Recovery::succeeded, this, &FileActions::changesKept);
    connect(m_recovery.get(), &Recovery::failed, this, &FileActions::changesNotKept);
    if (!abandoned.empty()) {
        const RecoveryOffer::Places places{
            [this](const KeptStep& kept) { return showStepOf(kept); },
            [this](const KeptStep& kept) { return recoverHere(kept); },
            [this] { return OpenStep::nameOf(m_canvas.job(), m_canvas.step()); }};
        auto* const offer = new RecoveryOffer(std::move(abandoned), places, m_pane);
        connect(offer, &RecoveryOffer::answered, this,
                [this](const QString& text) { m_canvas.say(text); });
    }
}

/// Shows it if it is there; otherwise returns why it is not.
QString FileActions::showStepOf(const KeptStep& kept)
{
    const QString name = QDir::toNativeSeparators(kept.jobFile);
    if (kept.jobFile != CanvasHost::jobFile()) {
        if (!QFileInfo(kept.jobFile).isFile()) {
            return tr("the job file %1 is not there").arg(name);
        }
        const auto isChanged = [](const OpenStep& step) { return step.document->isModified(); };
        if (std::any_of(m_steps.begin(), m_steps.end(), isChanged)) {
            return tr("the job file %1 cannot be opened while boards are changed").arg(name);
        }
        if (!m_openJob(kept.jobFile)) {
            return tr("the job file %1 could not be opened").arg(name);
        }
    }
    const auto isShown = [&] { return m_canvas.job() == kept.job && m_canvas.step() == kept.step; };
    const CanvasHost::Job* const job = CanvasHost::findJob(kept.job.toStdString());
    if (!isShown() && job &&
        std::count(job->steps.begin(), job->steps.end(), kept.step.toStdString()) > 0) {
        Q_EMIT stepWanted(kept.job, kept.step);
    }
    return isShown() ? QString() : tr("the job file %1 has no such step").arg(name);
}

/// Takes it over into the step that is shown; returns why not.
QString FileActions::recoverHere(const KeptStep& kept)
{
    if (isModified()) {
        return tr("%1 has been changed").arg(OpenStep::nameOf(m_canvas.job(), m_canvas.step()));
    }
    Pcb::Board board;
    if (!attempt(tr("Cannot recover the changes"), tr("Recovering changes..."),
                 [&](const Pcb::Progress& progress) {
                     board = RecoveryFolder::read(kept.path, progress);
                 })) {
        return tr("it has not been read");
    }
    OpenStep& step = shown();
    step.document->replaceUnsaved(board);
    setFile(step, kept.boardFile);
    m_recovery->takeOver(kept, static_cast<size_t>(&step - m_steps.data()));
    Q_EMIT opened();
    tell(UnknownTexts::drawn(board));
    return {};
}
