#pragma once

#include "messages/WordError.h"

#include <QString>

#include <functional>
#include <vector>

class BoxAnswers;
class HostState;
class QWidget;
class SentMessages;

/// What actions work on.
struct StepContext {
    HostState* host;
    QWidget* window;  ///< the host's window
    BoxAnswers* boxes;
    SentMessages* sent;
    int line = 0;   ///< of the step in its file
    int pause = 0;  ///< milliseconds before the next action
};

/// Why an action was not done.
struct StepFault {
    bool mayPass;  ///< it is worth another try a moment later
    QString reason;
};
[[noreturn]] inline void notYet(const QString& reason)
{
    throw StepFault{true, reason};
}
[[noreturn]] inline void never(const QString& reason)
{
    throw StepFault{false, reason};
}

/// A part of a step that runs in one go, or throws a StepFault. One that opens a menu or a box
/// returns after that is closed; the next action runs meanwhile.
using StepAction = std::function<void(StepContext& context)>;
using StepActionList = std::vector<StepAction>;

/// A step of a session: what it does.
struct SessionStep {
    int line = 0;
    StepActionList actions;
    bool answersBox = false;  ///< may run while a message box waits
};

struct Session {
    QString file;
    std::vector<SessionStep> steps;
};
