#pragma once

#include "board/TextShape.h"

#include <QMap>
#include <QPainterPath>
#include <QPointF>
#include <QString>
#include <QTransform>
#include <QVector>

#include <memory>
#include <vector>

namespace Pcb {

enum class Kind { Line, Pad, Surface, Arc, Text };

using Attributes = QMap<QString, QString>;

/// What a feature was drawn from. Lengths are micrometres, y points up, angles are degrees
/// counterclockwise.
struct Geometry {
    Kind kind = Kind::Line;
    bool positive = true;
    QString symbol;  ///< of lines, arcs and pads

    /// Line: from, to. Arc: from, to, centre; equal ends are a full circle. Pad: centre. Text:
    /// lower left corner. Surface: its corners, or centre and a point of the circle.
    QVector<QPointF> points;
    bool round = false;      ///< of a surface: it is a circle
    bool clockwise = false;  ///< of an arc: the way from its first end to the second

    double rotation = 0;  ///< of pads and texts; turned after it was mirrored
    bool mirror = false;  ///< of pads and texts: left becomes right
    double xScale = 1;    ///< of pads; not 0
    double yScale = 1;
    TextSpec text;

    Attributes attributes;

    bool operator==(const Geometry& other) const;
};

/// How many points a geometry of this kind must have; surfaces that are not round may have more.
int leastPoints(const Geometry& geometry);

/// A feature of the board: an immutable value. Copies share its data.
class Feature {
public:
    Feature();
    explicit Feature(Geometry geometry);

    const Geometry& geometry() const { return m_data->geometry; }
    Kind kind() const { return m_data->geometry.kind; }
    bool isPositive() const { return m_data->geometry.positive; }
    const QString& symbol() const { return m_data->geometry.symbol; }
    const Attributes& attributes() const { return m_data->geometry.attributes; }

    /// The net it belongs to, from the attribute ".net"; empty where there is none.
    QString net() const;

    /// What it covers, whatever its polarity, by the path's fill rule. Empty for a geometry with
    /// too few points.
    const QPainterPath& area() const { return m_data->area; }
    /// What stands for parts whose shape is not known, and is no part of the area: for the feature
    /// when its symbol is special, and for letters that the font lacks. Shown as thin outlines.
    const QPainterPath& unknown() const { return m_data->unknown; }
    bool isEmpty() const { return area().isEmpty() && unknown().isEmpty(); }
    /// Of both.
    const QRectF& bounds() const { return m_data->bounds; }

    /// The same for all copies of a feature, and for no other one that lives.
    const void* identity() const { return m_data.get(); }

    bool operator==(const Feature& other) const
    {
        return m_data == other.m_data || geometry() == other.geometry();
    }

private:
    struct Data {
        QRectF bounds;
        Geometry geometry;
        QPainterPath area;
        QPainterPath unknown;
    };

    std::shared_ptr<const Data> m_data;
};

using Features = std::vector<Feature>;

/// The line along which the pen of a line or an arc runs; empty for other kinds.
QPainterPath middleOf(const Geometry& geometry);

/// The width of the round pen that draws arcs with a symbol: the smaller of its sizes.
double arcPenWidth(const QString& symbol);

/// Where an arc lies: its radius is that of the first end, the second end is moved onto it.
struct ArcPlace {
    QPointF centre;
    double radius = 0;
    double start = 0;  ///< degrees
    double sweep = 0;  ///< degrees, negative for clockwise
};
ArcPlace arcPlace(const Geometry& arc);

/// Mirror, scale, rotation and place of a pad or text, from its own coordinates to the board's.
QTransform placeOf(const Geometry& geometry);

Geometry lineGeometry(const QString& symbol, const QPointF& from, const QPointF& to);
Geometry arcGeometry(const QString& symbol, const QPointF& from, const QPointF& to,
                     const QPointF& centre, bool clockwise);
Geometry padGeometry(const QString& symbol, const QPointF& centre);
Geometry surfaceGeometry(const QVector<QPointF>& corners);
Geometry discGeometry(const QPointF& centre, const QPointF& edge);
Geometry textGeometry(const TextSpec& text, const QPointF& corner);

}  // namespace Pcb
