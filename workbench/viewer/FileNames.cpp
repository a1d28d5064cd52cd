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

}  // namespace

QString FileNames::ask(Purpose purpose, const QString& shown, const QString& offered,
                       QWidget* parent)
{
    using For = FileQuestion::For;
    const QStringList board{FileWords::tr("Board (*.json)")};
    const QStringList drawn{FileWords::tr("Gerber (*.gbr)"), FileWords::tr("Picture (*.png)"),
                            FileWords::tr("Drawing (*.svg)")};
    switch (purpose) {
        case Purpose::Open:
            return FileQuestion{For::Opening, FileWords::tr("Open Board"), board, offered, shown}
                .ask(parent);
        case Purpose::Save:
            return FileQuestion{For::Saving, FileWords::tr("Save Board"), board, offered, shown}
                .ask(parent);
        case Purpose::Export:
            break;
    }
    return FileQuestion{For::Saving, FileWords::tr("Export Board"), drawn, offered, shown}.ask(
        parent);
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
