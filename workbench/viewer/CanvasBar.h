#pragma once

#include "viewer/CanvasController.h"

#include <QToolBar>

class BoardView;
class QAction;

/// The canvas's own actions: undo and redo, zoom, files.
class CanvasBar : public QToolBar {
    Q_OBJECT

public:
    CanvasBar(CanvasController& canvas, BoardView& view, QWidget* parent);

    void retranslate();

    /// The keys of fit and zoom for a window with a view of its own.
    static void addZoomKeys(QWidget* window, BoardView& view);

private:
    enum class File { Open, Save, Export };

    QAction* add(const char* objectName, const QKeySequence& shortcut);
    void nameHistory();
    void run(File what);
    QString askName(File what);

    CanvasController& m_canvas;
    QAction* m_undo;
    QAction* m_redo;
    QAction* m_fit;
    QAction* m_zoomIn;
    QAction* m_zoomOut;
    QAction* m_open;
    QAction* m_save;
    QAction* m_export;
};
