#pragma once

#include "viewer/CanvasController.h"

#include <QToolBar>

class BoardView;
class FileActions;
class QAction;

/// The canvas's own actions: undo and redo, zoom; and those of its files.
class CanvasBar : public QToolBar {
    Q_OBJECT

public:
    CanvasBar(CanvasController& canvas, BoardView& view, const FileActions& files, QWidget* parent);

    void retranslate();

    /// The keys of fit and zoom for a window with a view of its own.
    static void addZoomKeys(QWidget* window, BoardView& view);

private:
    QAction* add(const char* objectName, const QKeySequence& shortcut);
    void place(QAction* action, const char* objectName);
    void nameHistory();

    CanvasController& m_canvas;
    QAction* m_undo;
    QAction* m_redo;
    QAction* m_fit;
    QAction* m_zoomIn;
    QAction* m_zoomOut;
};
