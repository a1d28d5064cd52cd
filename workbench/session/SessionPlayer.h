#pragma once

#include "session/BoxAnswers.h"
#include "session/Step.h"

#include <QElapsedTimer>
#include <QObject>

#include <deque>

class MessageLog;

/// Plays a session from the event loop, through menus, boxes and dialogs that run loops of their
/// own. Emits exactly one of finished() and failed().
class SessionPlayer : public QObject {
    Q_OBJECT

public:
    /// `host`, `window` and `log` are not owned and must outlive the player.
    SessionPlayer(const Session& session, HostState* host, QWidget* window, const MessageLog* log,
                  QObject* parent = nullptr);

    /// How long a step waits for what it needs; 3000 unless set.
    void setPatience(int milliseconds) { m_patience = milliseconds; }
    void start();
    bool isOver() const { return m_over; }
    /// Whether a box that opens now is one that the session answers.
    bool expectsBox() const;

Q_SIGNALS:
    void finished();
    /// "<file>:<line>: <reason>"
    void failed(const QString& text);
    /// Something that the author of the session should know: "<file>:<line>: <note>"
    void noted(const QString& text);

private:
    struct Entry {
        int line;
        StepAction action;
        bool answersBox;
    };

    void schedule(int milliseconds);
    void tick();
    bool answerBox();
    void runNext();
    void tryToFinish();
    bool waitedTooLong() const;
    QString at(const QString& text) const;
    void fail(const QString& reason);

    QString m_file;
    std::deque<Entry> m_entries;
    BoxAnswers m_boxes;
    const MessageLog* m_log;
    StepContext m_context;
    QElapsedTimer m_waiting;  ///< since the next action is due
    int m_patience = 3000;
    int m_line = 0;     ///< of the action that was started last
    int m_running = 0;  ///< actions that were started and have not returned
    bool m_over = false;
};
