#include "addfeature/record/ValueChecks.h"

#include "addfeature/record/HostUnits.h"
#include "addfeature/record/RefusalGuard.h"
#include "addfeature/record/Units.h"

#include <ui_api.h>

#include <QMessageBox>

namespace {

constexpr int coordinateBoundMil = 100000;
constexpr int coordinateBoundMicrometre = 2540000;
constexpr double symbolSizeMinimum = 0.0;
constexpr double symbolSizeMaximum = 50000.0;

// Both comparisons are true only for numbers: written this way, "nan" is refused.
bool within(double value, double minimum, double maximum)
{
    return value >= minimum && value <= maximum;
}

}  // namespace

ValueChecks::ValueChecks(RefusalGuard& refusals, const HostUnits& units, QWidget* window,
                         QWidget* hostWidget)
    : m_refusals(refusals), m_units(units), m_window(window), m_hostWidget(hostWidget)
{
}

bool ValueChecks::length(const QString& text, double maximumInMil) const
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (isNumber &&
        within(m_units.wasToldMetric() ? value / Units::factor : value, 0, maximumInMil)) {
        return true;
    }
    m_refusals.box([&] {
        QMessageBox::information(m_window, tr("Information"),
                                 tr("The current text box can only enter a value from 0 to") +
                                     QString::number(m_units.shownBound(maximumInMil), 'f', 0));
    });
    return false;
}

bool ValueChecks::coordinate(double value) const
{
    const int bound = m_units.wasToldMetric() ? coordinateBoundMicrometre : coordinateBoundMil;
    if (within(value, -bound, bound)) {
        return true;
    }
    m_refusals.box([&] {
        QMessageBox::warning(m_window, tr("Information"),
                             tr("The current value out of range:") +
                                 QStringLiteral("%1 to %2").arg(-bound).arg(bound));
    });
    return false;
}

bool ValueChecks::number(double value, double minimum, double maximum) const
{
    return m_refusals.box(
        [&] { return ZENTRA::UIAPI::isNumValueLegal(value, minimum, maximum, m_hostWidget); });
}

bool ValueChecks::symbolSizes(const QString& name) const
{
    return m_refusals.box([&] {
        return ZENTRA::UIAPI::isSymbolValueLegal(name, symbolSizeMinimum, symbolSizeMaximum,
                                                 m_hostWidget);
    });
}
