#pragma once

#include <QString>

class QWidget;

/// The one place that asks the host about units. Its three answers to "is it metric?" may differ,
/// each use means one of them. Metric lengths are in micrometres, the slot length in millimetres;
/// the others in mil, and inch.
class HostUnits {
public:
    /// `hostWidget` holds the toolbar: the context of the host's functions. Not owned, may be null.
    explicit HostUnits(QWidget* hostWidget) : m_hostWidget(hostWidget) {}

    /// What the host last told the dialog: how lengths are typed. Until then not metric.
    bool wasToldMetric() const { return m_wasToldMetric; }
    void tell(bool isMetric) { m_wasToldMetric = isMetric; }

    /// What the host works in at this moment: how names of symbols are typed.
    bool isMetricNow() const;

    /// What the host shows lengths in: how the fields of a new dialog start.
    bool showsMetric() const;

    /// A bound in mil, as the host shows it to the user.
    double shownBound(double mils) const;

    /// A symbol's name, typed in metric units, with its sizes in the host's own unit.
    static QString storedSymbol(const QString& metricName);
    /// A symbol's name, with its sizes in the host's own unit, in metric units.
    static QString metricSymbol(const QString& storedName);

private:
    QWidget* m_hostWidget;
    bool m_wasToldMetric = false;
};
