#pragma once

#include <QGraphicsView>

#include <optional>
#include <vector>

class BoardScene;

/// A view of the board: grid, wheel zoom, middle-button pan; passes on what the mouse does in board
/// coordinates (micrometres, y up).
class BoardView : public QGraphicsView {
    Q_OBJECT

public:
    explicit BoardView(BoardScene* scene, QWidget* parent = nullptr);

    /// Shows the whole board, also after the view is resized, until something else is shown.
    void fit();
    void showArea(const QRectF& area);
    /// Between the board as a tenth of the view and a micrometre to a pixel.
    void zoom(double factor);

    /// Draws lines at multiples of this step; 0: of a step that is easy to see.
    void setGrid(double step);

    /// Micrometres to a pixel.
    double pixelSize() const;

    /// Where a place of the board is in this widget, and the reverse, for those who control the
    /// canvas from outside.
    Q_INVOKABLE QPoint viewPoint(double x, double y) const;
    Q_INVOKABLE QPointF boardPoint(const QPoint& position) const;

    QSize sizeHint() const override { return {640, 460}; }

Q_SIGNALS:
    void pressed(const QPointF& point, bool extends);
    void moved(const QPointF& point);
    void released(const QPointF& point);
    void finished();  ///< a right click
    void left();

protected:
    void drawBackground(QPainter* painter, const QRectF& area) override;
    void drawForeground(QPainter* painter, const QRectF& area) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void updateAreas(const std::vector<QRectF>& areas);
    void updateAll();
    QRectF widened(const QRectF& area) const;
    void drawBoard(QPainter* painter, const QRectF& area) const;
    void panTo(const QPoint& position);
    void scrollBy(const QPoint& pixels);
    void scaleBy(double factor);
    void setScale(double pixelsPerMicrometre, const QPointF& centre);
    void tellPlace();
    void drawGrid(QPainter* painter, const QRectF& area) const;

    BoardScene* m_scene;
    double m_grid = 0;
    bool m_fits = true;
    bool m_isPanning = false;
    QPoint m_panFrom;
    std::optional<QPointF> m_cursor;  ///< where the mouse is in the viewport
};
