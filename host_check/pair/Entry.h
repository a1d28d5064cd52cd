#pragma once

#include "RecordLog.h"

/// What a user enters in a field of the dialog, and what it changes in the record.
struct Entry {
    enum class Kind { Typed, Chosen, Clicked };

    QString field;
    Kind kind = Kind::Clicked;
    QString text;   ///< typed
    int index = 0;  ///< chosen
    RecordLog::Record changes;
    int boxes = 0;  ///< that refuse it

    /// `byReturn`: how what is typed is finished.
    QString words(bool byReturn) const;
};

/// The entries of a feature type, in an order in which each can be reached.
struct FeatureEntries {
    QString typeButton;
    QString kind;  ///< value of the record
    QVector<Entry> entries;
};

/// Those of each type, for lengths in metric units or in mil. Each line edit gets a value that is
/// accepted and, where there is a refusal, one that is refused; all else each of its values.
QVector<FeatureEntries> dialogEntries(bool isMetric);

/// What the first record holds that depends on the unit.
RecordLog::Record firstSizes();
