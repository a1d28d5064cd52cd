#pragma once

#include "board/Board.h"
#include "board/BoxIndex.h"
#include "board/EditOps.h"
#include "board/IdSet.h"
#include "board/Sketch.h"

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

struct DocumentStep;

/// The step that the canvas shows, with its history. Each feature has an id, which it keeps while
/// others come and go; the history holds what each entry changed, and ids of what was selected.
class Document : public QObject {
    Q_OBJECT

public:
    explicit Document(Pcb::Board board, QObject* parent = nullptr);

    const CanvasState& state() const { return m_state; }
    const Pcb::Board& board() const { return m_state.board; }
    QUndoStack& history() { return m_history; }

    /// Whether the board has changed since it was opened or saved last. What is selected, marked
    /// or highlighted is not saved and does not count.
    bool isModified() const;
    void setSaved() { m_history.setClean(); }
    /// Another one for each board that the document has had.
    int revision() const { return m_revision; }

    // Each is one entry of the history named `text`, and does nothing if nothing changes.

    /// Selection and highlights stay, and pass on to what replaces a feature.
    void applyBoard(const QString& text, const Pcb::Edit& edit);
    /// The same, and what the edit adds becomes the selection.
    void applyAndSelect(const QString& text, const Pcb::Edit& edit);
    void select(const QString& text, const Pcb::Indexes& indexes);
    void highlight(const QString& text, const Pcb::Indexes& indexes);
    void setMarks(const QString& text, const std::vector<Mark>& marks);

    /// Another board from outside: starts a new history.
    void replace(const Pcb::Board& board);
    /// The same, and the board counts as changed: it is in no file.
    void replaceUnsaved(const Pcb::Board& board);

    /// The features whose bounds intersect the area.
    Pcb::Indexes featuresIn(const QRectF& area) const;
    const Pcb::Sketch& sketch(int feature) const
    {
        return m_sketches[static_cast<size_t>(m_ids[static_cast<size_t>(feature)])];
    }
    /// The topmost feature at `point` or no farther from it than `tolerance`; -1: none.
    int featureAt(const QPointF& point, double tolerance) const;
    /// Encloses outline and features; deletions may leave it larger than they are.
    const QRectF& bounds() const { return m_bounds; }

Q_SIGNALS:
    /// Features in these areas look different now.
    void repainted(const std::vector<QRectF>& areas);
    /// The whole board is another one.
    void replaced();
    /// After either of them.
    void changed();

private:
    friend class StateChange;
    using Ids = std::vector<int>;

    DocumentStep stepOf(const Pcb::Edit& edit);
    Pcb::Splice<int> idsFor(const Pcb::Splice<Pcb::Feature>& splice);
    Pcb::IdSet inherited(const Pcb::Splices<int>& splices, const Pcb::Indexes& indexes) const;
    void addNew(const Ids& ids, Ids& to) const;
    void push(const QString& text, const DocumentStep& step);
    void take(const DocumentStep& step);
    std::vector<QRectF> exchange(const DocumentStep& step);
    void setBoard(const Pcb::Board& board);
    void addFeature(int index);

    Ids idsOf(const Pcb::Indexes& indexes) const;
    Pcb::Indexes indexesOf(const Ids& ids) const;

    CanvasState m_state;
    Ids m_ids;                            ///< of the board's features, in their order
    Pcb::Indexes m_places;                ///< by id; -1 where there is no such feature now
    std::vector<Pcb::Sketch> m_sketches;  ///< by id
    Pcb::BoxIndex m_boxes;                ///< by id
    QRectF m_bounds;
    int m_revision = 0;
    QUndoStack m_history;
};
