#pragma once

#include "Row.h"

#include <QSignalSpy>
#include <QVariant>

#include <string>
#include <utility>
#include <vector>

class Report;

using AttributeList = std::vector<std::pair<std::string, std::string>>;
Q_DECLARE_METATYPE(AttributeList)

/// Keeps what a signal carries. Signals are found by their texts, as the module finds them.
class Spy {
public:
    /// `signal` as SIGNAL() gives it.
    Spy(const QObject& sender, const char* signal);

    int count() const { return m_spy.count(); }
    /// The first argument of each signal since the last call.
    QVariantList take();

private:
    QSignalSpy m_spy;
};

/// That `object` has each of `members`, as SIGNAL() and SLOT() give them.
void expectMembers(Report& report, Row row, const QObject& object,
                   const std::vector<const char*>& members);
