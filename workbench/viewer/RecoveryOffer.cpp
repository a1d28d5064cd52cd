#include "viewer/RecoveryOffer.h"

#include "shared/Named.h"
#include "viewer/OpenStep.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

RecoveryOffer::RecoveryOffer(Folders folders, Recover recover, QWidget* pane)
    : QObject(pane), m_folders(std::move(folders)), m_recover(std::move(recover))
{
    auto* const box =
        new QMessageBox(QMessageBox::Question, tr("Recover Changes"),
                        tr("The workbench ended without saving these changes:\n%1").arg(list()),
                        QMessageBox::NoButton, pane->window());
    box->setObjectName(QStringLiteral("m_pRecoveryBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    auto* const recoverButton =
        named(box->addButton(tr("&Recover"), QMessageBox::AcceptRole), "m_pRecoverPB");
    auto* const discardButton =
        named(box->addButton(tr("&Discard"), QMessageBox::DestructiveRole), "m_pDiscardKeptPB");
    auto* const laterButton =
        named(box->addButton(tr("&Later"), QMessageBox::RejectRole), "m_pKeepForLaterPB");
    box->setDefaultButton(recoverButton);
    box->setEscapeButton(laterButton);
    connect(box, &QDialog::finished, this, [=] {
        if (box->clickedButton() == recoverButton) {
            Q_EMIT answered(recoverAll());
        } else if (box->clickedButton() == discardButton) {
            Q_EMIT answered(discardAll());
        }
        deleteLater();
    });
    box->open();
}

QString RecoveryOffer::list() const
{
    QStringList lines;
    for (const auto& folder : m_folders) {
        for (const KeptStep& step : folder->steps()) {
            const QString name = OpenStep::nameOf(step.job, step.step);
            const QString time = step.time.toString(QStringLiteral("yyyy-MM-dd HH:mm"));
            lines.append(
                step.boardFile.isEmpty()
                    ? tr("%1, of %2").arg(name, time)
                    : tr("%1 (%3), of %2").arg(name, time, QFileInfo(step.boardFile).fileName()));
        }
    }
    return lines.join(QLatin1Char('\n'));
}

QString RecoveryOffer::recoverAll()
{
    QStringList recovered;
    QStringList left;
    for (const auto& folder : m_folders) {
        for (const KeptStep& step : folder->steps()) {
            (m_recover(step) ? recovered : left).append(OpenStep::nameOf(step.job, step.step));
        }
        if (folder->steps().empty()) {
            folder->remove();
        }
    }
    m_folders.clear();
    QStringList texts;
    if (!recovered.isEmpty()) {
        texts.append(tr("Recovered: %1.").arg(recovered.join(QStringLiteral(", "))));
    }
    if (!left.isEmpty()) {
        texts.append(tr("Left for the next start: %1.").arg(left.join(QStringLiteral(", "))));
    }
    return texts.join(QLatin1Char(' '));
}

QString RecoveryOffer::discardAll()
{
    for (const auto& folder : m_folders) {
        folder->remove();
    }
    m_folders.clear();
    return tr("The changes have been discarded.");
}
