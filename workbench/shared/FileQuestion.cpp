#include "shared/FileQuestion.h"

#include "shared/Settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace {

// For this run, where no settings are kept; the modules have the application object in common.
constexpr const char* folderProperty = "lastFolder";
const QString folderKey = QStringLiteral("files/folder");

struct FileWords {
    Q_DECLARE_TR_FUNCTIONS(FileQuestion)
};

/// "gbr" of "Gerber (*.gbr)".
QString suffixOf(const QString& kind)
{
    return kind.section(QStringLiteral("*."), 1).section(QLatin1Char(')'), 0, 0);
}

/// A name without a suffix gets that of the kind.
QString completed(const QString& file, const QString& kind)
{
    const QString suffix = suffixOf(kind);
    const bool isWhole = suffix.isEmpty() || QFileInfo(file).fileName().contains(QLatin1Char('.'));
    return isWhole ? file : file + QLatin1Char('.') + suffix;
}

bool mayBeReplaced(const QString& file, const QString& title, QWidget* parent)
{
    const QString question = FileWords::tr("%1 already exists.\nDo you want to replace it?")
                                 .arg(QFileInfo(file).fileName());
    QMessageBox box(QMessageBox::Warning, title, question, QMessageBox::Yes | QMessageBox::No,
                    parent);
    box.setObjectName(QStringLiteral("m_pReplaceBox"));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
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
        dialog.setDefaultSuffix(suffixOf(kinds.first()));
    } else {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
    }
    dialog.selectFile(offered);
    // Some desktops ask only about the name as it was typed: the suffix is not theirs to add.
    while (dialog.exec() == QDialog::Accepted) {
        const QString typed = dialog.selectedFiles().value(0);
        const QString file = completed(typed, dialog.selectedNameFilter());
        if (purpose == For::Opening || file == typed || !QFileInfo::exists(file) ||
            mayBeReplaced(file, title, parent)) {
            return file;
        }
    }
    return {};
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
