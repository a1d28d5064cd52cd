#include "viewer/RecoveryFolder.h"

#include "board/BoardFile.h"
#include "shared/Settings.h"

#include <Files.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

constexpr int mostPrograms = 100;
const QString suffix = QStringLiteral(".kept");

QString placeOfAll()
{
    return Settings::beside(QStringLiteral(".recovery"));
}

bool isLater(const KeptStep& a, const KeptStep& b)
{
    return a.time > b.time;
}

}  // namespace

RecoveryFolder::RecoveryFolder(int number)
    : m_folder(QStringLiteral("%1/%2").arg(placeOfAll()).arg(number)),
      m_lock(m_folder + QStringLiteral(".lock"))
{
    // Only the end of the program that made it makes a lock stale.
    m_lock.setStaleLockTime(0);
}

std::unique_ptr<RecoveryFolder> RecoveryFolder::create()
{
    QDir().mkpath(placeOfAll());
    for (int number = 0; number < mostPrograms; ++number) {
        std::unique_ptr<RecoveryFolder> folder(new RecoveryFolder(number));
        if (folder->m_lock.tryLock()) {
            if (folder->steps().empty()) {
                QDir(folder->m_folder).removeRecursively();
                return folder;
            }
        } else if (folder->m_lock.error() != QLockFile::LockFailedError) {
            break;
        }
    }
    throw CanvasHost::FileError{
        placeOfAll(), 0, QCoreApplication::translate("FileErrors", "no file can be written there")};
}

std::vector<std::unique_ptr<RecoveryFolder>> RecoveryFolder::abandoned()
{
    std::vector<std::unique_ptr<RecoveryFolder>> found;
    const QDir place(placeOfAll());
    for (int number = 0; number < mostPrograms; ++number) {
        if (placeOfAll().isEmpty() || !place.exists(QString::number(number))) {
            continue;
        }
        std::unique_ptr<RecoveryFolder> folder(new RecoveryFolder(number));
        if (folder->m_lock.tryLock() && !folder->steps().empty()) {
            found.push_back(std::move(folder));
        }
    }
    std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) {
        return isLater(a->steps().front(), b->steps().front());
    });
    return found;
}

QString RecoveryFolder::path(int number) const
{
    return QStringLiteral("%1/%2%3").arg(m_folder).arg(number).arg(suffix);
}

std::vector<KeptStep> RecoveryFolder::steps() const
{
    std::vector<KeptStep> steps;
    for (const QFileInfo& info :
         QDir(m_folder).entryInfoList({QLatin1Char('*') + suffix}, QDir::Files)) {
        QFile file(info.filePath());
        if (file.open(QIODevice::ReadOnly)) {
            const QJsonObject about = QJsonDocument::fromJson(file.readLine()).object();
            steps.push_back(
                {about[QStringLiteral("jobFile")].toString(),
                 about[QStringLiteral("job")].toString(), about[QStringLiteral("step")].toString(),
                 about[QStringLiteral("file")].toString(), info.filePath(), info.lastModified()});
        }
    }
    std::sort(steps.begin(), steps.end(), isLater);
    return steps;
}

void RecoveryFolder::remove()
{
    QDir(m_folder).removeRecursively();
    m_lock.unlock();
    // Succeeds for the last one only.
    QDir().rmdir(placeOfAll());
}

QByteArray RecoveryFolder::text(const KeptStep& step, const QByteArray& board)
{
    const QJsonObject about{{QStringLiteral("jobFile"), step.jobFile},
                            {QStringLiteral("job"), step.job},
                            {QStringLiteral("step"), step.step},
                            {QStringLiteral("file"), step.boardFile}};
    return QJsonDocument(about).toJson(QJsonDocument::Compact) + '\n' + board;
}

Pcb::Board RecoveryFolder::read(const QString& path, const Pcb::Progress& progress)
{
    const QByteArray text = CanvasHost::readWhole(path);
    return Pcb::fromJson(text.mid(text.indexOf('\n') + 1), path, progress);
}
