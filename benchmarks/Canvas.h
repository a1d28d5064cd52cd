#pragma once

#include <PluginMetaData.h>

/// Who receives the messages of either side: the one virtual call that both of them end with.
class Receiver {
public:
    virtual ~Receiver() = default;
    virtual void receive(PluginMetaData message) = 0;
};

/// A receiver that keeps the last message, as a canvas does, or drops it.
class Canvas : public Receiver {
public:
    explicit Canvas(bool keeps = true) : m_keeps(keeps) {}
    void receive(PluginMetaData message) override;

    long count() const { return m_count; }
    const PluginMetaData& last() const { return m_last; }

private:
    bool m_keeps;
    long m_count = 0;
    PluginMetaData m_last{{}, {}};
};

/// While it lives, the plug-in manager that the module is linked with hands every message straight
/// to `receiver`. The manager of the stand-ins looks instances up and shows messages to an
/// observer, which is no work of the module's.
class Connected {
public:
    explicit Connected(Receiver& receiver);
    ~Connected();
    Connected(const Connected&) = delete;
    Connected& operator=(const Connected&) = delete;
};
