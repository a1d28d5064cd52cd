#include "addfeature/fields/UnitField.h"

#include "addfeature/record/HostUnits.h"
#include "addfeature/record/Units.h"

#include <QLabel>

#include <cmath>
#include <utility>

UnitField::UnitField(DialogDoor& door, QWidget* page, Pattern pattern, const Details& details,
                     Unit unit)
    : LineField(door, page, pattern, details),
      m_unit(unit),
      m_isMetric(unit == Unit::AsShown && door.units().showsMetric())
{
    addUnitLabel();
}

void UnitField::start(const QString& text)
{
    const QString shown = m_isMetric ? Units::toStored(text, false) : text;
    setText(shown);
    store(Units::toStored(shown, m_isMetric));
    retranslate();
    complete(SIGNAL(editingFinished()));
}

void UnitField::storeLength()
{
    store(Units::toStored(text(), m_door.units().wasToldMetric()));
}

void UnitField::retranslate()
{
    Field::retranslate();
    showUnit();
}

void UnitField::showUnit()
{
    unitLabel()->setText(m_unit == Unit::PlainInch
                             ? Units::largeLengthLabel(m_isMetric)
                             : Units::lengthLabel(m_isMetric && m_unit != Unit::MilByLabel));
}

void UnitField::changeUnit(bool isMetric)
{
    const bool isPending = isModified() && hasAcceptableInput();
    if (m_unit == Unit::PlainInch) {
        convertPlain(isMetric);
    } else {
        changeunit(isMetric);
    }
    m_isMetric = isMetric;
    showUnit();
    if (isPending) {
        m_converted = text();
        setModified(true);
    }
}

/// An entry that was pending when the unit changed may be one that cannot be typed in the other
/// unit. Qt does not report it then, but it was the user's entry.
void UnitField::focusOutEvent(QFocusEvent* event)
{
    LineField::focusOutEvent(event);
    if (isModified() && !hasAcceptableInput() && m_converted == text()) {
        Q_EMIT editingFinished();
    }
}

/// Does nothing if the length is already shown in that unit. A text that is not a number stays.
/// Switching back restores the previous text, unless it was edited in between.
void UnitField::convertPlain(bool isMetric)
{
    if (isMetric == m_isMetric) {
        return;
    }
    const QString current = text();
    const bool isUntouched = !m_shown.isEmpty() && current == m_shown;
    m_shown = isUntouched ? m_previous : converted(isMetric);
    m_previous = current;
    if (!m_shown.isEmpty()) {
        setText(m_shown);
    }
}

QString UnitField::converted(bool isMetric) const
{
    bool isNumber = false;
    const double value = text().toDouble(&isNumber);
    const double other = isMetric ? value * Units::factor : value / Units::factor;
    return isNumber && std::isfinite(other) ? Units::format(other) : QString();
}
