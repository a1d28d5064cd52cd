#include "session/SessionPlayer.h"

#include "session/SentMessages.h"

#include <FileError.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <optional>

namespace {

constexpr int tickTime = 15;  // milliseconds

bool innerLoop()
{
    return QApplication::activePopupWidget() || QApplication::activeModalWidget();
}

}  // namespace

SessionPlayer::SessionPlayer(const Session& session, HostState* host, QWidget* window,
                             const MessageLog* log, QObject* parent)
    : QObject(parent), m_file(session.file), m_log(log), m_context{host, window, &m_boxes, nullptr}
{
    for (const SessionStep& step : session.steps) {
        for (const StepAction& action : step.actions) {
            m_entries.push_back({step.line, action, step.answersBox});
        }
    }
}

void SessionPlayer::start()
{
    // Earlier messages are not part of the session.
    m_context.sent = new SentMessages(m_log, this);
    m_waiting.start();
    schedule(0);
}

void SessionPlayer::schedule(int milliseconds)
{
    // One shot each: a timer does not fire again while its slot runs an inner loop.
    QTimer::singleShot(milliseconds, this, &SessionPlayer::tick);
}

void SessionPlayer::tick()
{
    if (m_over) {
        return;
    }
    schedule(tickTime);
    if (answerBox()) {
        return;
    }
    // An action that has not returned goes on by itself, unless it waits in an inner loop.
    if (m_waiting.elapsed() < m_context.pause || (m_running > 0 && !innerLoop())) {
        return;
    }
    if (m_entries.empty()) {
        tryToFinish();
    } else {
        runNext();
    }
}

bool SessionPlayer::answerBox()
{
    QMessageBox* const box = BoxAnswers::waiting();
    if (!box) {
        return false;
    }
    if (!m_boxes.anyExpected() && !m_entries.empty() && m_entries.front().answersBox) {
        runNext();
    }
    ++m_running;
    const BoxAnswers::Answer answer = m_boxes.answer(box);
    --m_running;
    m_waiting.restart();
    if (!answer.expected) {
        Q_EMIT noted(at(answer.note));
    } else if (!answer.fault.isEmpty()) {
        m_line = answer.line;
        fail(answer.fault);
    }
    return true;
}

bool SessionPlayer::expectsBox() const
{
    return m_boxes.anyExpected() || (!m_entries.empty() && m_entries.front().answersBox);
}

void SessionPlayer::runNext()
{
    const Entry entry = m_entries.front();
    m_entries.pop_front();
    m_line = entry.line;
    m_context.line = entry.line;
    m_context.pause = 0;
    std::optional<StepFault> fault;
    ++m_running;
    try {
        entry.action(m_context);
    } catch (const StepFault& thrown) {
        fault = thrown;
    }
    --m_running;
    if (m_over) {
        return;
    }
    if (!fault) {
        m_waiting.restart();
    } else if (!fault->mayPass || waitedTooLong()) {
        m_line = entry.line;
        fail(fault->reason);
    } else {
        m_entries.push_front(entry);
    }
}

void SessionPlayer::tryToFinish()
{
    if (m_running == 0 && !m_boxes.anyExpected()) {
        m_over = true;
        Q_EMIT finished();
    } else if (waitedTooLong()) {
        if (m_boxes.anyExpected()) {
            m_line = m_boxes.firstLine();
            fail(QStringLiteral("the expected box did not appear"));
        } else {
            fail(QStringLiteral("the session ends in an open menu or window"));
        }
    }
}

bool SessionPlayer::waitedTooLong() const
{
    return m_waiting.elapsed() > m_context.pause + m_patience;
}

QString SessionPlayer::at(const QString& text) const
{
    return CanvasHost::FileError{m_file, m_line, text}.text();
}

void SessionPlayer::fail(const QString& reason)
{
    m_over = true;
    Q_EMIT failed(at(reason));
}
