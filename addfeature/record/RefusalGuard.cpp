#include "addfeature/record/RefusalGuard.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

void RefusalGuard::report(const QObject* field, Handler handler)
{
    if (m_state->openBoxes == 0) {
        run(field, handler);
        return;
    }
    std::vector<Report>& pending = m_state->pending;
    const bool isNoted = std::any_of(pending.begin(), pending.end(), [field](const Report& report) {
        return report.field == field;
    });
    if (!isHandling(field) && !isNoted) {
        pending.push_back({field, std::move(handler)});
    }
}

bool RefusalGuard::isHandling(const QObject* field) const
{
    const std::vector<const QObject*>& handled = m_state->handled;
    return std::find(handled.begin(), handled.end(), field) != handled.end();
}

bool RefusalGuard::isBoxOver(const QWidget& field) const
{
    const QWidget* box = QApplication::activeModalWidget();
    // One that was closed as soon as it opened may become the active window afterwards.
    const QWidget* const active = QApplication::activeWindow();
    if (!box && active && active->isModal()) {
        box = active;
    }
    // The host's window may be modal itself: it does not block what belongs to it.
    const QWidget* owner = &field;
    while (owner && owner != box) {
        owner = owner->parentWidget();
    }
    return m_state->openBoxes > 0 || (box && !owner);
}

/// After the outermost handler, what was reported while its boxes were open is handled.
void RefusalGuard::leave(const std::shared_ptr<State>& state)
{
    state->handled.pop_back();
    if (state->isAlive && state->handled.empty() && !state->pending.empty()) {
        const Report next = std::move(state->pending.front());
        state->pending.erase(state->pending.begin());
        runIn(state, next.field, next.handler);
    }
}
