#pragma once

#include <QTimer>

/// Counts the modal windows that are opened while it lives, and answers each of them.
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
