#pragma once

#include "board/Feature.h"

#include <QLineF>

namespace Pcb {

/// What is needed to draw a feature of a few pixels. Boards of many features are drawn from an
/// array of these, which is contiguous in memory as the features are not.
struct Sketch {
    QRectF bounds;
    QLineF line;  ///< of a line: from, to
    Kind kind = Kind::Line;
    bool positive = true;
    bool isKnown = true;  ///< it covers an area, though perhaps not all of it is known

    Sketch() = default;
    explicit Sketch(const Feature& feature)
        : bounds(feature.bounds()),
          kind(feature.kind()),
          positive(feature.isPositive()),
          isKnown(!feature.area().isEmpty())
    {
        if (kind == Kind::Line) {
            line = {feature.geometry().points.value(0), feature.geometry().points.value(1)};
        }
    }
};

}  // namespace Pcb
