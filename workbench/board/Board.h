#pragma once

#include "board/Feature.h"

#include <QPolygonF>
#include <QString>

#include <vector>

namespace Pcb {

/// One layer of a step: features in the order in which they were drawn, later ones on top.
/// Negative ones cut holes into the features below them.
struct Board {
    QString job;
    QString step;
    QPolygonF outline;  ///< the board's edge in micrometres, closed implicitly; may be empty
    Features features;

    bool operator==(const Board& other) const;
};

using Indexes = std::vector<int>;  ///< of features; ascending, each once

bool contains(const Indexes& indexes, int index);
/// Both together; or, if `picked` are all in it, `before` without them.
Indexes toggled(const Indexes& before, const Indexes& picked);
bool exists(const Board& board, int index);

/// Outline and features; invalid for an empty board.
QRectF boundsOf(const Board& board);

/// The topmost of `candidates` at `point` or no farther from it than `tolerance`; -1: none.
int featureAt(const Board& board, const Indexes& candidates, const QPointF& point,
              double tolerance);

bool touch(const Feature& a, const Feature& b);

/// The given feature and all positive ones that touch it, directly or through others. A negative
/// one is alone.
Indexes touching(const Board& board, int index);

/// As touching(), and also from every feature that has one of their net names.
Indexes netOf(const Board& board, int index);

/// The lines and arcs that are joined end to end with the given one, within `tolerance`.
Indexes polylineOf(const Board& board, int index, double tolerance = 1);

/// The features that lie wholly in the area.
Indexes insideRectangle(const Board& board, const QRectF& rectangle);
Indexes insidePolygon(const Board& board, const QPolygonF& polygon);

}  // namespace Pcb
