#pragma once

namespace CanvasHost {

/// Every other factor between the two systems of units follows from this one.
constexpr double micrometresOfMil = 25.4;

}  // namespace CanvasHost
