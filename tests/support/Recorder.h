#pragma once

#include <PluginMetaData.h>

#include <QVector>

#include <functional>
#include <map>
#include <string>

/// Sees every message that is sent while it lives, and acts as the receiver for the canvas and the
/// job tree. One at a time.
class Recorder {
public:
    struct Entry {
        void* sender = nullptr;
        PluginMetaData message{QString(), QString()};
        bool delivered = false;
        std::map<std::string, std::string> attributes;  ///< what an AttributeMap points at
    };

    Recorder();
    ~Recorder();
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    const QVector<Entry>& messages() const { return m_messages; }
    QVector<int> codes() const;
    /// The last message with that code. Ends the program if none was sent.
    Entry last(int code) const;
    void clear() { m_messages.clear(); }
    /// Forgets all but the first `count` messages.
    void truncate(int count) { m_messages.resize(count); }

    /// Called after each message, while its sender is still in the call.
    void setOnMessage(std::function<void(const Entry&)> onMessage)
    {
        m_onMessage = std::move(onMessage);
    }

private:
    QVector<Entry> m_messages;
    std::function<void(const Entry&)> m_onMessage;
    char m_canvas = 0;  // registered with the manager as the two instances
    char m_jobTree = 0;
};
