#pragma once

#include "ErrorOf.h"
#include "messages/HostState.h"
#include "messages/MessageLog.h"
#include "session/SessionParser.h"
#include "session/SessionPlayer.h"

#include <QSignalSpy>
#include <QTest>

// In ms, for what never comes, and for what comes late.
constexpr int shortPatience = 200;
constexpr int longPatience = 10000;

/// The outcome of a session.
struct Played {
    QString error;         ///< empty if it was played to its end
    QStringList notes;     ///< what the player noted
    QStringList messages;  ///< each message as code and extra word
};

/// Plays `text`, called "demo", on `window`; what is missing is waited for
/// that many milliseconds.
inline Played playSession(const QString& text, QWidget* window, int patience = shortPatience)
{
    Played played;
    Session session;
    played.error = errorOf([&] { session = SessionParser::read(text.toUtf8(), "demo"); });
    if (!played.error.isEmpty()) {
        return played;
    }
    HostState host(window);
    MessageLog log;
    SessionPlayer player(session, &host, window, &log);
    const QSignalSpy finished(&player, &SessionPlayer::finished);
    const QSignalSpy failed(&player, &SessionPlayer::failed);
    QObject::connect(&player, &SessionPlayer::noted, &player,
                     [&](const QString& note) { played.notes.append(note); });
    QObject::connect(&log, &MessageLog::appended, &player, [&](const MessageRecord& message) {
        played.messages.append(QString("%1 %2").arg(message.code).arg(message.extra));
    });
    player.setPatience(patience);
    player.start();
    if (!QTest::qWaitFor([&] { return finished.count() + failed.count() > 0; }, 15000)) {
        played.error = "the player does not end";
    } else if (!failed.isEmpty()) {
        played.error = failed[0][0].toString();
    }
    return played;
}
