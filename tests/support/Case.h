#pragma once

#include "DialogFixture.h"
#include "Expect.h"
#include "Steps.h"

/// One row of a table: after the given steps, one thing is done, and what is expected happens.
/// Nothing else may happen.
class Case {
public:
    explicit Case(const QString& name = {}) : m_name(name) {}

    Case& given(const Steps& steps) { return m_given = steps, *this; }
    Case& when(const Step& step) { return m_when = step, *this; }
    /// Expectations, and lists of them.
    template <class... Expected>
    Case& then(const Expected&... expected)
    {
        return (add(expected), ...), *this;
    }
    Case& in(Unit unit) { return m_unit = unit, *this; }

    QString name() const;
    void run() const;

private:
    void add(const Expect::Expectation& expectation) { m_then.append(expectation); }
    void add(const Expect::Expectations& expectations) { m_then.append(expectations); }

    QString m_name;
    Steps m_given;
    Step m_when;
    Expect::Expectations m_then;
    Unit m_unit = Unit::Mil;
};
using Cases = QList<Case>;
Q_DECLARE_METATYPE(Case)

/// Adds a row for each case; `runCase` runs the current one.
void addCases(const Cases& cases);
void runCase();
