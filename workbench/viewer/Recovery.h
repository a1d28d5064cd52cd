#pragma once

#include "viewer/RecoveryFolder.h"

#include <QObject>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <memory>
#include <vector>

class Document;
class RecoveryWriter;

/// A step that the user works on.
struct OpenStep {
    Document* document;
    QString job;
    QString step;
    QString file;  ///< empty: it was never saved
};

/// Keeps changed steps in files, so that a crash loses no more than the last moment. They are
/// written on a thread of their own, each only when what it is about has changed, and removed when
/// it is saved. In the end all of them are removed.
class Recovery : public QObject {
    Q_OBJECT

public:
    /// `steps` may grow; they must outlive this.
    explicit Recovery(const std::vector<OpenStep>& steps);
    ~Recovery() override;

    /// One of the steps has changed, or has been saved.
    void update();
    /// The steps have been closed: none of them is kept.
    void forgetAll();
    /// The kept step has become the `index`th of the steps: its file is taken over.
    void takeOver(const KeptStep& kept, size_t index);

Q_SIGNALS:
    /// Changes cannot be kept; empty: now they can.
    void troubled(const QString& reason);

private:
    bool hasFolder();
    void removeKept(size_t index);
    void write();
    /// Where it has failed for a `reason`, it is tried again: `before` is what was kept before.
    void finish(const QString& reason, const std::vector<int>& before);

    const std::vector<OpenStep>& m_steps;
    std::unique_ptr<RecoveryFolder> m_folder;
    std::vector<int> m_kept;  ///< of each step, the revision that is in its file; -1: none
    std::atomic<bool> m_ends{false};
    bool m_isWriting = false;
    QTimer m_timer;
    QThread m_thread;
    RecoveryWriter* m_writer;
};
