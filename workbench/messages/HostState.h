#pragma once

#include "messages/HostMessage.h"

#include <UiApiStandIn.h>

#include <QObject>
#include <QString>

/// What the host owns (job and step, unit), and how the tool strip is told of a change.
class HostState : public QObject {
    Q_OBJECT

public:
    /// `window` is the sender pointer of every message.
    explicit HostState(QWidget* window);

    QString job() const { return m_job; }
    QString step() const { return m_step; }

    /// Opens a step, and its job if that is not open yet. An empty step means the job's first one.
    /// Does nothing for an unknown job.
    void openStep(const QString& job, const QString& step = {});
    /// Forgets the open job: the next one is another, whatever its name.
    void closeJob();
    void setUnit(CanvasHost::DisplayUnit unit);
    /// Tells tool strip, canvas and job tree of job and step, which a new one does not know.
    void announceJob();
    /// Sends a message to the tool strip.
    void send(const HostMessage& message);
    /// Sends a message of `code` with the entries that belong to it: the open job and step, or a
    /// sample of what would be picked on the board.
    void sendSample(int code);

Q_SIGNALS:
    void stepOpened(const QString& job, const QString& step);

private:
    void sendTo(const QString& module, const HostMessage& message);

    QWidget* m_window;
    QString m_job;
    QString m_step;
};
