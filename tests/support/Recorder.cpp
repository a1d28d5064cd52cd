#include "Recorder.h"

#include <PluginManagerStandIn.h>

namespace {

constexpr int attributesCode = 51;

void takeNote(void* /*instance*/, PluginMetaData /*message*/) {}

}  // namespace

Recorder::Recorder()
{
    CanvasHost::addInstance(QStringLiteral("Canvas_Viewer.dll"), &m_canvas, takeNote);
    CanvasHost::addInstance(QStringLiteral("Canvas_JobTree.dll"), &m_jobTree, takeNote);
    CanvasHost::setObserver([this](const CanvasHost::Transfer& transfer) {
        Entry entry{transfer.sender, transfer.message, transfer.delivered, {}};
        if (entry.message.code == attributesCode && entry.message.extra != 0) {
            entry.attributes = *reinterpret_cast<const std::map<std::string, std::string>*>(
                static_cast<quintptr>(entry.message.extra));
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
    return {};
}
