#include "shared/FileQuestion.h"

#include "shared/Settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace {

// For this run, where no settings are kept; the modules have the application object in common.
constexpr const char* folderProperty = "lastFolder";
const QString folderKey = QStringLiteral("files/folder");

/// "gbr" of "Gerber (*.gbr)".
QString suffixOf(const QString& kind)
{
    return kind.section(QStringLiteral("*."), 1).section(QLatin1Char(')'), 0, 0);
}

}  // namespace

QString FileQuestion::ask(QWidget* parent) const
{
    const QString folder = QFileInfo(beside).absolutePath();
    QFileDialog dialog(parent, title,
                       !beside.isEmpty() && QDir(folder).exists() ? folder : LastFolder::path());
    dialog.setObjectName(QStringLiteral("m_pFileDialog"));
    dialog.setNameFilters(kinds);
    if (purpose == For::Opening) {
        dialog.setFileMode(QFileDialog::ExistingFile);
    } else {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
    }
    const auto takeSuffix = [&](const QString& kind) { dialog.setDefaultSuffix(suffixOf(kind)); };
    QObject::connect(&dialog, &QFileDialog::filterSelected, takeSuffix);
    takeSuffix(dialog.selectedNameFilter());
    dialog.selectFile(offered);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void LastFolder::remember(const QString& file)
{
    const QString folder = QFileInfo(file).absolutePath();
    qApp->setProperty(folderProperty, folder);
    Settings::set(folderKey, folder);
}

QString LastFolder::path()
{
    const QString last = qApp->property(folderProperty).toString();
    const QString folder = last.isEmpty() ? Settings::value(folderKey).toString() : last;
    return !folder.isEmpty() && QDir(folder).exists() ? folder : QDir::homePath();
}
