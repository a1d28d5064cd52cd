#include "viewer/CanvasBar.h"

#include "board/EditOps.h"
#include "shared/Named.h"
#include "viewer/BoardView.h"
#include "viewer/FileActions.h"

#include <QAction>
#include <QToolButton>

#include <numeric>

namespace {

constexpr double zoomStep = 1.5;

/// `actions` fit the board into the view, zoom in and out.
void connectZoom(const QList<QAction*>& actions, BoardView& view)
{
    actions[0]->setShortcut(QStringLiteral("Ctrl+0"));
    actions[1]->setShortcut(QKeySequence::ZoomIn);
    actions[2]->setShortcut(QKeySequence::ZoomOut);
    QObject::connect(actions[0], &QAction::triggered, &view, &BoardView::fit);
    QObject::connect(actions[1], &QAction::triggered, &view, [&view] { view.zoom(zoomStep); });
    QObject::connect(actions[2], &QAction::triggered, &view, [&view] { view.zoom(1 / zoomStep); });
}

}  // namespace

CanvasBar::CanvasBar(CanvasController& canvas, BoardView& view, const FileActions& files,
                     QWidget* parent)
    : QToolBar(parent),
      m_canvas(canvas),
      m_selectAll(named(new QAction(this), "m_pSelectAllAct")),
      m_deselect(named(new QAction(this), "m_pDeselectAct")),
      m_delete(named(new QAction(this), "m_pDeleteAct"))
{
    setObjectName(QStringLiteral("m_pCanvasBar"));
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_undo = addButton("m_pUndoTB", "m_pUndoAct");
    m_redo = addButton("m_pRedoTB", "m_pRedoAct");
    addSeparator();
    m_fit = addButton("m_pFitTB", "m_pFitAct");
    m_zoomIn = addButton("m_pZoomInTB", "m_pZoomInAct");
    m_zoomOut = addButton("m_pZoomOutTB", "m_pZoomOutAct");
    addSeparator();
    addButton(files.openAction(), "m_pOpenBoardTB");
    addButton(files.saveAction(), "m_pSaveBoardTB");
    addButton(files.exportAction(), "m_pExportBoardTB");
    connectHistory();
    connectSelection();
    connectZoom(zoomActions(), view);
    retranslate();
}

QAction* CanvasBar::addButton(const char* buttonName, const char* actionName)
{
    auto* const action = named(new QAction(this), actionName);
    addButton(action, buttonName);
    return action;
}

void CanvasBar::addButton(QAction* action, const char* buttonName)
{
    addAction(action);
    named(widgetForAction(action), buttonName);
}

void CanvasBar::connectHistory()
{
    m_undo->setShortcut(QKeySequence::Undo);
    m_redo->setShortcuts({QStringLiteral("Ctrl+Shift+Z"), QStringLiteral("Ctrl+Y")});
    QUndoGroup& histories = m_canvas.histories();
    connect(m_undo, &QAction::triggered, this, [this, &histories] {
        const QString what = histories.undoText();
        histories.undo();
        m_canvas.say(tr("Undone: %1.").arg(what));
    });
    connect(m_redo, &QAction::triggered, this, [this, &histories] {
        const QString what = histories.redoText();
        histories.redo();
        m_canvas.say(tr("Redone: %1.").arg(what));
    });
    connect(&histories, &QUndoGroup::indexChanged, this, &CanvasBar::nameHistory);
    connect(&histories, &QUndoGroup::activeStackChanged, this, &CanvasBar::nameHistory);
}

void CanvasBar::connectSelection()
{
    m_selectAll->setShortcut(QKeySequence::SelectAll);
    m_deselect->setShortcut(QStringLiteral("Ctrl+D"));
    m_delete->setShortcut(QKeySequence::Delete);
    connect(m_selectAll, &QAction::triggered, this, [this] {
        Pcb::Indexes all(m_canvas.document().board().features.size());
        std::iota(all.begin(), all.end(), 0);
        m_canvas.document().select(tr("Select all"), all);
    });
    connect(m_deselect, &QAction::triggered, this,
            [this] { m_canvas.document().select(tr("Deselect"), {}); });
    connect(m_delete, &QAction::triggered, this, &CanvasBar::deleteSelected);
}

void CanvasBar::deleteSelected()
{
    Document& document = m_canvas.document();
    const Pcb::Indexes selected = document.state().selected;
    document.applyBoard(tr("Delete"), Pcb::without(document.board(), selected));
    // The key may have been pressed in another window, which shows nothing of it.
    m_canvas.say(selected.empty()
                     ? tr("Nothing is selected.")
                     : tr("Deleted %n feature(s).", "", static_cast<int>(selected.size())));
}

void CanvasBar::retranslate()
{
    m_undo->setIconText(tr("Undo"));
    m_redo->setIconText(tr("Redo"));
    m_selectAll->setText(tr("Select &All"));
    m_deselect->setText(tr("Dese&lect"));
    m_delete->setText(tr("&Delete"));
    m_fit->setText(tr("&Fit"));
    m_fit->setIconText(tr("Fit"));
    m_zoomIn->setText(tr("Zoom &In"));
    m_zoomOut->setText(tr("Zoom &Out"));
    m_zoomIn->setIconText(tr("+"));
    m_zoomOut->setIconText(tr("-"));
    m_fit->setToolTip(tr("Show the whole board"));
    m_zoomIn->setToolTip(tr("Zoom in"));
    m_zoomOut->setToolTip(tr("Zoom out"));
    for (QAction* const action : zoomActions()) {
        widgetForAction(action)->setAccessibleName(action->toolTip());
    }
    nameHistory();
}

void CanvasBar::nameHistory()
{
    const QUndoGroup& histories = m_canvas.histories();
    m_undo->setEnabled(histories.canUndo());
    m_redo->setEnabled(histories.canRedo());
    m_undo->setText(tr("&Undo %1").arg(histories.undoText()).trimmed());
    m_redo->setText(tr("&Redo %1").arg(histories.redoText()).trimmed());
    m_undo->setToolTip(tr("Undo: %1").arg(histories.undoText()));
    m_redo->setToolTip(tr("Redo: %1").arg(histories.redoText()));
}

void CanvasBar::addZoomKeys(QWidget* window, BoardView& view)
{
    const QList<QAction*> keys{new QAction(window), new QAction(window), new QAction(window)};
    window->addActions(keys);
    connectZoom(keys, view);
}
