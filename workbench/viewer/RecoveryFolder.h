#pragma once

#include "board/Board.h"
#include "board/Progress.h"

#include <QDateTime>
#include <QLockFile>
#include <QString>

#include <memory>
#include <vector>

/// The board of a step as it was when it was kept last.
struct KeptStep {
    QString jobFile;
    QString job;
    QString step;
    QString boardFile;  ///< empty: it was in no file yet
    QString path;       ///< where it is kept
    QDateTime time;
};

/// Where a program keeps its changed steps: a folder beside the settings, which is its own by a
/// lock as long as it runs. What a program that has crashed leaves is taken by the next one.
class RecoveryFolder {
public:
    /// A new one; throws a FileError where there can be none.
    static std::unique_ptr<RecoveryFolder> create();
    /// Those of programs that have crashed, the latest first.
    static std::vector<std::unique_ptr<RecoveryFolder>> abandoned();

    /// Where the `number`th step is kept.
    QString path(int number) const;
    /// The latest first. A file that is none is left out.
    std::vector<KeptStep> steps() const;
    /// Removes the folder with all that is in it.
    void remove();

    /// What is written for a step: a line about it, then `board`, its board file.
    static QByteArray text(const KeptStep& step, const QByteArray& board);
    /// Throws a FileError.
    static Pcb::Board read(const QString& path, const Pcb::Progress& progress);

private:
    explicit RecoveryFolder(int number);

    QString m_folder;
    QLockFile m_lock;
};
