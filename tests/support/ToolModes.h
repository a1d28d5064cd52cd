#pragma once

#include <QtGlobal>

// What the extra word says with the code of a tool that has modes.

/// With Sent::DeleteFeature.
namespace DeleteMode {
constexpr qint64 feature = 0;
constexpr qint64 toIntersection = 1;
}  // namespace DeleteMode

/// With Sent::Mark.
namespace MarkMode {
constexpr qint64 orthogonal = 0;
constexpr qint64 pointToPoint = 1;
}  // namespace MarkMode
