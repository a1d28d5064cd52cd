#pragma once

#include <QStringList>
#include <QVector>

class FocusFixture;

/// What a user enters in a field of the dialog.
struct Entry {
    const char* field;
    const char* type;   ///< the type button of its page
    QStringList reach;  ///< what shows the field: "combo=item", or a button
    QString typed;      ///< or a key: "<Space>", "<Up>", "<Down>", "<Item>"
    QString key;
    QString stored;
    QString box = {};  ///< how the refusal begins; empty: accepted

    bool isTyped() const { return !typed.startsWith('<'); }
    void reachField(const FocusFixture& fixture) const;
    /// Leaves the focus in the field.
    void enter(const FocusFixture& fixture) const;
};

/// All editable controls, and those that refuse something once more with that.
const QVector<Entry>& allEntries();
