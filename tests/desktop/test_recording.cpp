// What a user does on a real desktop is recorded; when it is played, the module sends the same.

#include "Desktop.h"
#include "FindChild.h"
#include "Main.h"
#include "OpenWindow.h"
#include "plugin/ModuleNames.h"
#include "session/SessionParser.h"
#include "session/SessionPlayer.h"
#include "session/SessionRecorder.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>

namespace {

constexpr int opensIn = 250;  // milliseconds until a menu or box takes a click

}  // namespace

class TestRecording : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<WorkbenchWindow> m_window;

    void openWindow()
    {
        m_log = std::make_unique<MessageLog>();
        m_window = ::openWindow(*m_log);
    }

    void closeWindow()
    {
        m_window.reset();
        m_log.reset();
    }

    /// What the module sent, with payload and object.
    QStringList trace() const
    {
        QStringList lines;
        for (const MessageRecord& message : m_log->messages()) {
            if (message.sender.startsWith(ModuleNames::bareToolStrip)) {
                QStringList entries;
                for (auto entry = message.payload.begin(); entry != message.payload.end();
                     ++entry) {
                    entries.append(
                        QString("%1:%2=%3").arg(entry.key(), entry->typeName(), entry->toString()));
                }
                const QString line = QString("%1 %2 %3")
                                         .arg(message.code)
                                         .arg(message.hasAddress() ? message.extraText()
                                                                   : QString::number(message.extra),
                                              entries.join(' '));
                // A window manager that moves the focus makes a field report its entry again.
                if (lines.isEmpty() || lines.last() != line) {
                    lines.append(line);
                }
            }
        }
        return lines;
    }

    QWidget& the(const char* name) const { return findNamed<QWidget>(*m_window, name); }

    /// Calls `act` when a popup or box of that kind is open, and again if it stays open: input too
    /// soon after opening is taken as part of that.
    template <class T>
    void whenOpen(const std::function<void(T*)>& act, const QPointer<T>& seen = {})
    {
        QTimer::singleShot(opensIn, this, [=] {
            auto* window = qobject_cast<T*>(QApplication::activePopupWidget());
            window = window ? window : qobject_cast<T*>(QApplication::activeModalWidget());
            const bool open = window && window->isVisible();
            if (!open && !seen) {
                whenOpen(act);
            } else if (open && (!seen || seen == window)) {
                const QPointer<T> first = window;
                act(window);
                if (first) {
                    whenOpen(act, first);
                }
            }
        });
    }

    void choose(const char* name, const QString& item)
    {
        auto& combo = findNamed<QComboBox>(*m_window, name);
        Desktop::click(combo);
        QTRY_VERIFY(combo.view()->isVisible());
        // Qt takes a click so soon after the first as part of a double click.
        QTest::qWait(QApplication::doubleClickInterval() + 50);
        const QWidget* const view = combo.view()->viewport();
        Desktop::clickAt(view->mapToGlobal(
            combo.view()->visualRect(combo.model()->index(indexOfItem(combo, item), 0)).center()));
        QTRY_VERIFY(!combo.view()->isVisible());
    }

    void useTools()
    {
        Desktop::click(the("m_pMoveFeatureTB"));
        whenOpen<QMenu>([](QMenu* menu) {
            const QRect entry = menu->actionGeometry(menu->actions().value(1));
            Desktop::clickAt(menu->mapToGlobal(entry.center()));
        });
        Desktop::click(the("m_pDeleteFeatTB"), 3);
        QTRY_VERIFY(!QApplication::activePopupWidget());
        whenOpen<QMenu>([](QMenu*) { Desktop::key("Escape"); });
        Desktop::click(the("m_pMarkTB"), 3);
        QTRY_VERIFY(!QApplication::activePopupWidget());
    }

    void describePad()
    {
        Desktop::click(the("m_pAddFeatureTB"));
        Desktop::waitForWindow(&the("AddFeature"));
        Desktop::click(the("m_pPadTB"));
        Desktop::click(the("m_pSymbolTextLE"));
        Desktop::type("nonsense");
        whenOpen<QMessageBox>([](QMessageBox*) { Desktop::key("Return"); });
        Desktop::key("Return");
        QTRY_VERIFY(!QApplication::activeModalWidget());
        Desktop::click(the("m_pSymbolTextLE"));
        Desktop::key("ctrl+a");
        Desktop::type("rect20x40");
        Desktop::key("Return");
        Desktop::click(the("m_pDrilNxLE"));
        Desktop::key("ctrl+a");
        Desktop::type("3");
        Desktop::key("Tab");
        choose("m_pMirrorCMB", "Mir");
        Desktop::click(the("m_pAttributesCB"), 1, {8, 10});
        QTRY_VERIFY(findNamed<QCheckBox>(*m_window, "m_pAttributesCB").isChecked());
    }

private Q_SLOTS:
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void handsAndTheirRecording()
    {
        const QString file = m_folder.filePath("hands.session");
        {
            SessionRecorder recorder(m_window.get());
            recorder.start(file);
            useTools();
            describePad();
        }
        const QStringList sent = trace();
        QVERIFY(sent.size() > 8);
        closeWindow();

        openWindow();
        QFile recorded(file);
        QVERIFY(recorded.open(QIODevice::ReadOnly));
        const QByteArray steps = recorded.readAll();
        QStringList commands;
        for (const QString& line : QString::fromUtf8(steps).split('\n')) {
            commands.append(SessionParser::split(line).value(0));
        }
        for (const char* const command : {"click", "rightclick", "type", "key", "choose", "box"}) {
            QVERIFY2(commands.contains(command), qPrintable(commands.join(' ')));
        }
        SessionPlayer player(SessionParser::read(steps, file), m_window->host(), m_window.get(),
                             m_log.get());
        const QSignalSpy finished(&player, &SessionPlayer::finished);
        const QSignalSpy failed(&player, &SessionPlayer::failed);
        player.start();
        QVERIFY(QTest::qWaitFor([&] { return finished.count() + failed.count() > 0; }, 30000));
        QVERIFY2(failed.isEmpty(), qPrintable(failed.value(0).value(0).toString()));
        QVERIFY2(trace() == sent, steps + "\n" + sent.join('\n').toUtf8() + "\nplayed:\n" +
                                      trace().join('\n').toUtf8());
    }
};

CTS_TEST(TestRecording);
#include "test_recording.moc"
