#include "Spy.h"

#include "Report.h"

#include <QMetaMethod>

namespace {

const char* withTypes(const char* signal)
{
    qRegisterMetaType<AttributeList>("std::vector<std::pair<std::string,std::string> >");
    qRegisterMetaType<AttributeList>("std::vector<std::pair<std::string,std::string>>");
    return signal;
}

}  // namespace

Spy::Spy(const QObject& sender, const char* signal) : m_spy(&sender, withTypes(signal)) {}

QVariantList Spy::take()
{
    QVariantList all;
    while (!m_spy.isEmpty()) {
        all.append(m_spy.takeFirst().value(0));
    }
    return all;
}

void expectMembers(Report& report, Row row, const QObject& object,
                   const std::vector<const char*>& members)
{
    for (const char* const member : members) {
        // The first character says which of both it is.
        const bool isSignal = member[0] == '0' + QSIGNAL_CODE;
        const QByteArray text = QMetaObject::normalizedSignature(member + 1);
        const QString what =
            QStringLiteral("%1 %2").arg(isSignal ? "signal" : "slot", QLatin1String(text));
        report.step(what);
        const QMetaObject* const meta = object.metaObject();
        report.expect(row, what, true,
                      (isSignal ? meta->indexOfSignal(text) : meta->indexOfSlot(text)) >= 0);
    }
}
