#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;
class RefusalGuard;

/// The checks of what the user typed. Each reports a refusal in exactly one box and returns false.
class ValueChecks {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)
public:
    /// `window` is the parent of the boxes, `ownerContext` that of the host's unit functions.
    ValueChecks(RefusalGuard& refusals, QWidget* window, void* ownerContext);

    /// A number from 0 to `boundInMil`; metric text, in micrometres, is converted before it is
    /// compared.
    bool length(const QString& text, double boundInMil, bool isMetric) const;

    /// A coordinate in mil or micrometres.
    bool coordinate(double value, bool isMetric) const;

    /// A plain number, checked by the host.
    bool number(double value, double minimum, double maximum) const;

    /// The sizes in a symbol name as typed, checked by the host.
    bool symbolSizes(const QString& name) const;

private:
    RefusalGuard& m_refusals;
    QWidget* m_window;
    void* m_ownerContext;
};
