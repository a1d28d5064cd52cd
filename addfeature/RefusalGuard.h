#pragma once

#include <utility>

/// Knows while a check of the host or of the dialog may have a box open.
///
/// A box takes the focus from the field that is being checked, and Qt then reports that editing has
/// finished once more. A handler that asks this guard first handles each entry once.
class RefusalGuard {
public:
    bool isOpen() const { return m_depth > 0; }

    /// Runs `check`, which may open a box, and returns its result.
    template <class Check>
    auto run(Check&& check)
    {
        const Scope scope(m_depth);
        return std::forward<Check>(check)();
    }

private:
    class Scope {
    public:
        explicit Scope(int& depth) : m_depth(depth) { ++m_depth; }
        ~Scope() { --m_depth; }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        int& m_depth;
    };

    int m_depth = 0;
};
