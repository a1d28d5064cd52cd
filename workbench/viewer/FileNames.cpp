#include "viewer/FileNames.h"

#include "shared/FileQuestion.h"
#include "shared/Settings.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

constexpr int mostRecent = 8;
const QString recentKey = QStringLiteral("files/recent");

QString text(const char* source)
{
    return QCoreApplication::translate("FileNames", source);
}

QString titleOf(FileNames::Purpose purpose)
{
    switch (purpose) {
        case FileNames::Purpose::Open:
            return text(QT_TRANSLATE_NOOP("FileNames", "Open Board"));
        case FileNames::Purpose::Save:
            return text(QT_TRANSLATE_NOOP("FileNames", "Save Board"));
        case FileNames::Purpose::Export:
            break;
    }
    return text(QT_TRANSLATE_NOOP("FileNames", "Export Board"));
}

QStringList kindsOf(FileNames::Purpose purpose)
{
    if (purpose == FileNames::Purpose::Export) {
        return {text(QT_TRANSLATE_NOOP("FileNames", "Gerber (*.gbr)")),
                text(QT_TRANSLATE_NOOP("FileNames", "Picture (*.png)")),
                text(QT_TRANSLATE_NOOP("FileNames", "Drawing (*.svg)"))};
    }
    return {text(QT_TRANSLATE_NOOP("FileNames", "Board (*.json)"))};
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
