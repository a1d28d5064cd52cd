#pragma once

#include "session/Session.h"

#include <functional>
#include <vector>

class BoxAnswers;
class HostState;
class QWidget;
class SentMessages;

/// What came of an action.
struct StepResult {
    enum Kind {
        Done,
        Again,  ///< not possible yet; `reason` says why, should it stay so
        Failed
    };
    Kind kind = Done;
    QString reason;
    int pause = 0;  ///< milliseconds before the next action
};

/// What actions work on.
struct StepContext {
    HostState* host;
    QWidget* window;  ///< the host's window
    BoxAnswers* boxes;
    SentMessages* sent;
    int line;  ///< of the step in its file
};

/// A part of a step that runs in one go. One that opens a menu or a box returns after that is
/// closed; the next action runs meanwhile.
using StepAction = std::function<StepResult(const StepContext&)>;
using StepActionList = std::vector<StepAction>;

struct StepKind {
    const char* name;
    const char* usage;
    int least;  ///< bounds of the number of arguments
    int most;
    QString (*check)(const QStringList& arguments);  ///< a reason, or empty; may be null
    StepActionList (*actions)(const QStringList& arguments);
    bool answersBox = false;  ///< may run while a message box waits
};

/// All steps that a session may have.
namespace StepTable {

/// Null for a name that is not known.
const StepKind* find(const QString& name);
QStringList names();

}  // namespace StepTable
