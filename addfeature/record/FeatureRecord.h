#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

/// The feature parameter record: everything the user chose, by key. Nothing ever removes a key.
class FeatureRecord {
public:
    /// Writes `number` under `key`, replacing what was there.
    void set(const QString& key, int number) { m_values.insert(key, number); }

    /// Writes a deep copy of `text`: a receiver may keep the record longer than the library is
    /// loaded, and the text of a literal vanishes with it.
    void set(const QString& key, const QString& text)
    {
        m_values.insert(key, QString(text.constData(), text.size()));
    }

    /// The value under `key` as text; empty for a key that was never written.
    QString text(const QString& key) const { return m_values.value(key).toString(); }

    /// All entries in key order, as they are sent to the canvas.
    const QMap<QString, QVariant>& map() const { return m_values; }

private:
    QMap<QString, QVariant> m_values;
};
