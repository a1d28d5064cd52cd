#pragma once

#include <QPointF>
#include <QWidget>

#include <optional>
#include <utility>

class QLabel;

/// The contents of a measure window: the last measured distance, in the user's unit.
class MeasurePane : public QWidget {
    Q_OBJECT
public:
    explicit MeasurePane(QWidget* window);
    ~MeasurePane() override;

    /// All panes.
    static const QList<MeasurePane*>& all();

    /// Forgets the last distance.
    void reset();
    /// Shows the distance between two points (micrometre).
    void show(const QPointF& from, const QPointF& to);
    void retranslate();

private:
    QLabel* m_distance;
    QLabel* m_offsets;
    QLabel* m_hint;
    std::optional<std::pair<QPointF, QPointF>> m_points;
};
