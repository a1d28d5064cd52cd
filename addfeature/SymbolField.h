#pragma once

#include "addfeature/fields/LineField.h"
#include "addfeature/record/SymbolText.h"

#include <QCoreApplication>
#include <QMap>

class QValidator;
struct GuardPosition;

/// The field for the symbol's name. It turns what is typed or chosen into the record's symbol and
/// rotation.
class SymbolField final : public LineField {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)
public:
    SymbolField(DialogDoor& door, QWidget* row);

    /// Accepts what the chosen feature type accepts.
    void applyFeatureType();
    /// Has the host check the name. A refused one is removed from the field, and from the record if
    /// that holds what an entry of it writes.
    bool isAccepted();
    /// Stores the rotation with what the name's suffix adds.
    void storeRotation();
    /// Shows a name that was picked on the board, and stores it as it is shown.
    void put(const QString& storedName);

    // The named slots of the dialog forward to these, and to finish().

    /// Shows a name that was chosen, stores and sends it.
    void choose(const QString& name);
    /// Stores and sends what the field shows, unless that is nothing.
    void enterText();
    /// Leaves a pending entry where it is; it is not handled later either.
    void dropEntry();
    /// Remembers the text of the field for a change of the unit. What the host throws is reported
    /// as `guard` says.
    void noteText(const QString& text, const GuardPosition& guard);
    /// Cuts the entry at the cursor, stores and sends it.
    void cutAtCursor();

    /// Shows the name in the other system of units: as it was typed there, or converted.
    void changeUnit(bool isMetric) override;

private:
    void takeText(const QString& typed) override;
    void storeEntry(QString name);
    void storeRotation(int suffixDegrees);
    void refuse(const QString& title, const QString& message);
    void dropRefused(const QString& name);
    bool isLeft() const;
    void takeLeftEntry();

    SymbolText m_symbol;
    QMap<FeatureType, QValidator*> m_validators;
    QString m_checked;  // while the host checks it, with or without a box
};
