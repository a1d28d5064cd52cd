#pragma once

#include <PluginMetaData.h>

#include <QApplication>
#include <QWidget>

#include <utility>

/// Receives the messages of a floor, by value and through a virtual call.
class Receiver {
public:
    virtual ~Receiver() = default;
    virtual void receive(PluginMetaData message) = 0;
};

/// A receiver that keeps the last message, as a canvas does, or drops it.
class CanvasFloor : public Receiver {
public:
    explicit CanvasFloor(bool keeps = true) : m_keeps(keeps) {}
    void receive(PluginMetaData message) override { take(message); }

    /// What happens to a message that has arrived, either way.
    void take(PluginMetaData& message)
    {
        ++m_count;
        if (m_keeps) {
            m_last = std::move(message);
        }
    }

    long count() const { return m_count; }
    const PluginMetaData& last() const { return m_last; }

private:
    bool m_keeps;
    long m_count = 0;
    PluginMetaData m_last{{}, {}};
};

/// Shows the window and returns when it and its children have been painted.
inline void showPainted(QWidget& window)
{
    struct Watch : QObject {
        bool eventFilter(QObject* /*watched*/, QEvent* event) override
        {
            isPainted = isPainted || event->type() == QEvent::Paint;
            return false;
        }
        bool isPainted = false;
    } watch;
    window.installEventFilter(&watch);
    window.show();
    while (!watch.isPainted) {
        QApplication::processEvents();
    }
}
