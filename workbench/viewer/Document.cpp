#include "viewer/Document.h"

#include <QUndoCommand>

#include <utility>

/// States share their features, so that keeping both costs little.
class StateChange : public QUndoCommand {
public:
    StateChange(Document& document, const QString& text, CanvasState after)
        : QUndoCommand(text),
          m_document(document),
          m_before(document.state()),
          m_after(std::move(after))
    {
    }
    void undo() override { m_document.setState(m_before); }
    void redo() override { m_document.setState(m_after); }
    bool changesBoard() const { return !(m_before.board == m_after.board); }

private:
    Document& m_document;
    CanvasState m_before;
    CanvasState m_after;
};

bool CanvasState::operator==(const CanvasState& other) const
{
    return board == other.board && selected == other.selected && highlighted == other.highlighted &&
           marks == other.marks;
}

Document::Document(Pcb::Board board, QObject* parent) : QObject(parent)
{
    m_state.board = std::move(board);
}

void Document::apply(const QString& text, const CanvasState& after)
{
    if (!(after == m_state)) {
        m_history.push(new StateChange(*this, text, after));
    }
}

void Document::applyBoard(const QString& text, const Pcb::Board& board)
{
    CanvasState after = m_state;
    if (board.features.size() != after.board.features.size()) {
        after.selected.clear();
        after.highlighted.clear();
    }
    after.board = board;
    apply(text, after);
}

void Document::select(const QString& text, const Pcb::Indexes& indexes)
{
    CanvasState after = m_state;
    after.selected = indexes;
    apply(text, after);
}

void Document::replace(const Pcb::Board& board)
{
    m_history.clear();
    setState({board, {}, {}, {}});
}

bool Document::isModified() const
{
    const int saved = m_history.cleanIndex();
    bool modified = saved < 0;  // undone, and gone for good
    for (int i = qMin(saved, m_history.index()); !modified && i < qMax(saved, m_history.index());
         ++i) {
        modified = static_cast<const StateChange*>(m_history.command(i))->changesBoard();
    }
    return modified;
}

void Document::setState(const CanvasState& state)
{
    m_state = state;
    Q_EMIT changed();
}
