#pragma once

#include "Case.h"
#include "addfeature/fields/Field.h"

/// What several pages have in common: connections, units and languages.
namespace PageCases {

/// A connection made by name, with the signatures as in SIGNAL() and SLOT().
struct Connection {
    const char* sender;
    const char* signal;
    const char* slot;
};
void connected(const QList<Connection>& connections);

struct FieldText {
    QString field;
    QString text;
};
struct UnitLabel {
    QString label;
    QString mil;
    QString metric;
};
/// The texts of the fields, switched ten times, are the same again; nothing is sent or stored.
void switchUnitTenTimes(const Steps& before, const QList<FieldText>& fields,
                        const QList<UnitLabel>& labels);

/// In another language every text of `page` is different, and no index, item state, entry of the
/// record or message has changed.
void retranslate(const QString& page, const Steps& before);

/// What labels, buttons and lists below the page show.
QStringList visibleTexts(const DialogFixture& fixture, const QString& page);

}  // namespace PageCases
