#include "viewer/FileNames.h"

#include "shared/Settings.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>

namespace {

constexpr int mostRecent = 8;
const QString folderKey = QStringLiteral("files/folder");
const QString recentKey = QStringLiteral("files/recent");

QString text(const char* source)
{
    return QCoreApplication::translate("FileNames", source);
}

/// "gbr" of "Gerber (*.gbr)".
QString suffixOf(const QString& filter)
{
    return filter.section(QStringLiteral("*."), 1).section(QLatin1Char(')'), 0, 0);
}

}  // namespace

QString FileNames::ask(Purpose purpose, const QString& offered, QWidget* parent)
{
    QFileDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("m_pFileDialog"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setDirectory(Settings::value(folderKey).toString());
    if (purpose == Purpose::Open) {
        dialog.setWindowTitle(text(QT_TRANSLATE_NOOP("FileNames", "Open board")));
        dialog.setFileMode(QFileDialog::ExistingFile);
    } else {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
    }
    if (purpose == Purpose::Export) {
        dialog.setWindowTitle(text(QT_TRANSLATE_NOOP("FileNames", "Export board")));
        dialog.setNameFilters({text(QT_TRANSLATE_NOOP("FileNames", "Gerber (*.gbr)")),
                               text(QT_TRANSLATE_NOOP("FileNames", "Picture (*.png)")),
                               text(QT_TRANSLATE_NOOP("FileNames", "Drawing (*.svg)"))});
    } else {
        dialog.setNameFilter(text(QT_TRANSLATE_NOOP("FileNames", "Board (*.json)")));
    }
    if (purpose == Purpose::Save) {
        dialog.setWindowTitle(text(QT_TRANSLATE_NOOP("FileNames", "Save board")));
    }
    const auto takeSuffix = [&](const QString& filter) {
        dialog.setDefaultSuffix(suffixOf(filter));
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, takeSuffix);
    takeSuffix(dialog.selectedNameFilter());
    dialog.selectFile(offered);
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    const QString file = dialog.selectedFiles().value(0);
    Settings::set(folderKey, QFileInfo(file).path());
    return file;
}

void FileNames::remember(const QString& file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    QStringList files = recent();
    files.removeAll(path);
    files.prepend(path);
    Settings::set(recentKey, QStringList(files.mid(0, mostRecent)));
}

QStringList FileNames::recent()
{
    return Settings::value(recentKey).toStringList();
}
