#pragma once

#include "viewer/RecoveryFolder.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class QMessageBox;

/// Asks what is to become of the steps that a crash has left: Recover, Discard, or Later, which
/// leaves them for the next start. Nothing waits for the answer.
class RecoveryOffer : public QObject {
    Q_OBJECT

public:
    using Folders = std::vector<std::unique_ptr<RecoveryFolder>>;
    /// What takes the boards over.
    struct Places {
        /// Shows the step that it was kept for; otherwise says why it is not there.
        std::function<QString(const KeptStep&)> showStep;
        /// Takes it over into the step that is shown; otherwise says why not, and it stays.
        std::function<QString(const KeptStep&)> recoverHere;
        /// The name of the step that is shown.
        std::function<QString()> shown;
    };

    /// `pane` becomes the parent.
    RecoveryOffer(Folders folders, Places places, QWidget* pane);

Q_SIGNALS:
    /// What has been done, to be told to the user.
    void answered(const QString& text);

private:
    QString list() const;
    /// What has become of the steps, in words.
    struct Told {
        QStringList recovered;
        QStringList left;
    };
    void recoverInto(const KeptStep& step, const QString& whyElsewhere, Told* told);
    QString recoverAll();
    QString discardAll();

    Folders m_folders;
    Places m_places;
};
