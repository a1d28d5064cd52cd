#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QObject;
class QWidget;

/// Ensures that each entry is handled exactly once, whatever boxes open meanwhile.
///
/// A box takes the focus from whichever field has it, and Qt then reports that editing has
/// finished. For the field whose handler opened the box that is the same entry again, and is
/// ignored; for a line edit that nobody touched it is no entry at all. For any other field it is
/// an entry that was still pending, and Qt will not report it again: it is handled when the handler
/// that opened the box has finished.
class RefusalGuard {
public:
    using Handler = std::function<void()>;

    RefusalGuard() : m_state(std::make_shared<State>()) {}
    ~RefusalGuard() { m_state->isAlive = false; }
    RefusalGuard(const RefusalGuard&) = delete;
    RefusalGuard& operator=(const RefusalGuard&) = delete;

    /// Receives the report that editing has finished in `field`: `handler` runs now, after the box
    /// that is open, or not at all.
    void report(const QObject* field, Handler handler);

    /// Whether a handler of `field` is running.
    bool isHandling(const QObject* field) const;

    /// Whether a box keeps the user from `field`: one of a handler, or any other modal window.
    bool isBoxOver(const QWidget& field) const;

    /// Runs `action`, which may open a box about `field`; null: about no field.
    template <class Action>
    void run(const QObject* field, Action&& action)
    {
        runIn(m_state, field, std::forward<Action>(action));
    }

    /// Runs `check`, which may show a box, and returns its result.
    template <class Check>
    auto box(Check&& check)
    {
        const Box scope(m_state);
        return std::forward<Check>(check)();
    }

private:
    struct Report {
        const QObject* field;
        Handler handler;
    };
    /// Outlives the guard if a receiver deletes the dialog inside a handler.
    struct State {
        bool isAlive = true;
        int openBoxes = 0;
        std::vector<const QObject*> handled;  // fields whose handlers are running, innermost last
        std::vector<Report> pending;
    };
    class Box {
    public:
        explicit Box(std::shared_ptr<State> state) : m_state(std::move(state))
        {
            ++m_state->openBoxes;
        }
        ~Box() { --m_state->openBoxes; }
        Box(const Box&) = delete;
        Box& operator=(const Box&) = delete;

    private:
        std::shared_ptr<State> m_state;
    };

    // The state by value: the guard may be deleted inside the action.
    template <class Action>
    static void runIn(std::shared_ptr<State> state, const QObject* field, Action&& action)
    {
        state->handled.push_back(field);
        try {
            action();
        } catch (...) {
            leave(state);
            throw;
        }
        leave(state);
    }
    static void leave(const std::shared_ptr<State>& state);

    std::shared_ptr<State> m_state;
};
