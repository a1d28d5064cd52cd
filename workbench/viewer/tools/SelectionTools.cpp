#include "viewer/tools/SelectionTools.h"

namespace {

void selectOn(Canvas& canvas, const QString& text, const Pcb::Indexes& picked, bool extends)
{
    Document& document = canvas.document();
    // A feature that is picked again is deselected.
    document.select(text, extends ? Pcb::toggled(document.state().selected, picked) : picked);
    const auto count = static_cast<int>(document.state().selected.size());
    canvas.say(
        QCoreApplication::translate("SelectionTools", "%n feature(s) selected.", nullptr, count));
}

Pcb::Indexes joinedLines(const Pcb::Board& board, int feature)
{
    return Pcb::polylineOf(board, feature);
}

}  // namespace

const Group Groups::layerNet = {
    QT_TRANSLATE_NOOP("SelectionTools", "Click a feature to select everything that touches it."),
    Pcb::touching};
const Group Groups::boardNet = {
    QT_TRANSLATE_NOOP("SelectionTools", "Click a feature to select its net."), Pcb::netOf};
const Group Groups::polyline = {
    QT_TRANSLATE_NOOP("SelectionTools", "Click a line to select its polyline."), joinedLines};

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
    return tr("Click a feature to select it; hold Ctrl to add one.");
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
