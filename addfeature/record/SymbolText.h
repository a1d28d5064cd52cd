#pragma once

#include "addfeature/record/FeatureType.h"

#include <QString>

#include <optional>
#include <string>

class HostUnits;

/// The name of a symbol, as it is typed and as the record holds it: "r10", or with the degrees of a
/// rotation behind its last "_", "r10_45". Sizes are typed in the unit that the host works in.
class SymbolText {
public:
    explicit SymbolText(const HostUnits& units) : m_units(units) {}

    /// What can be typed for a feature of that type, as a regular expression; null for a type
    /// without a symbol.
    static const char* patternFor(FeatureType type);
    /// Whether it is the letter of a round or square symbol without its size.
    static bool lacksSize(const QString& name);
    /// Whether an arc can be drawn with a symbol that is picked: "r" and its size.
    static bool isRound(const QString& name);
    /// Whether the host knows the name as a standard symbol; `forArc` is passed on to it.
    static bool isStandard(const QString& name, bool forArc);
    /// Whether it is a special symbol of the job (UTF-8), which is read each time.
    static bool isSpecial(const QString& name, const std::string& job);

    /// The degrees behind the last "_"; nothing unless they are whole degrees.
    static std::optional<int> suffixOf(const QString& name);
    static QString withoutSuffix(const QString& name);
    /// Whether the name that was entered last has a suffix.
    void setSuffixed(bool isSuffixed) { m_isSuffixed = isSuffixed; }
    /// What the rotation's handler adds for `name`: the degrees behind its first "_", deliberately
    /// not the last as on entry. 0 without a suffix.
    int addedDegrees(const QString& name) const;

    /// What the record holds for a name as typed.
    QString stored(const QString& name) const;
    /// What the field shows for a name that was picked on the board.
    QString shown(const QString& name) const;
    /// Whether `symbol` is what the record holds after an entry or a pick of `name`.
    bool isStoredForm(const QString& symbol, const QString& name) const;

    /// Keeps the text as typed, to be shown again after a change of the unit and back. Without
    /// knowing the unit, which the host may throw at, none is kept.
    void keep(const QString& typed);
    /// The text in that system of units, as it was typed there or converted: from the text kept in
    /// the other, or from `current`. It is kept as well.
    QString inUnit(bool isMetric, const QString& current);

private:
    QString converted(const QString& name, bool toMetric) const;

    const HostUnits& m_units;
    QString m_metric;  // kept
    QString m_other;
    bool m_isSuffixed = false;
};
