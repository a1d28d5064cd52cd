#pragma once

#include <vector>

/// What the number of a figure means.
enum class Kind {
    Ratio,     ///< the project's time over the floor's
    Exponent,  ///< e in "time grows as n^e", fitted over four decades
    Bytes,     ///< heap that is held at the end but was not at the start
};

/// One figure: what is measured, and what it may be at most.
struct Figure {
    const char* id;
    const char* what;
    Kind kind;
    double target;
    const char* why = "";  ///< it may miss the target
};

/// All figures, in the order of the table.
const std::vector<Figure>& figures();

/// The figure with that id; ends the program for an unknown one.
const Figure& figure(const char* id);
