#include "viewer/FileNames.h"

#include "shared/FileQuestion.h"
#include "shared/Settings.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

constexpr int mostRecent = 8;
const QString recentKey = QStringLiteral("files/recent");

struct FileWords {
    Q_DECLARE_TR_FUNCTIONS(FileNames)
};

QString titleOf(FileNames::Purpose purpose)
{
    switch (purpose) {
        case FileNames::Purpose::Open:
            return FileWords::tr("Open Board");
        case FileNames::Purpose::Save:
            return FileWords::tr("Save Board");
        case FileNames::Purpose::Export:
            break;
    }
    return FileWords::tr("Export Board");
}

QStringList kindsOf(FileNames::Purpose purpose)
{
    if (purpose == FileNames::Purpose::Export) {
        return {FileWords::tr("Gerber (*.gbr)"), FileWords::tr("Picture (*.png)"),
                FileWords::tr("Drawing (*.svg)")};
    }
    return {FileWords::tr("Board (*.json)")};
}

}  // namespace

QString FileNames::ask(Purpose purpose, const QString& shown, const QString& offered,
                       QWidget* parent)
{
    const FileQuestion question{
        purpose == Purpose::Open ? FileQuestion::For::Opening : FileQuestion::For::Saving,
        titleOf(purpose), kindsOf(purpose), offered,
        shown.isEmpty() ? QString() : QFileInfo(shown).absolutePath()};
    return question.ask(parent);
}

void FileNames::remember(const QString& file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    QStringList files = recent();
    files.removeAll(path);
    files.prepend(path);
    Settings::set(recentKey, QStringList(files.mid(0, mostRecent)));
    LastFolder::remember(path);
}

QStringList FileNames::recent()
{
    return Settings::value(recentKey).toStringList();
}
