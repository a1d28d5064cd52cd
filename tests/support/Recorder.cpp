#include "Recorder.h"

#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"

#include <PluginManagerStandIn.h>

namespace {

void takeNote(void* /*instance*/, PluginMetaData /*message*/) {}

}  // namespace

Recorder::Recorder()
{
    CanvasHost::addInstance(ModuleNames::viewer, &m_canvas, takeNote);
    CanvasHost::addInstance(ModuleNames::jobTree, &m_jobTree, takeNote);
    CanvasHost::setObserver([this](const CanvasHost::Transfer& transfer) {
        Entry entry{transfer.sender, transfer.message, transfer.delivered, {}};
        if (entry.message.code == MessageCodes::Sent::AttributeMap && entry.message.extra != 0) {
            entry.attributes =
                *ExtraWord::object<std::map<std::string, std::string>>(entry.message.extra);
        }
        m_messages.append(entry);
        if (m_onMessage) {
            m_onMessage(entry);
        }
    });
}

Recorder::~Recorder()
{
    CanvasHost::setObserver({});
    CanvasHost::removeInstance(&m_canvas);
    CanvasHost::removeInstance(&m_jobTree);
}

QVector<int> Recorder::codes() const
{
    QVector<int> codes;
    for (const Entry& entry : m_messages) {
        codes.append(entry.message.code);
    }
    return codes;
}

Recorder::Entry Recorder::last(int code) const
{
    for (auto entry = m_messages.crbegin(); entry != m_messages.crend(); ++entry) {
        if (entry->message.code == code) {
            return *entry;
        }
    }
    const char* const name = MessageCodes::Sent::nameOf(code);
    qFatal("%s was not sent", name ? name : qPrintable(QString::number(code)));
}
