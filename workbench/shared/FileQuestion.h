#pragma once

#include <QStringList>

class QWidget;

/// A question for the name of a file. Its dialog is the same on every desktop, so that a session
/// can answer it.
struct FileQuestion {
    enum class For { Opening, Saving };

    For purpose;
    QString title;
    QStringList kinds;    ///< "Board (*.json)"; the first one is chosen
    QString offered;      ///< the suggested name
    QString beside = {};  ///< the file in whose folder it begins; empty: that of the last file

    /// The file that the user chooses; the suffix of the chosen kind is added to a name without
    /// one. Empty: the user cancelled.
    QString ask(QWidget* parent) const;
};

/// The folder of the last file.
namespace LastFolder {

/// The file was read or written as the user wished.
void remember(const QString& file);
/// The user's own folder as long as nothing is remembered, or when that has gone.
QString path();

}  // namespace LastFolder
