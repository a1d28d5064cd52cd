#pragma once

#include "board/Board.h"
#include "board/Feature.h"
#include "board/Splice.h"

#include <functional>
#include <optional>

/// Edits as functions of values: nothing given is changed. Lengths are micrometres, angles are
/// degrees counterclockwise.
namespace Pcb {

Feature moved(const Feature& feature, const QPointF& by);
Feature rotated(const Feature& feature, const QPointF& centre, double degrees);
/// Left becomes right: mirrored at the vertical line through `x`.
Feature mirrored(const Feature& feature, double x);
Feature inverted(const Feature& feature);

enum class End { First, Second };

/// The end of a line or an arc that lies nearer to `point`.
End nearerEnd(const Feature& feature, const QPointF& point);

/// A line of the same length from its fixed end, in the direction of `degrees` seen from there.
/// Nothing for other kinds.
std::optional<Feature> withAngle(const Feature& line, double degrees, End fixed);

/// A line whose `end` was pulled to `to`; an arc keeps its circle and takes the direction of `to`.
/// Nothing for other kinds, or if nothing would be left of the line.
std::optional<Feature> stretched(const Feature& feature, End end, const QPointF& to);

/// The two parts of a line or an arc (one of a full circle) broken at its place nearest to
/// `point`; empty for other kinds and for a break at an end.
Features broken(const Feature& feature, const QPointF& point);

/// What is left of a line when the part at `point` is deleted, up to the nearest places on either
/// side where the line crosses another line or arc, a pad or a surface. Empty if nothing crosses
/// it; nothing for other kinds.
std::optional<Features> deletedToIntersection(const Board& board, int index, const QPointF& point);

/// An edit as what it changes of a board's features.
using Edit = Splices<Feature>;

/// Edits that replace, delete or add features. Indexes are ascending; those that do not exist are
/// left out.
Edit withReplaced(const Board& board, int index, const Features& by);
Edit without(const Board& board, const Indexes& indexes);
Edit withAdded(const Board& board, const Features& features);
Edit withEach(const Board& board, const Indexes& indexes,
              const std::function<Feature(const Feature&)>& change);
Edit withMoved(const Board& board, const Indexes& indexes, const QPointF& by);
Edit withCopied(const Board& board, const Indexes& indexes, const QPointF& by);
Edit withInverted(const Board& board, const Indexes& indexes);

}  // namespace Pcb
