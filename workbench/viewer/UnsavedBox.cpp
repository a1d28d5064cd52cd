#include "viewer/UnsavedBox.h"

#include "shared/Named.h"
#include "viewer/OpenStep.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFileInfo>
#include <QMessageBox>

namespace {

QString text(const char* source)
{
    return QCoreApplication::translate("UnsavedBox", source);
}

int answerTo(const QString& question, QMessageBox::StandardButtons buttons, QWidget* parent)
{
    QMessageBox box(QMessageBox::Warning, text(QT_TRANSLATE_NOOP("UnsavedBox", "Unsaved Changes")),
                    question, buttons, parent);
    box.setObjectName(QStringLiteral("m_pUnsavedBox"));
    box.setTextFormat(Qt::PlainText);
    if (QAbstractButton* const saveAll = box.button(QMessageBox::SaveAll)) {
        saveAll->setText(text(QT_TRANSLATE_NOOP("UnsavedBox", "&Save All")));
        box.button(QMessageBox::Discard)
            ->setText(text(QT_TRANSLATE_NOOP("UnsavedBox", "&Discard All")));
        box.setDefaultButton(QMessageBox::SaveAll);
    } else {
        box.setDefaultButton(QMessageBox::Save);
    }
    return box.exec();
}

}  // namespace

int UnsavedBox::ask(const OpenStep& step, QWidget* parent)
{
    const QString question =
        step.file.isEmpty()
            ? text(
                  QT_TRANSLATE_NOOP("UnsavedBox",
                                    "%1 has been changed and is in no file yet. Save the changes?"))
                  .arg(OpenStep::nameOf(step.job, step.step))
            : text(QT_TRANSLATE_NOOP("UnsavedBox", "\"%1\" has been changed. Save the changes?"))
                  .arg(QFileInfo(step.file).fileName());
    return answerTo(question, QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                    parent);
}

int UnsavedBox::ask(const std::vector<OpenStep*>& steps, QWidget* parent)
{
    QStringList names;
    for (const OpenStep* const step : steps) {
        const QString file = step->file.isEmpty()
                                 ? text(QT_TRANSLATE_NOOP("UnsavedBox", "in no file yet"))
                                 : QFileInfo(step->file).fileName();
        names.append(QStringLiteral("%1 (%2)").arg(OpenStep::nameOf(step->job, step->step), file));
    }
    const QString question =
        text(QT_TRANSLATE_NOOP("UnsavedBox",
                               "These boards have been changed:\n%1\nSave the changes?"))
            .arg(names.join(QLatin1Char('\n')));
    return answerTo(question, QMessageBox::SaveAll | QMessageBox::Discard | QMessageBox::Cancel,
                    parent);
}
