#pragma once

#include <QVariantList>
#include <QVariantMap>
#include <QVector>

class DialogFixture;
class QWidget;

/// What the dialog's fields show and what its record holds, to be brought back later: much quicker
/// than building another dialog.
class Snapshot {
public:
    explicit Snapshot(DialogFixture& fixture);

    /// Puts everything back, as a user and the host would. False if something is not as it was.
    bool restore(DialogFixture& fixture) const;

private:
    QVector<QWidget*> m_controls;
    QVariantList m_shown;
    QVariantMap m_record;
};
