#pragma once

/// The feature types; the values are the ids of the type buttons.
enum class FeatureType : int { Line = 0, Pad = 1, Surface = 2, Arc = 3, Text = 4 };
