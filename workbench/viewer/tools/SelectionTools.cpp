#include "viewer/tools/SelectionTools.h"

#include <algorithm>
#include <iterator>

namespace {

/// Both together where the selection is extended, else the new ones alone. What is picked again
/// one by one is given up.
Pcb::Indexes joined(const Pcb::Indexes& before, const Pcb::Indexes& picked, bool extends)
{
    if (!extends) {
        return picked;
    }
    Pcb::Indexes all;
    if (std::includes(before.begin(), before.end(), picked.begin(), picked.end())) {
        std::set_difference(before.begin(), before.end(), picked.begin(), picked.end(),
                            std::back_inserter(all));
    } else {
        std::set_union(before.begin(), before.end(), picked.begin(), picked.end(),
                       std::back_inserter(all));
    }
    return all;
}

void selectOn(Canvas& canvas, const QString& text, const Pcb::Indexes& picked, bool extends)
{
    Document& document = canvas.document();
    document.select(text, joined(document.state().selected, picked, extends));
    const auto count = static_cast<int>(document.state().selected.size());
    canvas.say(
        QCoreApplication::translate("SelectionTools", "%n feature(s) selected.", nullptr, count));
}

}  // namespace

void FeatureSelectionTool::press(const QPointF& point, bool extends)
{
    const int feature = canvas().featureAt(point);
    if (feature >= 0) {
        selectOn(canvas(), tr("Select"), pickedBy(feature), extends);
    } else if (!extends) {
        selectOn(canvas(), tr("Select nothing"), {}, false);
    }
}

QString FeatureSelectionTool::hint() const
{
    return tr("Click a feature to select it; with Ctrl one more.");
}

Pcb::Indexes NetSelectionTool::pickedBy(int feature) const
{
    switch (m_mode) {
        case Mode::Layer:
            return Pcb::touching(board(), feature);
        case Mode::Board:
            return Pcb::netOf(board(), feature);
        case Mode::Polyline:
            return Pcb::polylineOf(board(), feature);
    }
    return {};
}

QString NetSelectionTool::hint() const
{
    switch (m_mode) {
        case Mode::Layer:
            return tr("Click a feature to select all that touches it.");
        case Mode::Board:
            return tr("Click a feature to select its net.");
        case Mode::Polyline:
            return tr("Click a line to select its polyline.");
    }
    return {};
}

void RectangleSelectionTool::take(const QRectF& rectangle, bool extends)
{
    selectOn(canvas(), tr("Select a rectangle"), Pcb::insideRectangle(board(), rectangle), extends);
}

QString RectangleSelectionTool::hint() const
{
    return isActive() ? tr("Click the opposite corner.")
                      : tr("Drag a rectangle, or click two corners.");
}

void PolygonSelectionTool::press(const QPointF& point, bool extends)
{
    m_extends = extends;
    m_corners.append(point);
    m_cursor = point;
}

void PolygonSelectionTool::finish()
{
    if (m_corners.size() >= 3) {
        selectOn(canvas(), tr("Select a polygon"), Pcb::insidePolygon(board(), m_corners),
                 m_extends);
    }
    cancel();
}

Overlay PolygonSelectionTool::overlay() const
{
    QPainterPath path;
    if (!m_corners.isEmpty()) {
        path.addPolygon(QPolygonF(m_corners + QVector<QPointF>{m_cursor}));
        path.closeSubpath();
    }
    return {{}, path, {}};
}

QString PolygonSelectionTool::hint() const
{
    return m_corners.isEmpty() ? tr("Click the corners of a polygon.")
                               : tr("Click the next corner; a right click ends the polygon.");
}
