#pragma once

#include "viewer/RecoveryFolder.h"

#include <QObject>

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
    /// Takes the step over; false: it stays where it is.
    using Recover = std::function<bool(const KeptStep&)>;

    /// `pane` becomes the parent.
    RecoveryOffer(Folders folders, Recover recover, QWidget* pane);

Q_SIGNALS:
    /// What has been done, to be told to the user.
    void answered(const QString& text);

private:
    QString list() const;
    QString recoverAll();
    QString discardAll();

    Folders m_folders;
    Recover m_recover;
};
