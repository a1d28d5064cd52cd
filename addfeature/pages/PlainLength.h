#pragma once

#include <QString>

class QLineEdit;

/// The length in a line edit that does not know its unit: inch at first, millimetres when metric.
class PlainLength {
public:
    explicit PlainLength(QLineEdit* field = nullptr) : m_field(field) {}

    /// Shows the length in the other unit; does nothing when it is shown in that unit already. A
    /// text that is no number stays. Switching back gives the text that stood there before, unless
    /// it was edited meanwhile.
    void changeUnit(bool isMetric);

private:
    QString converted(bool isMetric) const;

    QLineEdit* m_field;
    bool m_isMetric = false;
    QString m_shown;     // what changeUnit last wrote
    QString m_previous;  // what stood there before it
};
