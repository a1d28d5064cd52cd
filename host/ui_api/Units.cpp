#include "UiApiStandIn.h"
#include "UnitText.h"
#include "ui_api.h"

namespace CanvasHost {
namespace {

struct Settings {
    DisplayUnit unit = DisplayUnit::Mil;
    bool eqVisible = true;
};

Settings initialSettings()
{
    Settings initial;
    const QString name = qEnvironmentVariable("CANVAS_HOST_UNIT");
    for (const LengthUnit& unit : lengthUnits()) {
        if (name == QLatin1String(unit.name)) {
            initial.unit = unit.unit;
        }
    }
    return initial;
}

Settings& settings()
{
    static Settings theSettings = initialSettings();
    return theSettings;
}

double inDisplayUnit(double mil)
{
    return isMetric() ? mil * metricFactor : mil;
}

}  // namespace

void setDisplayUnit(DisplayUnit unit)
{
    settings().unit = unit;
}

DisplayUnit displayUnit()
{
    return settings().unit;
}

bool isMetric()
{
    return settings().unit == DisplayUnit::Micrometre || settings().unit == DisplayUnit::Millimetre;
}

void setEQVisible(bool visible)
{
    settings().eqVisible = visible;
}

UiApiOverrides& uiApiOverrides()
{
    static UiApiOverrides overrides;
    return overrides;
}

}  // namespace CanvasHost

namespace ZENTRA {
namespace UIAPI {

using CanvasHost::uiApiOverrides;

bool getEQVisible()
{
    const auto& replacement = uiApiOverrides().getEQVisible;
    return replacement ? replacement() : CanvasHost::settings().eqVisible;
}

QString getUnitString(void* context)
{
    if (const auto& replacement = uiApiOverrides().getUnitString) {
        return replacement(context);
    }
    return CanvasHost::isMetric() ? QStringLiteral("MM") : QStringLiteral("INCH");
}

int getUnit(void* context)
{
    const auto& replacement = uiApiOverrides().getUnit;
    return replacement ? replacement(context) : int(CanvasHost::isMetric());
}

double getUnitData(void* context, double value)
{
    const auto& replacement = uiApiOverrides().getUnitData;
    return replacement ? replacement(context, value) : CanvasHost::inDisplayUnit(value);
}

double getUnitJudgeDouble(void* context, double mils)
{
    const auto& replacement = uiApiOverrides().getUnitJudgeDouble;
    return replacement ? replacement(context, mils) : CanvasHost::inDisplayUnit(mils);
}

void getShowPara(void* context, API::show_param& out)
{
    if (const auto& replacement = uiApiOverrides().getShowPara) {
        replacement(context, out);
        return;
    }
    out.metric = CanvasHost::isMetric();
}

}  // namespace UIAPI
}  // namespace ZENTRA
