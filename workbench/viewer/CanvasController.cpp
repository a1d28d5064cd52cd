#include "viewer/CanvasController.h"

#include "viewer/BoardView.h"
#include "viewer/DemoBoard.h"

#include <UiApiStandIn.h>

#include <QScopedValueRollback>

#include <utility>

namespace {

constexpr double pickDistance = 4;  // pixels
constexpr double snapDistance = 10;

/// A usual one in the user's system of units, in micrometres.
double usualGridStep()
{
    const bool isMetric = CanvasHost::displayUnit() == CanvasHost::DisplayUnit::Micrometre ||
                          CanvasHost::displayUnit() == CanvasHost::DisplayUnit::Millimetre;
    return isMetric ? 500 : 635;
}

}  // namespace

CanvasController::CanvasController(QObject* parent) : QObject(parent), m_gridStep(usualGridStep())
{
    openStep({}, {});
}

CanvasController::~CanvasController()
{
    setTool(nullptr);
}

void CanvasController::openStep(const QString& job, const QString& step)
{
    std::unique_ptr<Document>& document = m_steps[{job, step}];
    if (!document) {
        document = std::make_unique<Document>(demoBoard(job, step));
        m_histories.addStack(&document->history());
    }
    if (m_document == document.get()) {
        return;
    }
    if (m_document) {
        cancel();
        disconnect(m_document, nullptr, this, nullptr);
    }
    m_document = document.get();
    m_open = {job, step};
    m_lastPoint.reset();
    m_histories.setActiveStack(&m_document->history());
    m_scene.setDocument(m_document);
    // What was started refers to features that may be others now.
    connect(m_document, &Document::changed, this, [this] {
        if (!m_isAtWork) {
            cancel();
        }
        hover(m_cursor);
    });
    connect(m_document, &Document::replaced, this, [this] { m_lastPoint.reset(); });
    Q_EMIT documentOpened();
}

void CanvasController::closeAll()
{
    // They go when another one is shown.
    const auto closed = std::exchange(m_steps, {});
    openStep({}, {});
}

void CanvasController::connectView(BoardView* view)
{
    m_view = m_view ? m_view.data() : view;
    m_views.emplace_back(view);
    showGrid();
    connect(view, &BoardView::pressed, this, [this, view](const QPointF& point, bool extends) {
        m_view = view;
        press(point, extends);
    });
    connect(view, &BoardView::moved, this, [this, view](const QPointF& point) {
        m_view = view;
        move(point);
    });
    connect(view, &BoardView::released, this, &CanvasController::release);
    connect(view, &BoardView::finished, this, &CanvasController::finish);
    connect(view, &BoardView::left, this, [this] {
        m_snap.reset();
        hover({});
        refresh();
    });
}

void CanvasController::setSnapping(bool snaps)
{
    m_snaps = snaps;
    showGrid();
}

void CanvasController::setGridStep(double step)
{
    m_gridStep = step;
    showGrid();
}

/// The visible grid is the one that points snap to.
void CanvasController::showGrid()
{
    for (const QPointer<BoardView>& view : m_views) {
        if (view) {
            view->setGrid(m_snaps ? m_gridStep : 0);
        }
    }
    if (m_cursor) {
        aim(*m_cursor);
        refresh();
    }
}

Snapping::Place CanvasController::nearest(const QPointF& point) const
{
    const double reach = m_view ? snapDistance * m_view->pixelSize() : 0;
    return Snapping::nearest(m_document->board(), point, reach, m_gridStep);
}

QPointF CanvasController::snapped(const QPointF& point) const
{
    return m_snaps ? nearest(point).point : point;
}

QPointF CanvasController::aim(const QPointF& point)
{
    m_snap.reset();
    if (m_snaps && m_tool && m_tool->takesPlace()) {
        m_snap = nearest(point);
    }
    return m_snap ? m_snap->point : point;
}

void CanvasController::clickAt(const QPointF& place)
{
    const QScopedValueRollback<bool> exact(m_snaps, false);
    move(place);
    press(place, false);
    release(place);
}

template <typename Work>
void CanvasController::atWork(Work work)
{
    if (m_tool) {
        const QScopedValueRollback<bool> own(m_isAtWork, true);
        work(*m_tool);
    }
}

void CanvasController::press(const QPointF& point, bool extends)
{
    atWork([&](CanvasTool& tool) {
        const QPointF place = aim(point);
        m_lastPoint = tool.taken(place);
        tool.press(place, extends);
    });
    aim(point);
    refresh();
}

void CanvasController::move(const QPointF& point)
{
    const QPointF place = aim(point);
    atWork([&](CanvasTool& tool) { tool.move(place); });
    hover(point);
    refresh();
    Q_EMIT moved(place);
}

void CanvasController::release(const QPointF& point)
{
    atWork([&](CanvasTool& tool) { tool.release(aim(point)); });
    refresh();
}

void CanvasController::finish()
{
    atWork([](CanvasTool& tool) { tool.finish(); });
    refresh();
}

void CanvasController::setTool(std::unique_ptr<CanvasTool> tool)
{
    m_tool = std::move(tool);
    m_snap.reset();
    refresh();
}

void CanvasController::cancel()
{
    if (m_tool) {
        m_tool->cancel();
    }
    refresh();
}

void CanvasController::refresh()
{
    Overlay overlay = m_tool ? m_tool->overlay() : Overlay{};
    overlay.snap = m_snap;
    m_scene.setOverlay(overlay);
    Q_EMIT hintChanged();
}

int CanvasController::featureAt(const QPointF& point) const
{
    return m_document->featureAt(point, tolerance());
}

double CanvasController::tolerance() const
{
    return m_view ? pickDistance * m_view->pixelSize() : 0;
}

void CanvasController::showArea(const QRectF& area)
{
    if (m_view) {
        m_view->showArea(area);
    }
}

void CanvasController::hover(const std::optional<QPointF>& cursor)
{
    m_cursor = cursor;
    const int feature = cursor ? featureAt(*cursor) : -1;
    m_scene.setHovered(feature);
    Q_EMIT hovered(feature);
}
