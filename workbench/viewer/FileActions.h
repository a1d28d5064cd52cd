#pragma once

#include "viewer/CanvasController.h"

#include <FileError.h>

#include <QObject>

#include <functional>
#include <map>
#include <vector>

class QAction;

/// The boards as files, as the user handles them: which file is open, what is not saved yet, and
/// the actions for both. Asks before changes are lost; errors are shown in a box.
///
/// The host's window, to which the canvas is a module, finds this by its object name,
/// "m_pBoardFiles", and calls it by the names of its methods.
class FileActions : public QObject {
    Q_OBJECT

public:
    /// `pane` becomes the parent, also of the boxes.
    FileActions(CanvasController& canvas, QWidget* pane);

    QAction* openAction() const { return m_open; }
    QAction* saveAction() const { return m_save; }
    QAction* exportAction() const { return m_export; }
    void retranslate();

    /// For a file that a program has named: nothing is asked. Throws a FileError.
    void openAtOnce(const QString& file);

    /// The file of the board that is shown; empty when it was never saved.
    Q_INVOKABLE QString file() const;
    /// Whether the board that is shown differs from its file.
    Q_INVOKABLE bool isModified() const;
    /// False: the user wants to keep the board that is shown, or it could not be saved.
    Q_INVOKABLE bool open(const QString& file);
    /// The same of all boards that are not saved.
    Q_INVOKABLE bool mayClose();
    /// Whether a user is there to be asked; otherwise changes are discarded.
    Q_INVOKABLE void setMayAsk(std::function<bool()> mayAsk) { m_mayAsk = std::move(mayAsk); }

Q_SIGNALS:
    /// Another file, or another state of it.
    void changed();
    /// Another board is shown.
    void opened();

private:
    QAction* add(const char* name, const QKeySequence& shortcut, void (FileActions::*slot)());
    void watch();
    void startNew();
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
    /// Does `work`; false if it threw a FileError, which the user was shown.
    bool attempt(const std::function<void()>& work);

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
