#include "viewer/FileActions.h"

#include "board/BoardFile.h"
#include "shared/ErrorBox.h"
#include "shared/FileQuestion.h"
#include "shared/Named.h"
#include "viewer/FileNames.h"
#include "viewer/UnknownTexts.h"

#include <FileError.h>

#include <QAction>
#include <QFileInfo>
#include <QMessageBox>

#include <algorithm>

FileActions::FileActions(CanvasController& canvas, QWidget* pane)
    : QObject(pane), m_canvas(canvas), m_pane(pane)
{
    m_new = add("m_pNewBoardAct", QKeySequence::New, &FileActions::startNew);
    m_open = add("m_pOpenBoardAct", QKeySequence::Open, &FileActions::chooseAndOpen);
    m_save = add("m_pSaveBoardAct", QKeySequence::Save, &FileActions::saveShown);
    m_saveAs = add("m_pSaveBoardAsAct", QKeySequence(QStringLiteral("Ctrl+Shift+S")),
                   &FileActions::saveShownAs);
    m_export = add("m_pExportBoardAct", QKeySequence(QStringLiteral("Ctrl+E")),
                   &FileActions::chooseAndExport);
    watch();
    connect(&canvas, &CanvasController::documentOpened, this, &FileActions::watch);
    retranslate();
}

QAction* FileActions::add(const char* name, const QKeySequence& shortcut,
                          void (FileActions::*slot)())
{
    auto* const action = named(new QAction(this), name);
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, slot);
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
    if (std::find(m_documents.begin(), m_documents.end(), document) == m_documents.end()) {
        m_documents.push_back(document);
        const QUndoStack& history = document->history();
        connect(&history, &QUndoStack::indexChanged, this, &FileActions::changed);
        connect(&history, &QUndoStack::cleanChanged, this, &FileActions::changed);
    }
    Q_EMIT changed();
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
    const auto found = m_files.find(&m_canvas.document());
    return found == m_files.end() ? QString() : found->second;
}

void FileActions::openAtOnce(const QString& file)
{
    Document& document = m_canvas.document();
    document.replace(Pcb::readBoardFile(file));
    setFile(document, file);
    FileNames::remember(file);
    Q_EMIT opened();
    const QString unknown = UnknownTexts::drawn(Pcb::unknownsOf(document.board()));
    m_canvas.say((unknown + QLatin1Char(' ') + tr("Opened %1.").arg(file)).trimmed());
}

void FileActions::exportTo(const QString& file)
{
    Pcb::exportBoard(m_canvas.document().board(), file);
}

bool FileActions::open(const QString& file)
{
    return mayReplace(m_canvas.document()) && tryToOpen(file);
}

bool FileActions::tryToOpen(const QString& file)
{
    const bool opened = attempt(tr("Cannot open the board"), [&] { openAtOnce(file); });
    if (opened) {
        tell(UnknownTexts::drawn(Pcb::unknownsOf(m_canvas.document().board())));
    }
    return opened;
}

void FileActions::startNew()
{
    Document& document = m_canvas.document();
    if (mayReplace(document)) {
        Pcb::Board empty = document.board();
        empty.features.clear();
        document.replace(empty);
        setFile(document, {});
        Q_EMIT opened();
    }
}

void FileActions::chooseAndOpen()
{
    // Before the file is chosen, so that the choice is not in vain.
    if (mayReplace(m_canvas.document())) {
        const QString chosen = FileNames::ask(FileNames::Purpose::Open, file(), {}, m_pane);
        if (!chosen.isEmpty()) {
            tryToOpen(chosen);
        }
    }
}

void FileActions::saveShown()
{
    save(m_canvas.document());
}

void FileActions::saveShownAs()
{
    saveAs(m_canvas.document());
}

void FileActions::chooseAndExport()
{
    const Document& document = m_canvas.document();
    const QString name = QFileInfo(nameOf(document)).completeBaseName();
    const QString chosen = FileNames::ask(FileNames::Purpose::Export, file(), name, m_pane);
    if (!chosen.isEmpty() && attempt(tr("Cannot export the board"), [&] { exportTo(chosen); })) {
        LastFolder::remember(chosen);
        m_canvas.say(tr("Wrote %1.").arg(chosen));
        tell(UnknownTexts::leftOut(Pcb::unknownsOf(document.board())));
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
    return std::all_of(m_documents.begin(), m_documents.end(),
                       [this](Document* document) { return mayReplace(*document); });
}

void FileActions::closeAll()
{
    m_documents.clear();
    m_files.clear();
    m_canvas.closeAll();
}

bool FileActions::mayReplace(Document& document)
{
    if (!document.isModified() || !m_mayAsk()) {
        return true;
    }
    QMessageBox box(QMessageBox::Warning, tr("Unsaved Changes"),
                    tr("\"%1\" has been changed. Save the changes?").arg(nameOf(document)),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                    m_pane->window());
    box.setObjectName(QStringLiteral("m_pUnsavedBox"));
    box.setDefaultButton(QMessageBox::Save);
    const int answer = box.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save(document));
}

bool FileActions::save(Document& document)
{
    const auto known = m_files.find(&document);
    return known == m_files.end() || known->second.isEmpty() ? saveAs(document)
                                                             : write(document, known->second);
}

bool FileActions::saveAs(Document& document)
{
    const auto known = m_files.find(&document);
    const QString file =
        FileNames::ask(FileNames::Purpose::Save, known == m_files.end() ? QString() : known->second,
                       nameOf(document), m_pane);
    return !file.isEmpty() && write(document, file);
}

bool FileActions::write(Document& document, const QString& file)
{
    if (!attempt(tr("Cannot save the board"),
                 [&] { Pcb::writeBoardFile(document.board(), file); })) {
        return false;
    }
    document.setSaved();
    setFile(document, file);
    FileNames::remember(file);
    m_canvas.say(tr("Wrote %1.").arg(file));
    return true;
}

void FileActions::setFile(Document& document, const QString& file)
{
    m_files[&document] = file;
    Q_EMIT changed();
}

QString FileActions::nameOf(const Document& document) const
{
    const auto known = m_files.find(&document);
    if (known != m_files.end() && !known->second.isEmpty()) {
        return QFileInfo(known->second).fileName();
    }
    const Pcb::Board& board = document.board();
    return board.job.isEmpty() ? QStringLiteral("board.json")
                               : QStringLiteral("%1-%2.json").arg(board.job, board.step);
}

bool FileActions::attempt(const QString& failure, const std::function<void()>& work)
{
    try {
        work();
        return true;
    } catch (const CanvasHost::FileError& error) {
        showError(m_pane, failure, error);
        return false;
    }
}
