#pragma once

#include "viewer/OpenStep.h"
#include "viewer/RecoveryFolder.h"

#include <QObject>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <memory>
#include <vector>

class RecoveryWriter;

/// Keeps changed steps in files, so that a crash loses no more than the last moment. They are
/// written on a thread of their own, each only when what it is about has changed, and removed when
/// it is saved. What could not be written is tried again. In the end all of them are removed.
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
    /// All changes are kept.
    void succeeded();
    /// Changes cannot be kept.
    void failed(const QString& reason);

private:
    /// A step that is to be written.
    struct Change {
        size_t index;
        int revision;
        KeptStep step;
        Pcb::Board board;
    };

    bool hasFolder();
    void removeKept(size_t index);
    std::vector<Change> changes();
    void write();
    void finish(const std::vector<Change>& failures, const QString& reason);

    const std::vector<OpenStep>& m_steps;
    std::unique_ptr<RecoveryFolder> m_folder;
    std::vector<int> m_kept;  ///< of each step, the revision that is in its file, or see below
    std::atomic<bool> m_ends{false};
    bool m_isWriting = false;
    QTimer m_timer;
    QThread m_thread;
    RecoveryWriter* m_writer;
};
