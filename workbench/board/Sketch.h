#pragma once

#include "board/Feature.h"

#include <QLineF>

namespace Pcb {

/// What drawing a feature takes where it is no larger than some pixels. Boards of many features are
/// drawn from a row of these, which lie beside each other as the features do not.
struct Sketch {
    QRectF bounds;
    QLineF line;  ///< of a line: from, to
    Kind kind = Kind::Line;
    bool positive = true;

    Sketch() = default;
    explicit Sketch(const Feature& feature)
        : bounds(feature.bounds()), kind(feature.kind()), positive(feature.isPositive())
    {
        if (kind == Kind::Line) {
            line = {feature.geometry().points.value(0), feature.geometry().points.value(1)};
        }
    }
};

}  // namespace Pcb
