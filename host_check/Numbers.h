#pragma once

#include <cmath>

constexpr double factor = 25.4;  ///< mil to micrometre, inch to millimetre

/// Whether `value` is `expected`, rounded to six digits or more.
inline bool isSameToSixDigits(double value, double expected)
{
    constexpr double rounding = 5.5e-6;
    return std::abs(value - expected) <= std::abs(expected) * rounding;
}
