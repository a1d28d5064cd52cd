#pragma once

// What only the stand-in of the UI utility library has: the host's settings, and faults for tests.
// For programs that know nothing of it, CANVAS_HOST_UNIT in the environment names the unit at the
// start (mil, inch, um, mm); mil without it.

#include <ui_api.h>

#include <functional>
#include <vector>

namespace CanvasHost {

/// The unit in which the user reads lengths. Mil and Inch are the non-metric system, the others
/// the metric one.
enum class DisplayUnit { Mil, Inch, Micrometre, Millimetre };

CANVAS_HOST_EXPORT void setDisplayUnit(DisplayUnit unit);
CANVAS_HOST_EXPORT DisplayUnit displayUnit();

/// A unit of length.
struct LengthUnit {
    DisplayUnit unit;
    const char* name;  ///< as written in options and session files
    double micrometres;
    int decimals;        ///< of a length that is shown
    const char* title;   ///< this and the next two: to be translated in the context "Lengths"
    const char* length;  ///< "%1 mm"
    const char* point;   ///< "%1, %2 mm"
};
CANVAS_HOST_EXPORT const std::vector<LengthUnit>& lengthUnits();

/// In the user's language: the unit's title, and a length or a point (micrometres) in the current
/// unit.
CANVAS_HOST_EXPORT QString unitText(const LengthUnit& unit);
CANVAS_HOST_EXPORT QString lengthText(double micrometres);
CANVAS_HOST_EXPORT QString lengthText(const QPointF& point);

CANVAS_HOST_EXPORT void setEQVisible(bool visible);

/// Functions that replace operations of ui_api.h if they are set: they throw, return nonsense or
/// count calls.
struct UiApiOverrides {
    std::function<bool()> getEQVisible;
    std::function<QString(void*)> getUnitString;
    std::function<int(void*)> getUnit;
    std::function<double(void*, double)> getUnitData;
    std::function<double(void*, double)> getUnitJudgeDouble;
    std::function<bool(double, double, double, void*)> isNumValueLegal;
    std::function<bool(const QString&, double, double, void*)> isSymbolValueLegal;
    std::function<QString(const QString&, int)> setSymbolUIData;
    std::function<void(void*, ZENTRA::API::show_param&)> getShowPara;
};
CANVAS_HOST_EXPORT UiApiOverrides& uiApiOverrides();

}  // namespace CanvasHost
