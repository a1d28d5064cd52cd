#pragma once

#include "addfeature/fields/LineField.h"

#include <optional>

/// A field for a length, with the label of its unit.
class UnitField : public LineField {
public:
    enum class Unit {
        Mil,         ///< mil or micrometres
        MilByLabel,  ///< the same, but the label says "mil" in both
        PlainInch,   ///< inch or millimetres, which the line edit cannot convert: converted here
    };

    void retranslate() override;
    void changeUnit(bool isMetric) override;

protected:
    /// `isMetric` is the unit of the first text.
    UnitField(DialogDoor& door, QWidget* page, Pattern pattern, const Details& details, Unit unit,
              bool isMetric);

    /// Shows the first text, and stores its value.
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
