#include "addfeature/record/ValueChecks.h"

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

ValueChecks::ValueChecks(RefusalGuard& refusals, QWidget* window, void* ownerContext)
    : m_refusals(refusals), m_window(window), m_ownerContext(ownerContext)
{
}

bool ValueChecks::length(const QString& text, double boundInMil, bool isMetric) const
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (isNumber && within(isMetric ? value / Units::factor : value, 0, boundInMil)) {
        return true;
    }
    m_refusals.box([&] {
        const double bound = ZENTRA::UIAPI::getUnitJudgeDouble(m_ownerContext, boundInMil);
        QMessageBox::information(m_window, tr("Information"),
                                 tr("The current text box can only enter a value from 0 to") +
                                     QString::number(bound, 'f', 0));
    });
    return false;
}

bool ValueChecks::coordinate(double value, bool isMetric) const
{
    const int bound = isMetric ? coordinateBoundMicrometre : coordinateBoundMil;
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
        [&] { return ZENTRA::UIAPI::isNumValueLegal(value, minimum, maximum, m_ownerContext); });
}

bool ValueChecks::symbolSizes(const QString& name) const
{
    return m_refusals.box([&] {
        return ZENTRA::UIAPI::isSymbolValueLegal(name, symbolSizeMinimum, symbolSizeMaximum,
                                                 m_ownerContext);
    });
}
