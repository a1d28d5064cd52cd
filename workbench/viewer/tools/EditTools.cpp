#include "viewer/tools/EditTools.h"

#include <QLineF>

#include <algorithm>

namespace {

/// The selection when the feature belongs to it, else the feature alone.
Pcb::Indexes meantBy(const Document& document, int feature)
{
    const Pcb::Indexes& selected = document.state().selected;
    const bool isSelected = std::binary_search(selected.begin(), selected.end(), feature);
    return isSelected ? selected : Pcb::Indexes{feature};
}

const Pcb::Feature& featureOf(const Pcb::Board& board, int index)
{
    return board.features[static_cast<size_t>(index)];
}

/// Each of the features changed by itself; the others stay.
template <class Change>
Pcb::Board withEach(const Pcb::Board& board, const Pcb::Indexes& indexes, Change change)
{
    Pcb::Board after = board;
    for (const int index : indexes) {
        auto& feature = after.features[static_cast<size_t>(index)];
        feature = change(feature);
    }
    return after;
}

QPointF centreOf(const Pcb::Board& board, const Pcb::Indexes& indexes)
{
    QRectF bounds;
    for (const int index : indexes) {
        bounds |= featureOf(board, index).bounds();
    }
    return bounds.center();
}

constexpr double quarterTurn = 90;

}  // namespace

void ClickEditTool::press(const QPointF& point, bool /*extends*/)
{
    const int feature = canvas().featureAt(point);
    if (feature < 0) {
        canvas().say(tr("There is no feature."));
        return;
    }
    if (const std::optional<Pcb::Board> after = edited(feature, point)) {
        document().applyBoard(name(), *after);
    } else {
        canvas().say(tr("%1 is for lines and arcs.").arg(name()));
    }
}

std::optional<Pcb::Board> ClickEditTool::edited(int feature, const QPointF& point) const
{
    const Pcb::Indexes meant = meantBy(document(), feature);
    const QPointF centre = centreOf(board(), meant);
    switch (m_edit) {
        case Edit::Delete:
            return Pcb::without(board(), meant);
        case Edit::Invert:
            return Pcb::withInverted(board(), meant);
        case Edit::Rotate:
            return withEach(board(), meant, [&](const Pcb::Feature& old) {
                return Pcb::rotated(old, centre, quarterTurn);
            });
        case Edit::Mirror:
            return withEach(board(), meant, [&](const Pcb::Feature& old) {
                return Pcb::mirrored(old, centre.x());
            });
        case Edit::DeleteToIntersection:
            if (const auto left = Pcb::deletedToIntersection(board(), feature, point)) {
                return Pcb::withReplaced(board(), feature, *left);
            }
            return {};
        case Edit::Break: {
            const Pcb::Features parts = Pcb::broken(featureOf(board(), feature), point);
            return parts.empty() ? std::optional<Pcb::Board>()
                                 : Pcb::withReplaced(board(), feature, parts);
        }
    }
    return {};
}

QString ClickEditTool::name() const
{
    switch (m_edit) {
        case Edit::Delete:
            return tr("Delete feature");
        case Edit::DeleteToIntersection:
            return tr("Delete to intersection");
        case Edit::Invert:
            return tr("Invert feature");
        case Edit::Rotate:
            return tr("Rotate feature");
        case Edit::Mirror:
            return tr("Mirror feature");
        case Edit::Break:
            return tr("Break line");
    }
    return {};
}

QString ClickEditTool::hint() const
{
    switch (m_edit) {
        case Edit::Delete:
            return tr("Click a feature to delete it.");
        case Edit::DeleteToIntersection:
            return tr("Click the part of a line that is to go.");
        case Edit::Invert:
            return tr("Click a feature to invert its polarity.");
        case Edit::Rotate:
            return tr("Click a feature to turn it by 90 degrees.");
        case Edit::Mirror:
            return tr("Click a feature to mirror it.");
        case Edit::Break:
            return tr("Click the place where a line is to break.");
    }
    return {};
}

void MoveTool::press(const QPointF& point, bool /*extends*/)
{
    if (!m_grabbed.empty()) {
        drop(point);
        return;
    }
    const int feature = canvas().featureAt(point);
    if (feature < 0) {
        canvas().say(tr("There is no feature."));
        return;
    }
    m_grabbed = meantBy(document(), feature);
    m_from = m_cursor = point;
}

void MoveTool::release(const QPointF& point)
{
    if (!m_grabbed.empty() && QLineF(m_from, point).length() > canvas().tolerance()) {
        drop(point);
    }
}

void MoveTool::drop(const QPointF& point)
{
    const QPointF by = point - m_from;
    if (m_way == Way::Move) {
        document().applyBoard(tr("Move feature"), Pcb::withMoved(board(), m_grabbed, by));
    } else {
        document().applyBoard(tr("Copy feature"), Pcb::withCopied(board(), m_grabbed, by));
    }
    cancel();
}

Overlay MoveTool::overlay() const
{
    Overlay overlay;
    for (const int index : m_grabbed) {
        overlay.preview.push_back(Pcb::moved(featureOf(board(), index), m_cursor - m_from));
    }
    if (!m_grabbed.empty()) {
        overlay.rubber.moveTo(m_from);
        overlay.rubber.lineTo(m_cursor);
    }
    return overlay;
}

QString MoveTool::hint() const
{
    if (!m_grabbed.empty()) {
        return tr("Click the place where it is to go; a right click gives it up.");
    }
    return m_way == Way::Move ? tr("Click a feature to move it.")
                              : tr("Click a feature to copy it.");
}

void LineEndTool::press(const QPointF& point, bool /*extends*/)
{
    if (m_feature < 0) {
        const int feature = canvas().featureAt(point);
        m_cursor = point;
        if (feature >= 0) {
            m_feature = feature;
            m_end = Pcb::nearerEnd(featureOf(board(), feature), point);
        }
        if (feature < 0 || !changed(point)) {
            canvas().say(tr("Click near the end of a line."));
            cancel();
        }
        return;
    }
    if (const auto after = changed(point)) {
        document().applyBoard(m_way == Way::Angle ? tr("Change line angle") : tr("Stretch line"),
                              Pcb::withReplaced(board(), m_feature, {*after}));
    }
    cancel();
}

std::optional<Pcb::Feature> LineEndTool::changed(const QPointF& to) const
{
    const Pcb::Feature& feature = featureOf(board(), m_feature);
    if (m_way == Way::Stretch) {
        return Pcb::stretched(feature, m_end, to);
    }
    const bool isFirst = m_end == Pcb::End::First;
    const QVector<QPointF>& points = feature.geometry().points;
    if (points.size() < 2) {
        return {};
    }
    // Whole degrees, as the fixed angle of the dialog has them; the board counts counterclockwise
    // with y upwards, QLineF with y downwards.
    const QLineF towards(points[isFirst ? 1 : 0], to);
    const double degrees = qRound(360 - towards.angle()) % 360;
    return Pcb::withAngle(feature, degrees, isFirst ? Pcb::End::Second : Pcb::End::First);
}

Overlay LineEndTool::overlay() const
{
    Overlay overlay;
    if (m_feature >= 0) {
        if (const auto preview = changed(m_cursor)) {
            overlay.preview.push_back(*preview);
        }
    }
    return overlay;
}

QString LineEndTool::hint() const
{
    if (m_feature < 0) {
        return tr("Click near the end of a line that is to move.");
    }
    return m_way == Way::Angle ? tr("Click the direction that it is to have.")
                               : tr("Click the place of the end.");
}
