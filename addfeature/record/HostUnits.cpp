#include "addfeature/record/HostUnits.h"

#include <cam_api.h>
#include <ui_api.h>

namespace {

// The host's directions.
constexpr int metricToStored = 0;
constexpr int storedToMetric = 1;

}  // namespace

bool HostUnits::isMetricNow() const
{
    return ZENTRA::UIAPI::getUnit(m_hostWidget) != 0;
}

bool HostUnits::showsMetric() const
{
    ZENTRA::API::show_param shown{};
    ZENTRA::UIAPI::getShowPara(m_hostWidget, shown);
    return shown.metric;
}

double HostUnits::shownBound(double mils) const
{
    return ZENTRA::UIAPI::getUnitJudgeDouble(m_hostWidget, mils);
}

QString HostUnits::storedSymbol(const QString& metricName)
{
    return ZENTRA::UIAPI::setSymbolUIData(metricName, metricToStored);
}

QString HostUnits::metricSymbol(const QString& storedName)
{
    return ZENTRA::UIAPI::setSymbolUIData(storedName, storedToMetric);
}
