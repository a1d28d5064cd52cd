#pragma once

#include "shared/CanvasControl.h"
#include "viewer/CanvasController.h"

#include <QObject>

#include <functional>
#include <map>
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
    void exportTo(const QString& file) override;
    bool open(const QString& file) override;
    bool mayClose() override;
    void closeAll() override;
    void setMayAsk(std::function<bool()> mayAsk) override { m_mayAsk = std::move(mayAsk); }
    QString file() const override;
    bool isModified() const override;
    void setChanged(const std::function<void()>& changed) override;
    QStringList recent() const override;

Q_SIGNALS:
    /// Another file, or another state of it.
    void changed();
    /// Another board is shown.
    void opened();

private:
    QAction* add(const char* name, const QKeySequence& shortcut, void (FileActions::*slot)());
    void watch();
    void startNew();
    bool tryToOpen(const QString& file);
    void chooseAndOpen();
    void saveShown();
    void saveShownAs();
    void chooseAndExport();

    bool mayReplace(Document& document);
    bool save(Document& document);
    bool saveAs(Document& document);
    bool write(Document& document, const QString& file);
    void setFile(Document& document, const QString& file);
    QString nameOf(const Document& document) const;
    /// In a box; nothing where there are no words, or no user.
    void tell(const QString& words);
    /// Does `work`; false if it threw a FileError, which the user was shown as the reason for
    /// `failure`.
    bool attempt(const QString& failure, const std::function<void()>& work);

    CanvasController& m_canvas;
    QWidget* m_pane;
    std::vector<Document*> m_documents;  ///< those that were shown, in that order
    std::map<const Document*, QString> m_files;
    std::function<bool()> m_mayAsk = [] { return true; };
    QAction* m_new;
    QAction* m_open;
    QAction* m_save;
    QAction* m_saveAs;
    QAction* m_export;
};
