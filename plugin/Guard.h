#pragma once

#include <exception>

/// Where a guard stands.
struct GuardPosition {
    const char* context;  ///< of translation: the class whose slot is guarded
    const char* title;    ///< of the box, marked with QT_TRANSLATE_NOOP in that context
    const char* file;     ///< for the log, as the line
    int line;
};

/// Logs the two error lines of a thrown text, and shows it in an "Information" box.
void reportThrownText(const GuardPosition& position, const char* text);

/// Shows the message of a standard exception in the same box.
void reportException(const GuardPosition& position, const std::exception& exception);

/// Runs `action`, which calls the host, and reports what it throws: a text or a standard exception.
/// Anything else is passed on. True if `action` completed.
template <class Action>
bool guarded(const GuardPosition& position, Action&& action)
{
    try {
        action();
        return true;
    } catch (const char* text) {
        reportThrownText(position, text);
    } catch (const std::exception& exception) {
        reportException(position, exception);
    }
    return false;
}
