#include "viewer/BoardView.h"

#include "viewer/BoardScene.h"
#include "viewer/CanvasColours.h"
#include "viewer/FeaturePainter.h"
#include "viewer/OverlayPainter.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

namespace {

constexpr int margin = 24;        // pixels around the board
constexpr double leastGrid = 12;  // pixels between grid lines
constexpr double notch = 120;     // what a wheel reports for one step
constexpr double notchFactor = 1.25;
constexpr double finest = 1;        // pixels to a micrometre
constexpr double leastBoard = 0.1;  // of the view

/// The smallest of 1, 2, 5, 10, 20, ... times `first` that is not below `length`.
double gridStep(double first, double length)
{
    double step = first;
    while (step < length) {
        for (const double factor : {2.0, 2.5, 2.0}) {
            if (step < length) {
                step *= factor;
            }
        }
    }
    return step;
}

/// The multiples of `step` from `first` to `last`.
QVector<double> multiples(double first, double last, double step)
{
    const double begin = std::ceil(first / step) * step;
    const int count = begin > last ? 0 : static_cast<int>((last - begin) / step) + 1;
    QVector<double> all;
    for (int i = 0; i < count; ++i) {
        all.append(begin + i * step);
    }
    return all;
}

}  // namespace

BoardView::BoardView(BoardScene* scene, QWidget* parent)
    : QGraphicsView(scene, parent), m_scene(scene)
{
    setObjectName(QStringLiteral("m_pBoardView"));
    setFrameShape(QFrame::NoFrame);
    setRenderHint(QPainter::Antialiasing);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTransformationAnchor(QGraphicsView::NoAnchor);
    setResizeAnchor(QGraphicsView::AnchorViewCenter);
    setMinimumSize(240, 180);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    // The board is redrawn only where it has changed or has come into view.
    setCacheMode(QGraphicsView::CacheBackground);
    connect(scene, &BoardScene::repainted, this, &BoardView::updateAreas);
    connect(scene, &BoardScene::replaced, this, &BoardView::updateAll);
}

void BoardView::updateAreas(const std::vector<QRectF>& areas)
{
    constexpr size_t mostAreas = 100;
    if (areas.size() > mostAreas) {
        updateAll();
        return;
    }
    for (const QRectF& area : areas) {
        invalidateScene(widened(area), QGraphicsScene::BackgroundLayer);
    }
}

/// Edges, grid points and anything widened to be visible reach beyond their place.
QRectF BoardView::widened(const QRectF& area) const
{
    const double reach = 3 * pixelSize();
    return area.adjusted(-reach, -reach, reach, reach);
}

void BoardView::updateAll()
{
    invalidateScene(mapToScene(viewport()->rect()).boundingRect(), QGraphicsScene::BackgroundLayer);
}

void BoardView::fit()
{
    const QRectF board = Pcb::boundsOf(m_scene->document()->board());
    if (board.isValid()) {
        showArea(board);
    }
    m_fits = true;
}

void BoardView::showArea(const QRectF& area)
{
    const QSizeF room(qMax(1, viewport()->width() - 2 * margin),
                      qMax(1, viewport()->height() - 2 * margin));
    setScale(qMin(room.width() / qMax(area.width(), 1.0), room.height() / qMax(area.height(), 1.0)),
             area.center());
    m_fits = false;
    tellPlace();
}

void BoardView::zoom(double factor)
{
    scaleBy(factor);
    tellPlace();
}

void BoardView::scaleBy(double factor)
{
    const QPointF centre = boardPoint(viewport()->rect().center());
    setScale(factor / pixelSize(), centre);
    m_fits = false;
}

void BoardView::setGrid(double step)
{
    m_grid = step;
    resetCachedContent();
    viewport()->update();
}

void BoardView::setScale(double pixelsPerMicrometre, const QPointF& centre)
{
    const QRectF board = m_scene->document()->bounds();
    const double coarsest = leastBoard * qMin(viewport()->width() / qMax(board.width(), 1.0),
                                              viewport()->height() / qMax(board.height(), 1.0));
    const double scale = qBound(qMin(coarsest, finest), pixelsPerMicrometre, finest);
    setTransform(QTransform::fromScale(scale, -scale));
    centerOn(centre);
    updateAll();
}

/// The board has moved under a resting mouse.
void BoardView::tellPlace()
{
    if (m_cursor) {
        Q_EMIT moved(viewportTransform().inverted().map(*m_cursor));
    }
}

double BoardView::pixelSize() const
{
    return 1 / transform().m11();
}

QPoint BoardView::viewPoint(double x, double y) const
{
    return viewport()->mapToParent(mapFromScene(x, y));
}

QPointF BoardView::boardPoint(const QPoint& position) const
{
    return viewportTransform().inverted().map(QPointF(viewport()->mapFromParent(position)));
}

void BoardView::mousePressEvent(QMouseEvent* event)
{
    const QPointF point = viewportTransform().inverted().map(event->localPos());
    if (event->button() == Qt::LeftButton) {
        Q_EMIT pressed(point, event->modifiers() & Qt::ControlModifier);
    } else if (event->button() == Qt::RightButton) {
        Q_EMIT finished();
    } else if (event->button() == Qt::MiddleButton) {
        m_isPanning = true;
        m_panFrom = event->pos();
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
}

void BoardView::mouseMoveEvent(QMouseEvent* event)
{
    panTo(event->pos());
    m_cursor = event->localPos();
    tellPlace();
}

void BoardView::panTo(const QPoint& position)
{
    if (m_isPanning && position != m_panFrom) {
        scrollBy(m_panFrom - position);
        m_panFrom = position;
        m_fits = false;
    }
}

void BoardView::scrollBy(const QPoint& pixels)
{
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + pixels.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + pixels.y());
}

void BoardView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton) {
        panTo(event->pos());
        m_isPanning = false;
        viewport()->unsetCursor();
    } else if (event->button() == Qt::LeftButton) {
        Q_EMIT released(viewportTransform().inverted().map(event->localPos()));
    }
}

void BoardView::wheelEvent(QWheelEvent* event)
{
    const QPoint cursor = event->position().toPoint();
    const QPointF before = mapToScene(cursor);
    scaleBy(std::pow(notchFactor, event->angleDelta().y() / notch));
    // What was under the cursor stays there.
    scrollBy(mapFromScene(before) - cursor);
    m_cursor = event->position();
    tellPlace();
    event->accept();
}

void BoardView::keyPressEvent(QKeyEvent* event)
{
    QGraphicsView::keyPressEvent(event);
    tellPlace();  // the arrows scroll
}

void BoardView::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();  // the right button belongs to the tools
}

void BoardView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    if (m_fits && m_scene->document()) {
        fit();
    }
}

void BoardView::leaveEvent(QEvent* event)
{
    QGraphicsView::leaveEvent(event);
    m_cursor.reset();
    Q_EMIT left();
}

void BoardView::drawBackground(QPainter* painter, const QRectF& area)
{
    const QTransform toView = painter->worldTransform();
    painter->resetTransform();
    const QRegion exposed = painter->hasClipping() ? painter->clipRegion()
                                                   : QRegion(toView.mapRect(area).toAlignedRect());
    // Clipped to each part: where the widened areas overlap, all would be drawn twice.
    for (const QRect& part : exposed) {
        painter->save();
        painter->setClipRect(part);
        painter->setTransform(toView);
        drawBoard(painter, widened(toView.inverted().mapRect(QRectF(part))));
        painter->restore();
    }
    painter->setTransform(toView);
}

void BoardView::drawBoard(QPainter* painter, const QRectF& area) const
{
    painter->setRenderHints(renderHints());  // a kept background is drawn without them
    painter->fillRect(area, CanvasColours::ground);
    painter->setPen(QPen(CanvasColours::boardEdge, 0));
    painter->setBrush(CanvasColours::boardGround);
    painter->drawPolygon(m_scene->document()->board().outline);
    drawGrid(painter, area);
    paintFeatures(*painter, *m_scene->document(), area);
}

void BoardView::drawGrid(QPainter* painter, const QRectF& area) const
{
    const double step = gridStep(m_grid > 0 ? m_grid : 1, leastGrid * pixelSize());
    const QRectF board = m_scene->document()->board().outline.boundingRect() & area;
    QVector<QLineF> lines;
    QVector<QPointF> points;
    for (const double x : multiples(board.left(), board.right(), step)) {
        lines.append({x, board.top(), x, board.bottom()});
    }
    for (const double y : multiples(board.top(), board.bottom(), step)) {
        lines.append({board.left(), y, board.right(), y});
    }
    const double wide = 5 * step;
    const QVector<double> wideRows = multiples(board.top(), board.bottom(), wide);
    for (const double x : multiples(board.left(), board.right(), wide)) {
        for (const double y : wideRows) {
            points.append({x, y});
        }
    }
    painter->setPen(QPen(CanvasColours::gridLine, 0));
    painter->drawLines(lines);
    QPen pen(CanvasColours::gridPoint, 2.5);
    pen.setCosmetic(true);
    pen.setCapStyle(Qt::RoundCap);
    painter->setPen(pen);
    painter->drawPoints(points.constData(), points.size());
}

void BoardView::drawForeground(QPainter* painter, const QRectF& /*area*/)
{
    const Document& document = *m_scene->document();
    if (m_scene->hovered() >= 0) {
        painter->setPen(QPen(CanvasColours::hovered, 0));
        painter->setBrush(Qt::NoBrush);
        const Pcb::Feature& hovered = document.board().features[size_t(m_scene->hovered())];
        painter->drawPath(hovered.area());
        painter->drawPath(hovered.unknown());
    }
    paintOverlay(*painter, viewportTransform(), m_scene->overlay(), document.state().marks,
                 viewport()->rect());
}
