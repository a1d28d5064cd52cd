#pragma once

namespace CanvasHost {

/// What every other factor between the two systems of units follows from.
constexpr double micrometresOfMil = 25.4;

}  // namespace CanvasHost
