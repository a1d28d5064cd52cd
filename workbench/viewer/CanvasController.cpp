#include "viewer/CanvasController.h"

#include "viewer/BoardView.h"
#include "viewer/DemoBoard.h"

#include <utility>

namespace {

constexpr double pickDistance = 4;  // pixels

}  // namespace

CanvasController::CanvasController(QObject* parent) : QObject(parent)
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
    m_histories.setActiveStack(&m_document->history());
    m_scene.setDocument(m_document);
    // What was begun refers to features that may be others now.
    connect(m_document, &Document::changed, this, [this] {
        cancel();
        hover(m_cursor);
    });
    Q_EMIT documentOpened();
}

void CanvasController::connectView(BoardView* view)
{
    m_view = m_view ? m_view : view;
    connect(view, &BoardView::pressed, this, [this](const QPointF& point, bool extends) {
        if (m_tool) {
            m_tool->press(point, extends);
        }
        refresh();
    });
    connect(view, &BoardView::moved, this, [this](const QPointF& point) {
        if (m_tool) {
            m_tool->move(point);
        }
        hover(point);
        refresh();
        Q_EMIT moved(point);
    });
    connect(view, &BoardView::released, this, [this](const QPointF& point) {
        if (m_tool) {
            m_tool->release(point);
        }
        refresh();
    });
    connect(view, &BoardView::finished, this, [this] {
        if (m_tool) {
            m_tool->finish();
        }
        refresh();
    });
    connect(view, &BoardView::left, this, [this] { hover({}); });
}

void CanvasController::setTool(std::unique_ptr<CanvasTool> tool)
{
    m_tool = std::move(tool);
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
    m_scene.setOverlay(m_tool ? m_tool->overlay() : Overlay{});
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
