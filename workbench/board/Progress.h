#pragma once

#include <cstddef>
#include <functional>
#include <utility>

namespace Pcb {

/// Ends a work whose listener throws it; nothing is written then.
struct Cancelled {};

/// Tells a listener how far a long work has come. The listener may throw Cancelled.
class Progress {
public:
    using Listener = std::function<void(double)>;  ///< from 0 to 1

    Progress() = default;
    explicit Progress(Listener listener, double from = 0, double to = 1)
        : m_listener(std::move(listener)), m_from(from), m_to(to)
    {
    }

    /// Told for one of a few features only, so that it may be called for each.
    void at(std::size_t done, std::size_t all) const
    {
        constexpr std::size_t interval = 64;
        if (m_listener && done % interval == 0) {
            tell(static_cast<double>(done) / static_cast<double>(all));
        }
    }
    void tell(double share) const
    {
        if (m_listener) {
            m_listener(m_from + (m_to - m_from) * share);
        }
    }
    /// For a part of the work.
    Progress part(double from, double to) const
    {
        return Progress(m_listener, m_from + (m_to - m_from) * from, m_from + (m_to - m_from) * to);
    }

private:
    Listener m_listener;
    double m_from = 0;
    double m_to = 1;
};

}  // namespace Pcb
