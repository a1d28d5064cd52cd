#pragma once

#include <QTransform>
#include <QWidget>

/// Draws the board on a grid, and reports clicks on it.
class BoardView : public QWidget {
    Q_OBJECT

public:
    explicit BoardView(QWidget* parent = nullptr);

    /// Whether the feature under the mouse is to be shown as one that a click picks.
    void setPicking(bool picking);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// `feature` is an index into Board::features(), -1 beside all; `point` is in micrometres.
    void clicked(int feature, const QPointF& point);
    void moved(const QPointF& point);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QTransform boardToView() const;
    QPointF boardPoint(const QPoint& position) const;
    int featureUnder(const QPoint& position) const;
    void setHovered(int feature);

    bool m_picking = false;
    int m_hovered = -1;
    int m_selected = -1;
};
