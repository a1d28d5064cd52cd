#pragma once

#include "Case.h"
#include "addfeature/fields/Field.h"

/// What several pages have in common: fields for lengths, greyed items, refusals, units, languages.
namespace PageCases {

/// A connection made by name, with the signatures as in SIGNAL() and SLOT().
struct Connection {
    const char* sender;
    const char* signal;
    const char* slot;
};
void connected(const QList<Connection>& connections);

/// A field for a length.
class LengthField {
public:
    LengthField(const QString& field, const QString& key) : m_field(field), m_key(key) {}
    LengthField& reachedBy(const Steps& steps) { return m_reach = steps, *this; }
    LengthField& sends(Sends sends) { return m_sends = sends, *this; }

    /// At, inside and outside its bounds, and texts that are not numbers; in both units.
    Cases cases() const;

private:
    Case accepted(const QString& text, const QString& stored) const;
    Case refused(const QString& text, Unit unit) const;

    QString m_field;
    QString m_key;
    Steps m_reach;
    Sends m_sends = Sends::Never;
};

/// A combo box with items that only a program may choose.
class GreyedItems {
public:
    explicit GreyedItems(const QString& combo = {}) : m_combo(combo) {}
    GreyedItems& reachedBy(const Steps& steps) { return m_reach = steps, *this; }
    /// All items, the enabled ones first.
    GreyedItems& free(const QStringList& items) { return m_free = items, *this; }
    GreyedItems& greyed(const QStringList& items) { return m_greyed = items, *this; }

    QString combo() const { return m_combo; }
    /// Tries to reach the disabled ones by mouse, keyboard, wheel and typing ahead.
    void tryToReach() const;

private:
    void reachTheLastFreeOne(QComboBox& combo) const;
    void tryToReach(QComboBox& combo, const QString& item) const;

    QString m_combo;
    Steps m_reach;
    QStringList m_free;
    QStringList m_greyed;
};
void addGreyedRows(const QList<GreyedItems>& rows);
void tryToReachGreyedItem();

/// An entry that is refused in one box, whichever way the field is left.
class Refusal {
public:
    explicit Refusal(const QString& field = {}) : m_field(field) {}
    Refusal& reachedBy(const Steps& steps) { return m_reach = steps, *this; }
    /// What the field's bound just refuses is typed.
    Refusal& above() { return m_typed = FieldBounds::of(m_field).justAbove(), *this; }
    Refusal& below() { return m_typed = FieldBounds::of(m_field).justBelow(), *this; }
    Refusal& leaves(const QString& shown) { return m_shown = shown, *this; }
    /// What the mouse goes to.
    Refusal& beside(const QString& neighbour) { return m_neighbour = neighbour, *this; }

    QString field() const { return m_field; }
    void happensOnce(By way) const;

private:
    QString m_field;
    Steps m_reach;
    QString m_typed;
    QString m_shown;
    QString m_neighbour;
};
void addRefusalRows(const QList<Refusal>& rows);
void refuseOnce();

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

/// Each greyed item below the page, as "combo: item".
QStringList greyedItems(const DialogFixture& fixture, const QString& page);
/// What labels, buttons and lists below the page show.
QStringList visibleTexts(const DialogFixture& fixture, const QString& page);

}  // namespace PageCases
Q_DECLARE_METATYPE(PageCases::GreyedItems)
Q_DECLARE_METATYPE(PageCases::Refusal)
