#pragma once

#include "Canvas.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"

#include <cam_api.h>
#include <ui_api.h>

#include <QDebug>
#include <QMap>
#include <QString>
#include <QVariant>

#include <algorithm>
#include <string>
#include <vector>

/// Floor of a record that is sent: the entries in one map, the host's own checks, one message.
class PlainRecord {
public:
    PlainRecord(QMap<QString, QVariant> entries, Receiver& receiver)
        : m_entries(std::move(entries)), m_receiver(receiver)
    {
    }

    void insert(const QString& key, const QVariant& value) { m_entries.insert(key, value); }

    /// Sends unless the host refuses the symbol; writes one line per entry when `logs`.
    void send(const QString& symbol, bool logs = false)
    {
        if (!isSpecial(symbol) && !ZENTRA::UIAPI::isSymbolValueLegal(symbol, 0, 50000, nullptr)) {
            return;
        }
        for (auto entry = m_entries.cbegin(); logs && entry != m_entries.cend(); ++entry) {
            qDebug().noquote() << "name:" << entry.key() << "value" << entry.value().toString();
        }
        PluginMetaData message(ModuleNames::toolStrip, ModuleNames::viewer);
        message.code = MessageCodes::Sent::Record;
        message.payload = m_entries;
        m_receiver.receive(std::move(message));
    }

private:
    bool isSpecial(const QString& symbol) const
    {
        std::vector<std::string> names;
        ZENTRA::API::get_special_symbol_names(m_job, names);
        return std::find(names.begin(), names.end(), symbol.toStdString()) != names.end();
    }

    QMap<QString, QVariant> m_entries;
    std::string m_job = "job";
    Receiver& m_receiver;
};
