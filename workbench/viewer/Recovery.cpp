#include "viewer/Recovery.h"

#include "board/BoardText.h"
#include "viewer/Document.h"

#include <Files.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <map>
#include <utility>

namespace {

constexpr int delay = 250;   // milliseconds, in which further changes are waited for
constexpr int pause = 1000;  // after a failure

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
            CanvasHost::writeWhole(
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
    m_kept.resize(m_steps.size(), -1);
    for (size_t index = 0; index < m_steps.size(); ++index) {
        const Document& document = *m_steps[index].document;
        if (!document.isModified() && m_kept[index] >= 0) {
            removeKept(index);
        } else if (document.isModified() && m_kept[index] != document.revision() && !m_isWriting &&
                   !m_timer.isActive()) {
            m_timer.start(delay);
        }
    }
}

void Recovery::removeKept(size_t index)
{
    m_kept[index] = -1;
    QMetaObject::invokeMethod(m_writer,
                              [writer = m_writer, path = m_folder->path(static_cast<int>(index))] {
                                  writer->remove(path);
                              });
}

void Recovery::forgetAll()
{
    for (size_t index = 0; index < m_kept.size(); ++index) {
        if (m_kept[index] >= 0) {
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
        Q_EMIT troubled(error.text());
    }
    return m_folder != nullptr;
}

void Recovery::write()
{
    if (!hasFolder()) {
        return;
    }
    // Features are shared: copies of a board cost little.
    std::vector<std::pair<KeptStep, Pcb::Board>> changed;
    const std::vector<int> before = m_kept;
    for (size_t index = 0; index < m_steps.size(); ++index) {
        const OpenStep& step = m_steps[index];
        if (step.document->isModified() && m_kept[index] != step.document->revision()) {
            m_kept[index] = step.document->revision();
            changed.emplace_back(
                KeptStep{
                    step.job, step.step, step.file, m_folder->path(static_cast<int>(index)), {}},
                step.document->board());
        }
    }
    m_isWriting = true;
    QMetaObject::invokeMethod(m_writer, [this, before, changed = std::move(changed)] {
        QString reason;
        for (const auto& [step, board] : changed) {
            const QString failure = m_writer->write(step, board);
            reason = failure.isEmpty() ? reason : failure;
        }
        QMetaObject::invokeMethod(this, [=] { finish(reason, before); });
    });
}

void Recovery::finish(const QString& reason, const std::vector<int>& before)
{
    m_isWriting = false;
    Q_EMIT troubled(reason);
    if (!reason.isEmpty()) {
        // On Windows it is enough that another program reads the file at this moment.
        for (size_t index = 0; index < std::min(m_kept.size(), before.size()); ++index) {
            m_kept[index] = std::min(m_kept[index], before[index]);
        }
        m_timer.start(pause);
    }
    update();
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
