#include "addfeature/pages/PlainLength.h"

#include "addfeature/Units.h"

#include <QLineEdit>

#include <cmath>

void PlainLength::changeUnit(bool isMetric)
{
    if (isMetric == m_isMetric) {
        return;
    }
    m_isMetric = isMetric;

    const QString current = m_field->text();
    const bool untouched = !m_shown.isEmpty() && current == m_shown;
    m_shown = untouched ? m_previous : converted(isMetric);
    m_previous = current;
    if (!m_shown.isEmpty()) {
        m_field->setText(m_shown);
    }
}

QString PlainLength::converted(bool isMetric) const
{
    bool isNumber = false;
    const double value = m_field->text().toDouble(&isNumber);
    const double other = isMetric ? value * Units::factor : value / Units::factor;
    return isNumber && std::isfinite(other) ? Units::format(other) : QString();
}
