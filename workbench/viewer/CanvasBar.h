#pragma once

#include "viewer/CanvasController.h"

#include <QToolBar>

class BoardView;
class FileActions;
class QAction;

/// The bar above the board, with the canvas's own actions: history, selection, zoom. Those of the
/// selection are not on it, and those of files have an owner of their own.
class CanvasBar : public QToolBar {
    Q_OBJECT

public:
    CanvasBar(CanvasController& canvas, BoardView& view, const FileActions& files, QWidget* parent);

    QList<QAction*> historyActions() const { return {m_undo, m_redo}; }
    QList<QAction*> selectionActions() const { return {m_selectAll, m_deselect, m_delete}; }
    QList<QAction*> zoomActions() const { return {m_fit, m_zoomIn, m_zoomOut}; }
    void retranslate();

    /// The keys of fit and zoom for a window with a view of its own.
    static void addZoomKeys(QWidget* window, BoardView& view);

private:
    QAction* addButton(const char* buttonName, const char* actionName);
    void addButton(QAction* action, const char* buttonName);
    void connectHistory();
    void connectSelection();
    void deleteSelected();
    void nameHistory();

    CanvasController& m_canvas;
    QAction* m_undo;
    QAction* m_redo;
    QAction* m_selectAll;
    QAction* m_deselect;
    QAction* m_delete;
    QAction* m_fit;
    QAction* m_zoomIn;
    QAction* m_zoomOut;
};
