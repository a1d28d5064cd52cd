#pragma once

#include "board/Feature.h"

#include <QMap>
#include <QString>
#include <QVariant>

namespace Pcb {

enum class LineMode { Single = 1, Polyline, Rectangle, Slot };
enum class Direction {
    Free = 1,
    Vertical,
    Horizontal,
    VerticalThenHorizontal,
    EightDirections,
    Fixed
};
enum class Corner { Straight = 1, Round, Chamfer, Oblong };
enum class SurfaceShape { Rectangle = 1, Polygon, Circle };
enum class ArcMethod {
    StartCenterEnd = 1,
    StartEndEdge,
    StartEndCenter,
    StartCenterAngle,
    StartCenterLength,
    StartEndAngle,
    StartEndRadius
};
enum class CircleMethod { CenterRadius = 1, CenterPoint, PointCenter, ThreePoints };

constexpr int mostPads = 50;  ///< of an array, in each direction

/// What the next clicks draw: a parsed feature parameter record. Lengths are micrometres, angles
/// degrees counterclockwise.
struct Brush {
    Kind kind = Kind::Line;
    bool positive = true;
    bool mirror = false;
    double rotation = 0;
    QString symbol = QStringLiteral("r10");
    bool symbolNamed = false;  ///< the record names the symbol
    Attributes attributes;

    LineMode line = LineMode::Single;
    bool closed = false;
    Direction direction = Direction::Free;
    double fixedAngle = 0;
    Corner corner = Corner::Straight;
    double cornerRadius = 0;
    bool slotPlated = true;
    double slotLength = 0;  ///< micrometres, though the record holds millimetres
    double slotAngle = 0;
    QString slotDecode;

    int padNx = 1;
    int padNy = 1;
    double padDx = 0;
    double padDy = 0;
    double padXScale = 1;
    double padYScale = 1;

    SurfaceShape surface = SurfaceShape::Rectangle;

    bool circle = false;
    ArcMethod arcMethod = ArcMethod::StartCenterEnd;
    CircleMethod circleMethod = CircleMethod::CenterRadius;
    bool clockwise = true;

    TextSpec text;

    bool operator==(const Brush& other) const;
};

/// Reads a record. What is missing, of a wrong type, unknown or absurd (infinite, beyond ten
/// metres, a count below 1 or above `mostPads`, a size of 0) gets the value of a default `Brush`.
/// `attributes` count only if the record says that there are any.
Brush readBrush(const QMap<QString, QVariant>& record, const Attributes& attributes = {});

}  // namespace Pcb
