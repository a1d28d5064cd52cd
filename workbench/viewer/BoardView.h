#pragma once

#include <QGraphicsView>

class BoardScene;

/// A view on the board: grid, wheel zoom, middle-button pan; hands on what the mouse does in board
/// coordinates (micrometres, y up).
class BoardView : public QGraphicsView {
    Q_OBJECT

public:
    explicit BoardView(BoardScene* scene, QWidget* parent = nullptr);

    /// The whole board; it stays whole when the view grows, until something else is shown.
    void fit();
    void showArea(const QRectF& area);
    void zoom(double factor);

    /// Draws lines at multiples of this step; 0: at multiples of whatever is well seen.
    void setGrid(double step);

    /// Micrometres to a pixel.
    double pixelSize() const;

    /// Where a place of the board is in this widget, and the other way round: for those who
    /// control the canvas from outside.
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
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void panTo(const QPoint& position);
    void scrollBy(const QPoint& pixels);
    void setScale(double pixelsPerMicrometre, const QPointF& centre);
    void drawGrid(QPainter* painter, const QRectF& area) const;

    BoardScene* m_scene;
    double m_grid = 0;
    bool m_fits = true;
    bool m_isPanning = false;
    QPoint m_panFrom;
};
