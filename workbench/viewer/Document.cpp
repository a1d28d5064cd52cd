#include "viewer/Document.h"

#include <QUndoCommand>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace {

using Ids = std::vector<int>;

Ids sorted(Ids ids)
{
    // Ids mostly ascend as the features do.
    if (!std::is_sorted(ids.begin(), ids.end())) {
        std::sort(ids.begin(), ids.end());
    }
    return ids;
}

/// What is in only one of them. Both ascend.
Ids difference(const Ids& a, const Ids& b)
{
    Ids all;
    std::set_symmetric_difference(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(all));
    return all;
}

Pcb::Splices<Mark> changeOf(const std::vector<Mark>& before, const std::vector<Mark>& after)
{
    const auto same = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    return {{static_cast<int>(same.first - before.begin()),
             static_cast<int>(before.end() - same.first),
             {same.second, after.end()}}};
}

}  // namespace

/// What an entry of the history changes, in one of its two directions.
struct DocumentStep {
    Pcb::Edit features;
    Pcb::Splices<int> ids;
    Pcb::Splices<Mark> marks;
    Pcb::IdSet selected;     ///< of which each is selected after it if it was not before
    Pcb::IdSet highlighted;  ///< likewise
};

class StateChange : public QUndoCommand {
public:
    StateChange(Document& document, const QString& text, const DocumentStep& step)
        : QUndoCommand(text), m_document(document), m_forward(step), m_back(step)
    {
        m_back.features = inverse(step.features, document.board().features);
        m_back.ids = inverse(step.ids, document.m_ids);
        m_back.marks = inverse(step.marks, document.state().marks);
    }
    void undo() override { m_document.take(m_back); }
    void redo() override { m_document.take(m_forward); }
    bool changesBoard() const { return !m_forward.features.empty(); }

private:
    Document& m_document;
    DocumentStep m_forward;
    DocumentStep m_back;
};

bool CanvasState::operator==(const CanvasState& other) const
{
    return board == other.board && selected == other.selected && highlighted == other.highlighted &&
           marks == other.marks;
}

Document::Document(Pcb::Board board, QObject* parent) : QObject(parent)
{
    setBoard(board);
}

void Document::applyBoard(const QString& text, const Pcb::Edit& edit)
{
    push(text, stepOf(edit));
}

void Document::applyAndSelect(const QString& text, const Pcb::Edit& edit)
{
    DocumentStep step = stepOf(edit);
    Ids added;
    for (const Pcb::Splice<int>& splice : step.ids) {
        addNew(splice.entries, added);
    }
    step.selected = Pcb::IdSet(difference(sorted(idsOf(m_state.selected)), sorted(added)));
    push(text, step);
}

void Document::select(const QString& text, const Pcb::Indexes& indexes)
{
    DocumentStep step;
    step.selected = Pcb::IdSet(sorted(idsOf(difference(m_state.selected, indexes))));
    push(text, step);
}

void Document::highlight(const QString& text, const Pcb::Indexes& indexes)
{
    DocumentStep step;
    step.highlighted = Pcb::IdSet(sorted(idsOf(difference(m_state.highlighted, indexes))));
    push(text, step);
}

void Document::setMarks(const QString& text, const std::vector<Mark>& marks)
{
    if (marks != m_state.marks) {
        DocumentStep step;
        step.marks = changeOf(m_state.marks, marks);
        push(text, step);
    }
}

DocumentStep Document::stepOf(const Pcb::Edit& edit)
{
    DocumentStep step;
    for (const Pcb::Splice<Pcb::Feature>& splice : edit) {
        const auto first = m_state.board.features.begin() + splice.index;
        if (!std::equal(first, first + splice.count, splice.entries.begin(),
                        splice.entries.end())) {
            step.features.push_back(splice);
            step.ids.push_back(idsFor(splice));
        }
    }
    step.selected = inherited(step.ids, m_state.selected);
    step.highlighted = inherited(step.ids, m_state.highlighted);
    return step;
}

/// A feature's id goes to its replacement; further ones get new ids.
Pcb::Splice<int> Document::idsFor(const Pcb::Splice<Pcb::Feature>& splice)
{
    Pcb::Splice<int> ids{splice.index, splice.count, {}};
    for (int i = 0; i < static_cast<int>(splice.entries.size()); ++i) {
        if (i < splice.count) {
            ids.entries.push_back(m_ids[static_cast<size_t>(splice.index + i)]);
        } else {
            ids.entries.push_back(static_cast<int>(m_places.size()));
            m_places.push_back(-1);
            m_sketches.emplace_back();
        }
    }
    return ids;
}

/// The ids that come or go where one of `indexes` is replaced by several features, or by none.
Pcb::IdSet Document::inherited(const Pcb::Splices<int>& splices, const Pcb::Indexes& indexes) const
{
    Ids ids;
    for (const Pcb::Splice<int>& splice : splices) {
        const int count = static_cast<int>(splice.entries.size());
        for (int i = count; i < splice.count; ++i) {
            if (Pcb::contains(indexes, splice.index + i)) {
                ids.push_back(m_ids[static_cast<size_t>(splice.index + i)]);
            }
        }
        if (splice.count > 0 && Pcb::contains(indexes, splice.index + splice.count - 1)) {
            addNew(splice.entries, ids);
        }
    }
    return Pcb::IdSet(sorted(ids));
}

/// Those of `ids` that no feature has yet.
void Document::addNew(const Ids& ids, Ids& to) const
{
    std::copy_if(ids.begin(), ids.end(), std::back_inserter(to),
                 [this](int id) { return m_places[static_cast<size_t>(id)] < 0; });
}

void Document::push(const QString& text, const DocumentStep& step)
{
    if (!step.features.empty() || !step.marks.empty() || !step.selected.isEmpty() ||
        !step.highlighted.isEmpty()) {
        m_history.push(new StateChange(*this, text, step));
    }
}

void Document::take(const DocumentStep& step)
{
    const Ids selected = difference(sorted(idsOf(m_state.selected)), step.selected.ids());
    const Ids highlighted = difference(sorted(idsOf(m_state.highlighted)), step.highlighted.ids());
    std::vector<QRectF> areas = exchange(step);
    m_state.selected = indexesOf(selected);
    m_state.highlighted = indexesOf(highlighted);
    for (const Pcb::IdSet& toggled : {step.selected, step.highlighted}) {
        for (const int index : indexesOf(toggled.ids())) {
            areas.push_back(m_state.board.features[static_cast<size_t>(index)].bounds());
        }
    }
    substitute(step.marks, m_state.marks);
    Q_EMIT repainted(areas);
    Q_EMIT changed();
}

/// Replaces features by others; returns the areas of all of them.
std::vector<QRectF> Document::exchange(const DocumentStep& step)
{
    std::vector<QRectF> areas;
    Pcb::Features& features = m_state.board.features;
    for (const Pcb::Splice<int>& splice : step.ids) {
        for (int index = splice.index; index < splice.index + splice.count; ++index) {
            const int id = m_ids[static_cast<size_t>(index)];
            const QRectF& bounds = features[static_cast<size_t>(index)].bounds();
            m_boxes.remove(id, bounds);
            m_places[static_cast<size_t>(id)] = -1;
            areas.push_back(bounds);
        }
    }
    m_revision += step.features.empty() ? 0 : 1;
    substitute(step.features, features);
    substitute(step.ids, m_ids);
    if (!step.ids.empty()) {
        for (size_t i = static_cast<size_t>(step.ids.front().index); i < m_ids.size(); ++i) {
            m_places[static_cast<size_t>(m_ids[i])] = static_cast<int>(i);
        }
    }
    for (const Pcb::Splice<int>& splice : step.ids) {
        for (const int id : splice.entries) {
            const int index = m_places[static_cast<size_t>(id)];
            addFeature(index);
            areas.push_back(features[static_cast<size_t>(index)].bounds());
        }
    }
    return areas;
}

void Document::addFeature(int index)
{
    const Pcb::Feature& feature = m_state.board.features[static_cast<size_t>(index)];
    const int id = m_ids[static_cast<size_t>(index)];
    m_sketches[static_cast<size_t>(id)] = Pcb::Sketch(feature);
    m_boxes.insert(id, feature.bounds());
    m_bounds |= feature.bounds();
}

void Document::replace(const Pcb::Board& board)
{
    m_history.clear();
    setBoard(board);
    Q_EMIT replaced();
    Q_EMIT changed();
}

void Document::replaceUnsaved(const Pcb::Board& board)
{
    replace(board);
    m_history.resetClean();
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

void Document::setBoard(const Pcb::Board& board)
{
    ++m_revision;
    m_state = {board, {}, {}, {}};
    m_boxes = {};
    m_bounds = board.outline.boundingRect();
    m_ids.resize(board.features.size());
    m_sketches.resize(board.features.size());
    for (int index = 0; index < static_cast<int>(m_ids.size()); ++index) {
        m_ids[static_cast<size_t>(index)] = index;
        addFeature(index);
    }
    m_places = m_ids;
}

Document::Ids Document::idsOf(const Pcb::Indexes& indexes) const
{
    Ids ids;
    ids.reserve(indexes.size());
    for (const int index : indexes) {
        ids.push_back(m_ids[static_cast<size_t>(index)]);
    }
    return ids;
}

Pcb::Indexes Document::indexesOf(const Ids& ids) const
{
    Pcb::Indexes indexes;
    for (const int id : ids) {
        const int index = m_places[static_cast<size_t>(id)];
        if (index >= 0) {
            indexes.push_back(index);
        }
    }
    return sorted(indexes);
}

Pcb::Indexes Document::featuresIn(const QRectF& area) const
{
    const Ids ids = m_boxes.meeting(area);
    if (ids.size() < m_ids.size()) {
        return indexesOf(ids);
    }
    Pcb::Indexes all(m_ids.size());
    std::iota(all.begin(), all.end(), 0);
    return all;
}

int Document::featureAt(const QPointF& point, double tolerance) const
{
    const QPointF reach(tolerance, tolerance);
    return Pcb::featureAt(board(), featuresIn({point - reach, point + reach}), point, tolerance);
}
