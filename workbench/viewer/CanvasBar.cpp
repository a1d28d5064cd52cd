#include "viewer/CanvasBar.h"

#include "viewer/BoardFiles.h"
#include "viewer/BoardView.h"

#include <QAction>
#include <QFileDialog>
#include <QMessageBox>
#include <QToolButton>

namespace {

constexpr double zoomStep = 1.5;

}  // namespace

CanvasBar::CanvasBar(CanvasController& canvas, BoardView& view, QWidget* parent)
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
    m_open = add("m_pOpenBoardTB", QKeySequence::Open);
    m_save = add("m_pSaveBoardTB", QKeySequence::Save);
    m_export = add("m_pExportBoardTB", QKeySequence());

    QUndoGroup& histories = canvas.histories();
    connect(m_undo, &QAction::triggered, &histories, &QUndoGroup::undo);
    connect(m_redo, &QAction::triggered, &histories, &QUndoGroup::redo);
    connect(&histories, &QUndoGroup::indexChanged, this, &CanvasBar::nameHistory);
    connect(&histories, &QUndoGroup::activeStackChanged, this, &CanvasBar::nameHistory);
    connect(m_fit, &QAction::triggered, &view, &BoardView::fit);
    connect(m_zoomIn, &QAction::triggered, &view, [&view] { view.zoom(zoomStep); });
    connect(m_zoomOut, &QAction::triggered, &view, [&view] { view.zoom(1 / zoomStep); });
    connect(m_open, &QAction::triggered, this, [this] { run(File::Open); });
    connect(m_save, &QAction::triggered, this, [this] { run(File::Save); });
    connect(m_export, &QAction::triggered, this, [this] { run(File::Export); });
    retranslate();
}

QAction* CanvasBar::add(const char* objectName, const QKeySequence& shortcut)
{
    QAction* const action = addAction(QString());
    action->setShortcut(shortcut);
    widgetForAction(action)->setObjectName(QLatin1String(objectName));
    return action;
}

void CanvasBar::retranslate()
{
    m_undo->setText(tr("Undo"));
    m_redo->setText(tr("Redo"));
    m_fit->setText(tr("Fit"));
    m_zoomIn->setText(tr("+"));
    m_zoomOut->setText(tr("-"));
    m_open->setText(tr("Open..."));
    m_save->setText(tr("Save..."));
    m_export->setText(tr("Export..."));
    m_fit->setToolTip(tr("Show the whole board"));
    m_zoomIn->setToolTip(tr("Zoom in"));
    m_zoomOut->setToolTip(tr("Zoom out"));
    m_open->setToolTip(tr("Open a board file"));
    m_save->setToolTip(tr("Save the board as a file"));
    m_export->setToolTip(tr("Export the board as Gerber or as a picture"));
    for (const QAction* const action : {m_fit, m_zoomIn, m_zoomOut, m_open, m_save, m_export}) {
        widgetForAction(const_cast<QAction*>(action))->setAccessibleName(action->toolTip());
    }
    nameHistory();
}

void CanvasBar::nameHistory()
{
    const QUndoGroup& histories = m_canvas.histories();
    m_undo->setEnabled(histories.canUndo());
    m_redo->setEnabled(histories.canRedo());
    m_undo->setToolTip(tr("Undo: %1").arg(histories.undoText()));
    m_redo->setToolTip(tr("Redo: %1").arg(histories.redoText()));
}

QString CanvasBar::askName(File what)
{
    QFileDialog dialog(this);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(what == File::Open ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setAcceptMode(what == File::Open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    if (what == File::Export) {
        dialog.setWindowTitle(tr("Export board"));
        dialog.setNameFilters({tr("Gerber (*.gbr)"), tr("Picture (*.png)"), tr("Drawing (*.svg)")});
    } else {
        dialog.setWindowTitle(what == File::Open ? tr("Open board") : tr("Save board"));
        dialog.setNameFilter(tr("Board (*.json)"));
        dialog.setDefaultSuffix(QStringLiteral("json"));
    }
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void CanvasBar::run(File what)
{
    const QString file = askName(what);
    if (file.isEmpty()) {
        return;
    }
    Document& document = m_canvas.document();
    const QString error = what == File::Open   ? BoardFiles::open(document, file)
                          : what == File::Save ? BoardFiles::save(document, file)
                                               : BoardFiles::exportTo(document, file);
    if (error.isEmpty()) {
        m_canvas.say(what == File::Open ? tr("Opened %1.").arg(file) : tr("Wrote %1.").arg(file));
    } else {
        QMessageBox::warning(this, tr("Board"), error);
    }
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
