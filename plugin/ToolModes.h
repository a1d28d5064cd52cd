#pragma once

// What the extra word says with the code of a tool that has modes.

/// With Sent::DeleteFeature.
namespace DeleteMode {
constexpr int feature = 0;
constexpr int toIntersection = 1;
}  // namespace DeleteMode

/// With Sent::Mark.
namespace MarkMode {
constexpr int orthogonal = 0;
constexpr int pointToPoint = 1;
}  // namespace MarkMode
