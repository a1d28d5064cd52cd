#pragma once

#include "BoxButton.h"
#include "ChosenFile.h"
#include "FindChild.h"
#include "StartWorkbench.h"
#include "messages/HostState.h"
#include "session/SessionParser.h"
#include "session/SessionPlayer.h"
#include "shared/Settings.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// The window, and what a user does with its files and menus.
class WindowFixture {
protected:
    QTemporaryDir m_directory;
    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<WorkbenchWindow> m_window;

    QStringList entries(const char* menu) const
    {
        QStringList names;
        for (const QAction* const action : findNamed<QMenu>(*m_window, menu).actions()) {
            names.append(action->isSeparator() ? QString("-")
                         : action->menu()      ? action->menu()->objectName()
                                               : action->objectName());
        }
        return names;
    }
    QAction& action(const char* name) const { return *m_window->findChild<QAction*>(name); }

    void drop(const QString& file) const
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        auto& board = *findNamed<QAbstractScrollArea>(*m_window, "m_pBoardView").viewport();
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&board, &enter);
        QVERIFY(enter.isAccepted());
        const QString title = m_window->windowTitle();
        QDropEvent drop(QPoint(50, 50), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                        Qt::ShiftModifier);
        drop.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(&board, &drop);
        QVERIFY(drop.isAccepted());
        QCOMPARE(drop.dropAction(), Qt::CopyAction);  // the file stays where it is
        // Where it comes from waits for nothing.
        QCOMPARE(m_window->windowTitle(), title);
        QCoreApplication::sendPostedEvents(m_window.get(), QEvent::MetaCall);
    }
    void restart(const Options& options)
    {
        m_window.reset();
        m_log = std::make_unique<MessageLog>();
        m_window = startWorkbench(*m_log, options);
        m_window->show();
    }
    void end()
    {
        Settings::keepIn({});
        m_window.reset();
        m_log.reset();
    }
    void play(const QByteArray& steps) const
    {
        SessionPlayer player(SessionParser::read(steps, "test"), m_window->host(), m_window.get(),
                             m_log.get());
        QSignalSpy finished(&player, &SessionPlayer::finished);
        QSignalSpy failed(&player, &SessionPlayer::failed);
        player.start();
        QVERIFY(finished.wait(10000));
        QVERIFY(failed.isEmpty());
    }
    QString write(const char* name, const QByteArray& text) const
    {
        QFile file(m_directory.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
            qFatal("%s", qPrintable(file.errorString()));
        }
        return file.fileName();
    }
    /// A job with the one step "first".
    QString writeJob(const QByteArray& name) const
    {
        return write("job.json", R"({"format":1,"jobs":[{"name":")" + name +
                                     R"(","steps":["first"],"fonts":[],"specialSymbols":[],
                                     "userSymbols":[],"specialTexts":[],"attributes":[]}]})");
    }
    QString writeBoard() const
    {
        return write("dropped.json",
                     R"({"format":1,"job":"a","step":"b","outline":[],"features":[]})");
    }
};
