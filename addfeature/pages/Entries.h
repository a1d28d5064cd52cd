#pragma once

#include <QString>

class PageHost;
class QLineEdit;

/// A field for a length from 0 to a bound.
struct LengthEntry {
    QLineEdit* field;
    QString key;
    double boundInMil;
    bool sendsWhenAccepted;
    bool sendsWhenRefused;
};

/// Stores what was typed, or "0" in field and record when it is refused.
void finishLength(PageHost& host, const LengthEntry& entry);

/// A field for a count or a factor, checked at each change of its text.
struct NumberEntry {
    QLineEdit* field;
    QString key;
    double minimum;
    double maximum;
};

/// Stores and sends `text`, or puts the record's value back into the field when it is refused.
void changeNumber(PageHost& host, const NumberEntry& entry, const QString& text);

/// Stores and sends a signed pitch. When it is refused the field alone falls back to "0"; the
/// record keeps the old pitch.
void finishPitch(PageHost& host, QLineEdit* field, const QString& key);
