#pragma once

#include "board/Placement.h"
#include "viewer/CanvasTool.h"

#include <QCoreApplication>

/// Draws what the last feature record describes.
class PlaceTool : public CanvasTool {
    Q_DECLARE_TR_FUNCTIONS(PlaceTool)

public:
    explicit PlaceTool(Canvas& canvas) : CanvasTool(canvas) {}

    void setBrush(const Pcb::Brush& brush) { m_placement.setBrush(brush); }
    void setDirection(const Pcb::Brush& brush);
    void setSpecialTexts(const QMap<QString, QString>& texts);
    /// The surface that is being drawn is complete as it is.
    void fill();

    bool takesPlace() const override { return true; }
    QPointF taken(const QPointF& place) const override { return m_placement.constrained(place); }
    void press(const QPointF& point, bool extends) override;
    void move(const QPointF& point) override { m_placement.move(point); }
    void finish() override;
    void cancel() override { m_placement.cancel(); }
    bool isBegun() const override { return m_placement.isActive(); }
    Overlay overlay() const override;
    QString hint() const override;

private:
    void add(const Pcb::Features& features);

    Pcb::Placement m_placement;
};
