#include "addfeature/record/CanvasLink.h"

#include "addfeature/record/Logging.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"

#include <QTpluginsManger4CAM.h>

#include <utility>

namespace Sent = MessageCodes::Sent;

namespace {

PluginMetaData messageToCanvas(int code, const QMap<QString, QVariant>& payload = {})
{
    PluginMetaData message(ModuleNames::toolStrip, ModuleNames::viewer);
    message.code = code;
    message.payload = payload;
    return message;
}

void logEntries(const QMap<QString, QVariant>& payload)
{
    if (!recordLog().isDebugEnabled()) {
        return;
    }
    for (auto entry = payload.cbegin(); entry != payload.cend(); ++entry) {
        qCDebug(recordLog).noquote().nospace()
            << "name: " << entry.key() << " value " << entry.value().toString();
    }
}

void send(void* sender, PluginMetaData message)
{
    QTpluginsManger4CAM::instance()->recMegToPlugin(sender, std::move(message));
}

}  // namespace

void CanvasLink::sendRecord(const QMap<QString, QVariant>& record) const
{
    logEntries(record);
    send(m_sender, messageToCanvas(Sent::Record, record));
}

void CanvasLink::sendDirection(const QMap<QString, QVariant>& record) const
{
    send(m_sender, messageToCanvas(Sent::DirectionRecord, record));
}

void CanvasLink::sendAttributes(const std::map<std::string, std::string>& attributes) const
{
    PluginMetaData message = messageToCanvas(Sent::AttributeMap);
    message.extra = ExtraWord::pointingAt(attributes);
    send(m_sender, std::move(message));
}

void CanvasLink::sendFill() const
{
    send(m_sender, messageToCanvas(Sent::Fill));
}

void CanvasLink::sendSelectFromEditor() const
{
    // Deliberately under the rule menu's name: part of the interface.
    PluginMetaData message(ModuleNames::ruleMenu, ModuleNames::viewer);
    message.code = Sent::SelectFromEditor;
    send(m_sender, std::move(message));
}
