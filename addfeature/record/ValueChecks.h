#pragma once

#include <QCoreApplication>
#include <QString>

class HostUnits;
class QWidget;
class RefusalGuard;

/// The checks of what the user typed. Each reports a refusal in exactly one box and returns false.
class ValueChecks {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)
public:
    /// `window` is the parent of the boxes, `hostWidget` the context of the host's functions.
    ValueChecks(RefusalGuard& refusals, const HostUnits& units, QWidget* window,
                QWidget* hostWidget);
    virtual ~ValueChecks() = default;
    ValueChecks(const ValueChecks&) = delete;
    ValueChecks& operator=(const ValueChecks&) = delete;

    /// A length as typed, from 0 to `maximumInMil`.
    virtual bool length(const QString& text, double maximumInMil) const;

    /// A coordinate as typed, at most 100000 mil or 2540000 micrometres either way.
    virtual bool coordinate(double value) const;

    /// A plain number without a unit, checked by the host.
    virtual bool number(double value, double minimum, double maximum) const;

    /// The sizes in a symbol name as typed, checked by the host.
    virtual bool symbolSizes(const QString& name) const;

private:
    RefusalGuard& m_refusals;
    const HostUnits& m_units;
    QWidget* m_window;
    QWidget* m_hostWidget;
};
