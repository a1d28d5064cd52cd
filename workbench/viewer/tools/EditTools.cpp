#include "viewer/tools/EditTools.h"

#include <QLineF>

#include <algorithm>

namespace {

/// The selection when the feature belongs to it, else the feature alone.
Pcb::Indexes meantBy(const Document& document, int feature)
{
    const Pcb::Indexes& selected = document.state().selected;
    return Pcb::contains(selected, feature) ? selected : Pcb::Indexes{feature};
}

const Pcb::Feature& featureOf(const Pcb::Board& board, int index)
{
    return board.features[static_cast<size_t>(index)];
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

using Edited = std::optional<Pcb::Edit>;

Edited withoutMeant(const Pcb::Board& board, const FeatureClick& click)
{
    return Pcb::without(board, click.meant);
}

Edited withoutToIntersection(const Pcb::Board& board, const FeatureClick& click)
{
    const auto left = Pcb::deletedToIntersection(board, click.feature, click.point);
    return left ? Pcb::withReplaced(board, click.feature, *left) : Edited();
}

Edited withInverted(const Pcb::Board& board, const FeatureClick& click)
{
    return Pcb::withInverted(board, click.meant);
}

Edited withRotated(const Pcb::Board& board, const FeatureClick& click)
{
    return Pcb::withEach(board, click.meant,
                         [centre = centreOf(board, click.meant)](const Pcb::Feature& old) {
                             return Pcb::rotated(old, centre, quarterTurn);
                         });
}

Edited withMirrored(const Pcb::Board& board, const FeatureClick& click)
{
    return Pcb::withEach(board, click.meant,
                         [centre = centreOf(board, click.meant)](const Pcb::Feature& old) {
                             return Pcb::mirrored(old, centre.x());
                         });
}

Edited withBroken(const Pcb::Board& board, const FeatureClick& click)
{
    const Pcb::Features parts = Pcb::broken(featureOf(board, click.feature), click.point);
    return parts.empty() ? Edited() : Pcb::withReplaced(board, click.feature, parts);
}

/// Whole degrees, as the fixed angle of the dialog has them.
std::optional<Pcb::Feature> turnedTo(const Pcb::Feature& feature, Pcb::End end, const QPointF& to)
{
    const bool isFirst = end == Pcb::End::First;
    const QVector<QPointF>& points = feature.geometry().points;
    if (points.size() < 2) {
        return {};
    }
    // The board counts counterclockwise with y upwards, QLineF with y downwards.
    const QLineF towards(points[isFirst ? 1 : 0], to);
    const double degrees = qRound(360 - towards.angle()) % 360;
    return Pcb::withAngle(feature, degrees, isFirst ? Pcb::End::Second : Pcb::End::First);
}

}  // namespace

const ClickEdit Edits::remove = {QT_TRANSLATE_NOOP("EditTools", "Delete feature"),
                                 QT_TRANSLATE_NOOP("EditTools", "Click a feature to delete it."),
                                 withoutMeant};
const ClickEdit Edits::removeToIntersection = {
    QT_TRANSLATE_NOOP("EditTools", "Delete to intersection"),
    QT_TRANSLATE_NOOP("EditTools", "Click the part of a line to delete."), withoutToIntersection};
const ClickEdit Edits::invert = {
    QT_TRANSLATE_NOOP("EditTools", "Invert feature"),
    QT_TRANSLATE_NOOP("EditTools", "Click a feature to invert its polarity."), withInverted};
const ClickEdit Edits::rotate = {
    QT_TRANSLATE_NOOP("EditTools", "Rotate feature"),
    QT_TRANSLATE_NOOP("EditTools", "Click a feature to turn it by 90 degrees."), withRotated};
const ClickEdit Edits::mirror = {QT_TRANSLATE_NOOP("EditTools", "Mirror feature"),
                                 QT_TRANSLATE_NOOP("EditTools", "Click a feature to mirror it."),
                                 withMirrored};
const ClickEdit Edits::breakLine = {
    QT_TRANSLATE_NOOP("EditTools", "Break line"),
    QT_TRANSLATE_NOOP("EditTools", "Click a line where it should break."), withBroken};
const MoveEdit Edits::move = {QT_TRANSLATE_NOOP("EditTools", "Move feature"),
                              QT_TRANSLATE_NOOP("EditTools", "Click a feature to move it."),
                              Pcb::withMoved, false};
const MoveEdit Edits::copy = {QT_TRANSLATE_NOOP("EditTools", "Copy feature"),
                              QT_TRANSLATE_NOOP("EditTools", "Click a feature to copy it."),
                              Pcb::withCopied, true};
const LineEndEdit Edits::changeAngle = {QT_TRANSLATE_NOOP("EditTools", "Change line angle"),
                                        QT_TRANSLATE_NOOP("EditTools", "Click the new direction."),
                                        turnedTo};
const LineEndEdit Edits::stretch = {
    QT_TRANSLATE_NOOP("EditTools", "Stretch line"),
    QT_TRANSLATE_NOOP("EditTools", "Click the new position of the end."), Pcb::stretched};

void ClickEditTool::press(const QPointF& point, bool /*extends*/)
{
    const int feature = canvas().featureAt(point);
    if (feature < 0) {
        canvas().say(tr("No feature here."));
        return;
    }
    const FeatureClick click{feature, meantBy(document(), feature), point};
    if (const auto after = m_edit.edited(board(), click)) {
        document().applyBoard(tr(m_edit.name), *after);
    } else {
        canvas().say(tr("%1 is for lines and arcs.").arg(tr(m_edit.name)));
    }
}

QPointF MoveTool::taken(const QPointF& place) const
{
    return m_grabbed.empty() ? canvas().snapped(place) : place;
}

void MoveTool::press(const QPointF& point, bool /*extends*/)
{
    if (!m_grabbed.empty()) {
        drop(point);
        return;
    }
    const int feature = canvas().featureAt(point);
    if (feature < 0) {
        canvas().say(tr("No feature here."));
        return;
    }
    m_grabbed = meantBy(document(), feature);
    m_from = m_cursor = canvas().snapped(point);
}

void MoveTool::release(const QPointF& point)
{
    if (!m_grabbed.empty() && QLineF(m_from, point).length() > canvas().tolerance()) {
        drop(point);
    }
}

void MoveTool::drop(const QPointF& point)
{
    const Pcb::Edit edit = m_edit.edited(board(), m_grabbed, point - m_from);
    if (m_edit.selectsAdded) {
        document().applyAndSelect(tr(m_edit.name), edit);
    } else {
        document().applyBoard(tr(m_edit.name), edit);
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
    return m_grabbed.empty() ? tr(m_edit.hint)
                             : tr("Click the new position; a right click cancels.");
}

/// The end itself, not where it was clicked.
QPointF LineEndTool::taken(const QPointF& place) const
{
    const int feature = m_feature < 0 ? canvas().featureAt(place) : -1;
    if (feature < 0 || !m_edit.edited(featureOf(board(), feature), Pcb::End::First, place)) {
        return place;
    }
    const Pcb::Feature& line = featureOf(board(), feature);
    const bool isFirst = Pcb::nearerEnd(line, place) == Pcb::End::First;
    return line.geometry().points.value(isFirst ? 0 : 1, place);
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
        document().applyBoard(tr(m_edit.name), Pcb::withReplaced(board(), m_feature, {*after}));
    }
    cancel();
}

std::optional<Pcb::Feature> LineEndTool::changed(const QPointF& to) const
{
    return m_edit.edited(featureOf(board(), m_feature), m_end, to);
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
    return m_feature < 0 ? tr("Click near the line end to move.") : tr(m_edit.hint);
}
