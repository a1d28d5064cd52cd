#pragma once

#include "board/Board.h"

#include <QLineF>
#include <QObject>
#include <QUndoStack>

#include <vector>

/// Two points that the mark tool has marked, in micrometres.
struct Mark {
    QLineF line;
    bool orthogonal = true;  ///< shown by its way along x and along y; else straight
    bool operator==(const Mark& other) const
    {
        return line == other.line && orthogonal == other.orthogonal;
    }
};

/// What a step looks like on the canvas: all of it can be undone.
struct CanvasState {
    Pcb::Board board;
    Pcb::Indexes selected;
    Pcb::Indexes highlighted;
    std::vector<Mark> marks;

    bool operator==(const CanvasState& other) const;
};

/// The step that the canvas shows, with its history.
class Document : public QObject {
    Q_OBJECT

public:
    explicit Document(Pcb::Board board, QObject* parent = nullptr);

    const CanvasState& state() const { return m_state; }
    const Pcb::Board& board() const { return m_state.board; }
    QUndoStack& history() { return m_history; }

    /// Whether the board is another than when it was opened or saved last. What is selected, marked
    /// or highlighted is not saved and does not count.
    bool isModified() const;
    void setSaved() { m_history.setClean(); }

    /// Makes `after` the state, as one entry of the history named `text`. Nothing happens when it
    /// is the state already.
    void apply(const QString& text, const CanvasState& after);
    /// The same for another board: what was selected or highlighted stays so only while there are
    /// as many features as before.
    void applyBoard(const QString& text, const Pcb::Board& board);
    void select(const QString& text, const Pcb::Indexes& indexes);

    /// Another board from outside: the history begins anew.
    void replace(const Pcb::Board& board);

Q_SIGNALS:
    void changed();

private:
    friend class StateChange;

    void setState(const CanvasState& state);

    CanvasState m_state;
    QUndoStack m_history;
};
