#include "PlainRecord.h"

#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"

#include <cam_api.h>
#include <ui_api.h>

#include <QDebug>

#include <algorithm>
#include <utility>
#include <vector>

bool PlainRecord::isSpecial(const QString& symbol) const
{
    std::vector<std::string> names;
    ZENTRA::API::get_special_symbol_names(m_job, names);
    return std::find(names.begin(), names.end(), symbol.toStdString()) != names.end();
}

void PlainRecord::send(const QString& symbol, bool logs)
{
    if (!isSpecial(symbol) && !ZENTRA::UIAPI::isSymbolValueLegal(symbol, 0, 50000, m_context)) {
        return;
    }
    if (logs) {
        for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry) {
            qDebug().noquote() << "name:" << entry.key() << "value" << entry.value().toString();
        }
    }
    PluginMetaData message(ModuleNames::toolStrip, ModuleNames::viewer);
    message.code = MessageCodes::Sent::Record;
    message.payload = m_entries;
    m_receiver.receive(std::move(message));
}
