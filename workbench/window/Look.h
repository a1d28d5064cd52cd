#pragma once

struct Options;

/// How the program looks.
namespace Look {

/// Style, palette and font that the options ask for; set before any window is made.
void dress(const Options& options);

}  // namespace Look
