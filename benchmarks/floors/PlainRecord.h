#pragma once

#include "Canvas.h"

#include <QMap>
#include <QString>
#include <QVariant>

#include <string>

/// Floor of a record that is sent: the entries in one map, the host's own checks, one message.
class PlainRecord {
public:
    /// `entries` is what the map holds initially.
    PlainRecord(QMap<QString, QVariant> entries, std::string job, void* context, Receiver& receiver)
        : m_entries(std::move(entries)),
          m_job(std::move(job)),
          m_context(context),
          m_receiver(receiver)
    {
    }

    void insert(const QString& key, const QVariant& value) { m_entries.insert(key, value); }
    bool isSpecial(const QString& symbol) const;
    /// Sends unless the host refuses the symbol; writes one line per entry when `logs`.
    void send(const QString& symbol, bool logs = false);

private:
    QMap<QString, QVariant> m_entries;
    std::string m_job;
    void* m_context;
    Receiver& m_receiver;
};
