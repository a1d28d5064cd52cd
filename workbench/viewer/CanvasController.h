#pragma once

#include "viewer/BoardScene.h"
#include "viewer/CanvasTool.h"
#include "viewer/Document.h"

#include <QObject>
#include <QPointer>
#include <QUndoGroup>

#include <map>
#include <memory>
#include <optional>

class BoardView;

/// Brings together the open step, the tool at work and the views: user input in a view goes to the
/// tool, and what the tool draws goes to the scene.
class CanvasController : public QObject, public Canvas {
    Q_OBJECT

public:
    explicit CanvasController(QObject* parent = nullptr);
    ~CanvasController() override;

    /// Each step has a document of its own, which it keeps.
    void openStep(const QString& job, const QString& step);
    /// Forgets the documents of all steps; what is shown is that of no step.
    void closeAll();
    QString job() const { return m_open.first; }
    QString step() const { return m_open.second; }
    QUndoGroup& histories() { return m_histories; }
    BoardScene& scene() { return m_scene; }

    /// The tools show things in the view that was used last; at first in the first one.
    void connectView(BoardView* view);

    /// Points that tools ask for snap to the grid, and to ends and centres of features.
    void setSnapping(bool snaps);
    /// In micrometres; above 0.
    void setGridStep(double step);
    double gridStep() const { return m_gridStep; }
    /// As a click exactly there.
    void clickAt(const QPointF& place);
    /// What the last click gave, on the board that is shown.
    const std::optional<QPointF>& lastPoint() const { return m_lastPoint; }

    /// Null: clicks do nothing.
    void setTool(std::unique_ptr<CanvasTool> tool);
    CanvasTool* tool() const { return m_tool.get(); }
    QString hint() const { return m_tool ? m_tool->hint() : QString(); }
    /// Cancels what was started; the tool stays.
    void cancel();
    /// The tool was told something from outside: redraws it.
    void refresh();

    // Canvas
    Document& document() override { return *m_document; }
    int featureAt(const QPointF& point) const override;
    double tolerance() const override;
    QPointF snapped(const QPointF& point) const override;
    void showArea(const QRectF& area) override;
    void say(const QString& text) override { Q_EMIT said(text); }

Q_SIGNALS:
    void said(const QString& text);
    void hintChanged();
    void documentOpened();
    void moved(const QPointF& point);
    void hovered(int feature);  ///< -1: none

private:
    /// Lets the tool do `work`: what it changes itself does not cancel it.
    template <typename Work>
    void atWork(Work work);
    void press(const QPointF& point, bool extends);
    void move(const QPointF& point);
    void release(const QPointF& point);
    void finish();
    /// Where the tool gets the point.
    QPointF aim(const QPointF& point);
    void showGrid();
    Snapping::Place nearest(const QPointF& point) const;
    /// Nothing: the mouse is outside all views.
    void hover(const std::optional<QPointF>& cursor);

    BoardScene m_scene;
    QUndoGroup m_histories;
    std::map<std::pair<QString, QString>, std::unique_ptr<Document>> m_steps;
    std::pair<QString, QString> m_open;  ///< job and step
    Document* m_document = nullptr;
    std::vector<QPointer<BoardView>> m_views;
    QPointer<BoardView> m_view;
    std::unique_ptr<CanvasTool> m_tool;
    std::optional<QPointF> m_cursor;
    std::optional<QPointF> m_lastPoint;
    bool m_isAtWork = false;
    bool m_snaps = false;
    double m_gridStep;
    std::optional<Snapping::Place> m_snap;  ///< of the cursor, when the tool asks for a place
};
