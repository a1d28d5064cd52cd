#pragma once

#include "viewer/CanvasController.h"

#include <QObject>

class QAction;

/// What can be done with the selection whichever tool is active. The host's window finds the
/// actions by their object names: "m_pSelectAllAct", "m_pDeselectAct", "m_pDeleteAct".
class EditActions : public QObject {
    Q_OBJECT

public:
    /// The actions are those of `pane`, which becomes the parent.
    EditActions(CanvasController& canvas, QWidget* pane);

    void retranslate();

private:
    QAction* add(const char* name, const QKeySequence& shortcut, void (EditActions::*slot)());
    void selectAll();
    void deselect();
    void deleteSelected();

    CanvasController& m_canvas;
    QAction* m_selectAll;
    QAction* m_deselect;
    QAction* m_delete;
};
