#pragma once

// What only the stand-in of the common widgets has: the measured distance that a canvas reports.

#include <HostExport.h>

#include <QPointF>

#include <functional>

namespace CanvasHost {

/// Called when a measure window starts measuring; a canvas sets it to begin taking points.
CANVAS_HOST_EXPORT void setMeasureStarted(std::function<void()> started);

/// Shows the distance between two points (micrometre) in every measure window.
CANVAS_HOST_EXPORT void reportMeasurement(const QPointF& from, const QPointF& to);

}  // namespace CanvasHost
