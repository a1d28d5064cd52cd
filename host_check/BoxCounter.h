#pragma once

#include <QTimer>

#include <utility>

/// Counts the modal boxes that are opened while it lives, and answers each of them. The windows of
/// a host from which something is chosen are no boxes, modal or not.
class BoxCounter {
public:
    BoxCounter();

    /// How many since the last call.
    int take() { return std::exchange(m_count, 0); }

private:
    void answer();

    QTimer m_timer;
    int m_count = 0;
};
