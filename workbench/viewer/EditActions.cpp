#include "viewer/EditActions.h"

#include "board/EditOps.h"

#include <QAction>
#include <QWidget>

#include <numeric>

EditActions::EditActions(CanvasController& canvas, QWidget* pane) : QObject(pane), m_canvas(canvas)
{
    m_selectAll = add("m_pSelectAllAct", QKeySequence::SelectAll, &EditActions::selectAll);
    m_deselect =
        add("m_pDeselectAct", QKeySequence(QStringLiteral("Ctrl+D")), &EditActions::deselect);
    m_delete = add("m_pDeleteAct", QKeySequence::Delete, &EditActions::deleteSelected);
    retranslate();
}

QAction* EditActions::add(const char* name, const QKeySequence& shortcut,
                          void (EditActions::*slot)())
{
    auto* const action = new QAction(parent());
    action->setObjectName(QLatin1String(name));
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, slot);
    return action;
}

void EditActions::retranslate()
{
    m_selectAll->setText(tr("Select &All"));
    m_deselect->setText(tr("Dese&lect"));
    m_delete->setText(tr("&Delete"));
}

void EditActions::selectAll()
{
    Pcb::Indexes all(m_canvas.document().board().features.size());
    std::iota(all.begin(), all.end(), 0);
    m_canvas.document().select(tr("Select all"), all);
}

void EditActions::deselect()
{
    m_canvas.document().select(tr("Deselect"), {});
}

void EditActions::deleteSelected()
{
    Document& document = m_canvas.document();
    const Pcb::Indexes selected = document.state().selected;
    if (!selected.empty()) {
        document.applyBoard(tr("Delete"), Pcb::without(document.board(), selected));
    }
}
