#include "viewer/Recovery.h"

#include "board/BoardText.h"
#include "viewer/Document.h"

#include <Files.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <map>

namespace {

// Milliseconds: in which further changes are waited for, and until a failure is tried again.
constexpr int delay = 250;
constexpr int retryDelay = 1000;

// Instead of a revision: there is no file, or perhaps one of another revision.
constexpr int none = -1;
constexpr int outdated = -2;

}  // namespace

/// Writes and removes the files, on its thread.
class RecoveryWriter : public QObject {
public:
    explicit RecoveryWriter(const std::atomic<bool>& ends)
        : m_progress([&ends](double) {
              if (ends) {
                  throw Pcb::Cancelled();
              }
          })
    {
    }

    /// The reason of a failure, or nothing.
    QString write(const KeptStep& step, const Pcb::Board& board)
    {
        try {
            QDir().mkpath(QFileInfo(step.path).path());
            CanvasHost::writeUnsynced(
                step.path, RecoveryFolder::text(step, m_texts[step.path].of(board, m_progress)));
        } catch (const CanvasHost::FileError& error) {
            return error.text();
        } catch (const Pcb::Cancelled&) {
        }
        return {};
    }
    void remove(const QString& path)
    {
        m_texts.erase(path);
        QFile::remove(path);
    }

private:
    Pcb::Progress m_progress;
    std::map<QString, Pcb::BoardText> m_texts;
};

Recovery::Recovery(const std::vector<OpenStep>& steps)
    : m_steps(steps), m_writer(new RecoveryWriter(m_ends))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Recovery::write);
    m_writer->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_writer, &QObject::deleteLater);
    m_thread.start();
    // Its lock waits for the disk, for which editing is not to wait.
    try {
        m_folder = RecoveryFolder::create();
    } catch (const CanvasHost::FileError&) {
        // Tried again, and told, once there is something to keep.
    }
    update();
}

Recovery::~Recovery()
{
    m_ends = true;
    m_thread.quit();
    m_thread.wait();
    if (m_folder) {
        m_folder->remove();
    }
}

void Recovery::update()
{
    m_kept.resize(m_steps.size(), none);
    const bool isDue = m_isWriting || (m_timer.isActive() && m_timer.remainingTime() <= delay);
    for (size_t index = 0; index < m_steps.size(); ++index) {
        const Document& document = *m_steps[index].document;
        if (!document.isModified() && m_kept[index] != none) {
            removeKept(index);
        } else if (document.isModified() && m_kept[index] != document.revision() && !isDue) {
            m_timer.start(delay);
        }
    }
}

void Recovery::removeKept(size_t index)
{
    m_kept[index] = none;
    QMetaObject::invokeMethod(m_writer,
                              [writer = m_writer, path = m_folder->path(static_cast<int>(index))] {
                                  writer->remove(path);
                              });
}

void Recovery::forgetAll()
{
    for (size_t index = 0; index < m_kept.size(); ++index) {
        if (m_kept[index] != none) {
            removeKept(index);
        }
    }
    m_kept.clear();
}

bool Recovery::hasFolder()
{
    try {
        if (!m_folder) {
            m_folder = RecoveryFolder::create();
        }
    } catch (const CanvasHost::FileError& error) {
        Q_EMIT failed(error.text());
        m_timer.start(retryDelay);
    }
    return m_folder != nullptr;
}

std::vector<Recovery::Change> Recovery::changes()
{
    // Features are shared: copies of a board cost little.
    std::vector<Change> changed;
    for (size_t index = 0; index < m_steps.size(); ++index) {
        const OpenStep& step = m_steps[index];
        const int revision = step.document->revision();
        if (step.document->isModified() && m_kept[index] != revision) {
            m_kept[index] = revision;
            const QString path = m_folder->path(static_cast<int>(index));
            changed.push_back({index,
                               revision,
                               {step.jobFile, step.job, step.step, step.file, path, {}},
                               step.document->board()});
        }
    }
    return changed;
}

void Recovery::write()
{
    if (!hasFolder()) {
        return;
    }
    m_isWriting = true;
    QMetaObject::invokeMethod(m_writer, [this, changed = changes()] {
        QString reason;
        std::vector<Change> failures;
        for (const Change& change : changed) {
            const QString failure = m_writer->write(change.step, change.board);
            if (!failure.isEmpty()) {
                reason = failure;
                failures.push_back(change);
            }
        }
        QMetaObject::invokeMethod(this, [=] { finish(failures, reason); });
    });
}

void Recovery::finish(const std::vector<Change>& failures, const QString& reason)
{
    m_isWriting = false;
    for (const Change& change : failures) {
        // The steps may be others by now.
        if (change.index < m_kept.size() && m_kept[change.index] == change.revision) {
            m_kept[change.index] = outdated;
        }
    }
    update();
    if (failures.empty()) {
        Q_EMIT succeeded();
    } else {
        m_timer.start(retryDelay);
        Q_EMIT failed(reason);
    }
}

void Recovery::takeOver(const KeptStep& kept, size_t index)
{
    update();
    if (!hasFolder()) {
        return;
    }
    const QString path = m_folder->path(static_cast<int>(index));
    if (QDir().mkpath(QFileInfo(path).path()) && QFile::rename(kept.path, path)) {
        m_kept[index] = m_steps[index].document->revision();
    }
}
