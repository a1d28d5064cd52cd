#pragma once

#include "addfeature/fields/LineField.h"

#include <optional>

/// A field for a length, with the label of its unit.
class UnitField : public LineField {
public:
    enum class Unit {
        Mil,         ///< mil, or micrometres after a change of the unit
        AsShown,     ///< the same, at first in the unit that the host shows
        MilByLabel,  ///< as Mil, but the label says "mil" in both
        PlainInch,   ///< inch or millimetres, which the line edit cannot convert: converted here
    };

    void retranslate() override;
    void changeUnit(bool isMetric) override;

protected:
    UnitField(DialogDoor& door, QWidget* page, Pattern pattern, const Details& details, Unit unit);

    /// Shows the first text, given in mil or inch, and stores its value.
    void start(const QString& text);
    void storeLength();

    void focusOutEvent(QFocusEvent* event) override;

private:
    void showUnit();
    void convertPlain(bool isMetric);
    QString converted(bool isMetric) const;

    const Unit m_unit;
    bool m_isMetric;
    std::optional<QString> m_converted;  // of an entry that was pending when the unit changed
    QString m_shown;                     // what convertPlain() last wrote
    QString m_previous;                  // the text before that
};
