#pragma once

#include "shared/CanvasControl.h"
#include "viewer/CanvasController.h"
#include "viewer/LongWork.h"
#include "viewer/Recovery.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

class QAction;

/// The boards as files, as the user handles them, and the actions for that. Asks before changes
/// are lost; errors are shown in a box.
class FileActions : public QObject, public BoardFiles {
    Q_OBJECT

public:
    /// `pane` becomes the parent, also of the boxes.
    FileActions(CanvasController& canvas, QWidget* pane);

    QAction* openAction() const { return m_open; }
    QAction* saveAction() const { return m_save; }
    QAction* exportAction() const { return m_export; }
    QList<QAction*> openActions() const { return {m_new, m_open}; }
    QList<QAction*> saveActions() const { return {m_save, m_saveAs, m_export}; }
    void retranslate();

    // BoardFiles
    void openAtOnce(const QString& file) override;
    QString exportTo(const QString& file) override;
    bool open(const QString& file) override;
    bool mayClose() override;
    void closeAll() override;
    void keepForRecovery() override;
    bool mayAsk() const { return m_mayAsk(); }
    void setMayAsk(std::function<bool()> mayAsk) override { m_mayAsk = std::move(mayAsk); }
    void setOpenJob(std::function<bool(const QString& file)> openJob) override
    {
        m_openJob = std::move(openJob);
    }
    QString file() const override;
    bool isModified() const override;
    void setChanged(const std::function<void()>& changed) override;
    QStringList recent() const override;

Q_SIGNALS:
    /// Another file, or another state of it.
    void changed();
    /// Another board is shown.
    void opened();
    /// The step is to be opened, if there is such a step.
    void stepWanted(const QString& job, const QString& step);
    /// All changes are kept for recovery.
    void changesKept();
    /// Changes cannot be kept for recovery, and why.
    void changesNotKept(const QString& reason);

private:
    QAction* add(const char* name, const QKeySequence& shortcut, const std::function<void()>& work);
    void watch();
    void startNew();
    bool tryToOpen(const QString& file);
    void show(const Pcb::Board& board, const QString& file);
    void sayOpened(const QString& file, const QString& unknown);
    void chooseAndOpen();
    void chooseAndExport();

    OpenStep& shown();
    const OpenStep& shown() const;
    bool mayReplace(OpenStep& step);
    bool mayCloseAll(const std::vector<OpenStep*>& changed);
    bool save(OpenStep& step);
    bool saveAs(OpenStep& step);
    bool write(OpenStep& step, const QString& file);
    void setFile(OpenStep& step, const QString& file);
    QString showStepOf(const KeptStep& kept);
    QString recoverHere(const KeptStep& kept);
    static QString offeredName(const OpenStep& step);
    /// In a box; nothing where there are no words, or no user.
    void tell(const QString& words);
    /// Does `work`, which `text` names; false if it threw a FileError, which the user was shown as
    /// the reason for `failure`, or if the user has cancelled it.
    bool attempt(const QString& failure, const QString& text, const LongWork::Work& work);

    CanvasController& m_canvas;
    QWidget* m_pane;
    std::vector<OpenStep> m_steps;  ///< those that were shown, in that order
    std::unique_ptr<Recovery> m_recovery;
    std::function<bool()> m_mayAsk = [] { return true; };
    std::function<bool(const QString& file)> m_openJob = [](const QString&) { return false; };
    QAction* m_new;
    QAction* m_open;
    QAction* m_save;
    QAction* m_saveAs;
    QAction* m_export;
};
