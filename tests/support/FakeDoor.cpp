#include "FakeDoor.h"

#include "addfeature/fields/LineField.h"

#include <utility>

namespace {

/// The argument of SIGNAL() or SLOT().
QString signature(const char* code)
{
    return QString::fromLatin1(code + 1);
}

}  // namespace

QStringList FakeDoor::takeCalls()
{
    return std::exchange(m_calls, {});
}

void FakeDoor::route(const char* slot, std::function<void()> rule)
{
    m_routes[signature(slot)] = std::move(rule);
}

void FakeDoor::sendRecord()
{
    m_calls.append("record");
    if (onSend) {
        onSend();
    }
}

void FakeDoor::sendDirection()
{
    m_calls.append("direction");
    if (onSend) {
        onSend();
    }
}

void FakeDoor::sendAttributes(const std::map<std::string, std::string>& /*attributes*/)
{
    m_calls.append("attributes");
}

bool FakeDoor::answer(const QString& call)
{
    m_calls.append(call);
    if (!accepts && onBox) {
        m_refusals.box([this] {
            onBox();
            return true;
        });
    }
    return accepts;
}

FakeDoor::Checks::Checks(FakeDoor& door)
    : ValueChecks(door.m_refusals, door.hostUnits, nullptr, nullptr), m_door(door)
{
}

bool FakeDoor::Checks::length(const QString& text, double maximumInMil) const
{
    return m_door.answer(QStringLiteral("length %1 up to %2").arg(text).arg(maximumInMil));
}

bool FakeDoor::Checks::coordinate(double value) const
{
    return m_door.answer(QStringLiteral("coordinate %1").arg(value));
}

bool FakeDoor::Checks::number(double value, double minimum, double maximum) const
{
    return m_door.answer(
        QStringLiteral("number %1 from %2 to %3").arg(value).arg(minimum).arg(maximum));
}

bool FakeDoor::Checks::symbolSizes(const QString& name) const
{
    return m_door.answer(QStringLiteral("symbol %1").arg(name));
}

bool FakeDoor::restoreCommonRows()
{
    m_calls.append("restore");
    return survives;
}

void FakeDoor::hideAttributeRows()
{
    m_calls.append("hide attribute rows");
}

void FakeDoor::hidePlacementRows()
{
    m_calls.append("hide placement rows");
}

void FakeDoor::connectToSlot(QObject* sender, const char* signal, const char* slot)
{
    m_connections.append(
        QStringList{sender->objectName(), signature(signal), signature(slot)}.join(' '));
    m_slots[sender] = signature(slot);
    connect(sender, signal, this, SLOT(take()));
}

void FakeDoor::disconnectFromSlot(QObject* sender, const char* signal, const char* /*slot*/)
{
    disconnect(sender, signal, this, SLOT(take()));
}

void FakeDoor::connectSignal(const char* signal, QObject* receiver, const char* slot)
{
    m_connections.append(
        QStringList{signature(signal), receiver->objectName(), signature(slot)}.join(' '));
}

void FakeDoor::take()
{
    if (const auto rule = m_routes.value(m_slots.value(sender()))) {
        rule();
        return;
    }
    auto* const field = dynamic_cast<Field*>(sender());
    auto* const line = dynamic_cast<LineField*>(field);
    if (!field) {
        m_calls.append(m_slots.value(sender()));
    } else if (line && m_slots.value(sender()).endsWith("_editingFinished()")) {
        line->finish();
    } else {
        field->change();
    }
}
