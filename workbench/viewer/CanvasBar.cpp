#include "viewer/CanvasBar.h"

#include "viewer/BoardView.h"
#include "viewer/FileActions.h"

#include <QAction>
#include <QToolButton>

namespace {

constexpr double zoomStep = 1.5;

}  // namespace

CanvasBar::CanvasBar(CanvasController& canvas, BoardView& view, const FileActions& files,
                     QWidget* parent)
    : QToolBar(parent), m_canvas(canvas)
{
    setObjectName(QStringLiteral("m_pCanvasBar"));
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_undo = add("m_pUndoTB", QKeySequence::Undo);
    m_redo = add("m_pRedoTB", QKeySequence::Redo);
    m_redo->setShortcuts(
        {QKeySequence(QStringLiteral("Ctrl+Shift+Z")), QKeySequence(QStringLiteral("Ctrl+Y"))});
    addSeparator();
    m_fit = add("m_pFitTB", QKeySequence(QStringLiteral("Ctrl+0")));
    m_zoomIn = add("m_pZoomInTB", QKeySequence::ZoomIn);
    m_zoomOut = add("m_pZoomOutTB", QKeySequence::ZoomOut);
    addSeparator();
    place(files.openAction(), "m_pOpenBoardTB");
    place(files.saveAction(), "m_pSaveBoardTB");
    place(files.exportAction(), "m_pExportBoardTB");

    QUndoGroup& histories = canvas.histories();
    connect(m_undo, &QAction::triggered, &histories, &QUndoGroup::undo);
    connect(m_redo, &QAction::triggered, &histories, &QUndoGroup::redo);
    connect(&histories, &QUndoGroup::indexChanged, this, &CanvasBar::nameHistory);
    connect(&histories, &QUndoGroup::activeStackChanged, this, &CanvasBar::nameHistory);
    connect(m_fit, &QAction::triggered, &view, &BoardView::fit);
    connect(m_zoomIn, &QAction::triggered, &view, [&view] { view.zoom(zoomStep); });
    connect(m_zoomOut, &QAction::triggered, &view, [&view] { view.zoom(1 / zoomStep); });
    retranslate();
}

QAction* CanvasBar::add(const char* objectName, const QKeySequence& shortcut)
{
    auto* const action = new QAction(this);
    action->setShortcut(shortcut);
    // "m_pUndoTB" is the button of "m_pUndoAct", which the window's menus show as well.
    action->setObjectName(
        QString::fromLatin1(objectName).replace(QLatin1String("TB"), QLatin1String("Act")));
    place(action, objectName);
    return action;
}

void CanvasBar::place(QAction* action, const char* objectName)
{
    addAction(action);
    widgetForAction(action)->setObjectName(QLatin1String(objectName));
}

void CanvasBar::retranslate()
{
    m_undo->setIconText(tr("Undo"));
    m_redo->setIconText(tr("Redo"));
    m_fit->setText(tr("&Fit"));
    m_fit->setIconText(tr("Fit"));
    m_zoomIn->setText(tr("Zoom &In"));
    m_zoomOut->setText(tr("Zoom &Out"));
    m_zoomIn->setIconText(tr("+"));
    m_zoomOut->setIconText(tr("-"));
    m_fit->setToolTip(tr("Show the whole board"));
    m_zoomIn->setToolTip(tr("Zoom in"));
    m_zoomOut->setToolTip(tr("Zoom out"));
    for (QAction* const action : {m_fit, m_zoomIn, m_zoomOut}) {
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
    const auto add = [window](const QKeySequence& shortcut) {
        auto* const action = new QAction(window);
        action->setShortcut(shortcut);
        window->addAction(action);
        return action;
    };
    connect(add(QKeySequence(QStringLiteral("Ctrl+0"))), &QAction::triggered, &view,
            &BoardView::fit);
    connect(add(QKeySequence::ZoomIn), &QAction::triggered, &view,
            [&view] { view.zoom(zoomStep); });
    connect(add(QKeySequence::ZoomOut), &QAction::triggered, &view,
            [&view] { view.zoom(1 / zoomStep); });
}
