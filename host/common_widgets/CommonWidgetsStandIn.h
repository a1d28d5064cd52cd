#pragma once

// What only the stand-ins of the common widgets have: the measured distance that a canvas reports,
// and faults for tests.

#include <HostExport.h>

#include <QPointF>

#include <functional>
#include <map>
#include <string>

class QWidget;

namespace CanvasHost {

/// Called when a measure window starts measuring; a canvas sets it to begin taking points.
CANVAS_HOST_EXPORT void setMeasureStarted(std::function<void()> started);

/// Shows the distance between two points (micrometre) in every measure window.
CANVAS_HOST_EXPORT void reportMeasurement(const QPointF& from, const QPointF& to);

/// Escape closes `window`, whatever in it has the keyboard.
CANVAS_HOST_EXPORT void closeByEscape(QWidget* window);

/// Functions that replace operations of common_widgets.h if they are set.
struct CommonWidgetsOverrides {
    std::function<void(std::map<std::string, std::string>&)> getAttributeData;
};
CANVAS_HOST_EXPORT CommonWidgetsOverrides& commonWidgetsOverrides();

}  // namespace CanvasHost
