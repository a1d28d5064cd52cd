#include "viewer/RecoveryOffer.h"

#include "shared/Named.h"
#include "viewer/OpenStep.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

RecoveryOffer::RecoveryOffer(Folders folders, Places places, QWidget* pane)
    : QObject(pane), m_folders(std::move(folders)), m_places(std::move(places))
{
    auto* const box =
        new QMessageBox(QMessageBox::Question, tr("Recover Changes"),
                        tr("The workbench ended without saving these changes:\n%1").arg(list()),
                        QMessageBox::NoButton, pane->window());
    box->setObjectName(QStringLiteral("m_pRecoveryBox"));
    box->setTextFormat(Qt::PlainText);
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

/// Its own step is shown, or is not there, as `whyElsewhere` says.
void RecoveryOffer::recoverInto(const KeptStep& step, const QString& whyElsewhere, Told* told)
{
    const QString name = OpenStep::nameOf(step.job, step.step);
    const QString whyNot = m_places.recoverHere(step);
    if (!whyNot.isEmpty() && whyElsewhere.isEmpty()) {
        told->left.append(tr("%1 (%2)").arg(name, whyNot));
    } else if (!whyNot.isEmpty()) {
        told->left.append(tr("%1 (%2; %3)").arg(name, whyElsewhere, whyNot));
    } else if (whyElsewhere.isEmpty()) {
        told->recovered.append(name);
    } else {
        told->recovered.append(tr("%1 (in %2, as %3)").arg(name, m_places.shown(), whyElsewhere));
    }
}

QString RecoveryOffer::recoverAll()
{
    Told told;
    // Those whose step is not there take no other's place.
    std::vector<std::pair<KeptStep, QString>> astray;
    for (const auto& folder : m_folders) {
        for (const KeptStep& step : folder->steps()) {
            const QString why = m_places.showStep(step);
            if (why.isEmpty()) {
                recoverInto(step, {}, &told);
            } else {
                astray.emplace_back(step, why);
            }
        }
    }
    for (const auto& [step, why] : astray) {
        recoverInto(step, why, &told);
    }
    for (const auto& folder : m_folders) {
        if (folder->steps().empty()) {
            folder->remove();
        }
    }
    m_folders.clear();
    QStringList texts;
    if (!told.recovered.isEmpty()) {
        texts.append(tr("Recovered: %1.").arg(told.recovered.join(QStringLiteral(", "))));
    }
    if (!told.left.isEmpty()) {
        texts.append(tr("Left for the next start: %1.").arg(told.left.join(QStringLiteral(", "))));
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
