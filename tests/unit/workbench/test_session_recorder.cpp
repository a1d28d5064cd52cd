// What a user does is written as a session; played again, it sends the same messages.

#include "ErrorOf.h"
#include "Main.h"
#include "messages/HostState.h"
#include "messages/MessageLog.h"
#include "plugin/ModuleNames.h"
#include "session/SessionParser.h"
#include "session/SessionPlayer.h"
#include "session/SessionRecorder.h"

#include <PluginManagerStandIn.h>
#include <QTpluginsManger4CAM.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

namespace {

/// A canvas of 100 micrometres per pixel, its origin at the lower left.
class Canvas : public QWidget {
    Q_OBJECT

public:
    explicit Canvas(QWidget* parent) : QWidget(parent) { setFixedSize(120, 80); }

    Q_INVOKABLE QPoint viewPoint(double x, double y) const
    {
        return {qRound(x / 100), 80 - qRound(y / 100)};
    }
    Q_INVOKABLE QPointF boardPoint(const QPoint& at) const
    {
        return {at.x() * 100.0, (80 - at.y()) * 100.0};
    }

Q_SIGNALS:
    void happened(const QString& what);

protected:
    void mousePressEvent(QMouseEvent* event) override { note("press", event); }
    void mouseMoveEvent(QMouseEvent* event) override { note("move", event); }
    void mouseReleaseEvent(QMouseEvent* event) override { note("release", event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { note("double", event); }
    void wheelEvent(QWheelEvent* event) override
    {
        Q_EMIT happened(QString("wheel %1").arg(event->angleDelta().y()));
    }

private:
    void note(const char* what, QMouseEvent* event)
    {
        Q_EMIT happened(QString("%1 %2 %3 %4")
                            .arg(what)
                            .arg(event->x())
                            .arg(event->y())
                            .arg(static_cast<int>(event->buttons())));
    }
};

}  // namespace

class TestSessionRecorder : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<MessageLog> m_log;
    QStringList m_trace;  ///< the messages, as code and text
    char m_viewer = 0;    // registered with the manager as the canvas

    static void receive(void*, PluginMetaData) {}

    void send(int code, const QString& text)
    {
        PluginMetaData message(ModuleNames::toolStrip, ModuleNames::viewer);
        message.code = code;
        message.payload.insert("text", text);
        QTpluginsManger4CAM::instance()->recMegToPlugin(nullptr, message);
    }

    template <class T>
    T* add(const char* name)
    {
        auto* const widget = new T(m_window.get());
        widget->setObjectName(name);
        m_window->layout()->addWidget(widget);
        return widget;
    }

    template <class T = QWidget>
    T* the(const char* name)
    {
        return m_window->findChild<T*>(name);
    }

    void makeWindow()
    {
        m_window = std::make_unique<QWidget>();
        m_window->setObjectName("m_pDemo");
        new QVBoxLayout(m_window.get());
        auto* const bar = new QMenuBar(m_window.get());
        m_window->layout()->setMenuBar(bar);
        QMenu* const menu = bar->addMenu("&Demo");
        menu->setObjectName("m_pDemoMenu");
        QAction* const entry = menu->addAction("&Start");
        entry->setObjectName("m_pStartAct");
        connect(entry, &QAction::triggered, this, [this] { send(1, "started"); });
        auto* const undo = new QAction(m_window.get());
        undo->setShortcut(QKeySequence("Ctrl+K"));
        m_window->addAction(undo);
        connect(undo, &QAction::triggered, this, [this] { send(9, "shortcut"); });
        connect(add<QPushButton>("m_pSendPB"), &QPushButton::clicked, this,
                [this] { send(2, "clicked"); });
        connect(add<QPushButton>("m_pBoxPB"), &QPushButton::clicked, this, [this] {
            const auto answer =
                QMessageBox::question(m_window.get(), "Really \"now\"?", "Two\nlines",
                                      QMessageBox::Yes | QMessageBox::No);
            send(3, answer == QMessageBox::Yes ? "yes" : "no");
        });
        auto* const edit = add<QLineEdit>("m_pTextLE");
        connect(edit, &QLineEdit::editingFinished, this, [this, edit] { send(4, edit->text()); });
        auto* const combo = add<QComboBox>("m_pChoiceCMB");
        combo->addItems({"one", "two words", "three"});
        connect(combo, &QComboBox::currentTextChanged, this,
                [this](const QString& text) { send(5, text); });
        connect(add<QCheckBox>("m_pOnCB"), &QCheckBox::toggled, this,
                [this](bool on) { send(6, on ? "on" : "off"); });
        auto* const canvas = add<Canvas>("m_pBoardView");
        connect(canvas, &Canvas::happened, this, [this](const QString& what) { send(7, what); });
        makeContextMenu();
    }

    void makeContextMenu()
    {
        QWidget* const button = the("m_pSendPB");
        button->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(button, &QWidget::customContextMenuRequested, this, [this, button] {
            QMenu menu;
            menu.addAction("&First");
            menu.addAction("&Second one");
            const QAction* const action = menu.exec(button->mapToGlobal(QPoint(4, 4)));
            send(8, action ? action->text() : "dismissed");
        });
    }

    QWindow* handle() { return m_window->windowHandle(); }
    QPoint at(QWidget* widget, const QPoint& position)
    {
        return widget->mapTo(m_window.get(), position);
    }
    void write(const char* text)
    {
        for (; *text; ++text) {
            QTest::keyClick(handle(), *text);
        }
    }
    void click(const char* name, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(handle(), button, {}, at(the(name), the(name)->rect().center()));
    }

    /// Does `hand` while a recorder runs; returns the lines of the file without the header.
    QStringList record(const std::function<void()>& hand)
    {
        m_trace.clear();
        const QString file = m_folder.filePath("recorded.session");
        {
            SessionRecorder recorder(m_window.get());
            recorder.start(file);
            hand();
            QTest::qWait(20);
        }
        QFile in(file);
        in.open(QIODevice::ReadOnly);
        QStringList lines = QString::fromUtf8(in.readAll()).trimmed().split('\n');
        lines.removeFirst();
        return lines;
    }

    /// Plays what was recorded, on a new window; empty if it is played to the end.
    QString replay()
    {
        makeWindow();
        m_window->show();
        m_trace.clear();
        Session session;
        const QString error = errorOf(
            [&] { session = SessionParser::readFile(m_folder.filePath("recorded.session")); });
        if (!error.isEmpty()) {
            return error;
        }
        HostState host(m_window.get());
        SessionPlayer player(session, &host, m_window.get(), m_log.get());
        const QSignalSpy finished(&player, &SessionPlayer::finished);
        const QSignalSpy failed(&player, &SessionPlayer::failed);
        player.setPatience(500);
        player.start();
        if (!QTest::qWaitFor([&] { return finished.count() + failed.count() > 0; }, 15000)) {
            return "the player does not end";
        }
        return failed.isEmpty() ? QString() : failed[0][0].toString();
    }

    /// Calls `act` as soon as a window of that kind is open.
    template <class T>
    void whenOpen(const std::function<void(T*)>& act)
    {
        QTimer::singleShot(20, this, [=] {
            auto* window = qobject_cast<T*>(QApplication::activePopupWidget());
            window = window ? window : qobject_cast<T*>(QApplication::activeModalWidget());
            if (window && window->windowHandle() && window->windowHandle()->isExposed()) {
                act(window);
            } else {
                whenOpen(act);
            }
        });
    }

private Q_SLOTS:
    void init()
    {
        m_log = std::make_unique<MessageLog>();
        connect(m_log.get(), &MessageLog::appended, this, [this](const MessageRecord& message) {
            m_trace.append(
                QString("%1 %2").arg(message.code).arg(message.payload["text"].toString()));
        });
        CanvasHost::addInstance(ModuleNames::viewer, &m_viewer, &receive);
        makeWindow();
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        m_log.reset();
        CanvasHost::removeInstance(&m_viewer);
    }

    void buttonsAndTexts()
    {
        const QStringList lines = record([this] {
            click("m_pSendPB");
            click("m_pTextLE");
            write("r10 #\"a\"");
            QTest::keyClick(handle(), Qt::Key_Backspace);
            QTest::keyClick(handle(), Qt::Key_Return);
            QTest::keyClick(handle(), Qt::Key_Tab);
            QTest::mouseClick(handle(), Qt::LeftButton, {}, at(the("m_pOnCB"), {8, 9}));
        });
        QVERIFY(lines.value(1).startsWith("click m_pTextLE "));
        QStringList others = lines;
        others.removeAt(1);
        QCOMPARE(others,
                 (QStringList{"click m_pSendPB", "type m_pTextLE \"r10 #\\\"a\"",
                              "key m_pTextLE Enter", "key m_pTextLE Tab", "click m_pOnCB 8 9"}));
        const QStringList trace = m_trace;
        QCOMPARE(trace.first(), QString("2 clicked"));
        QVERIFY(trace.contains("4 r10 #\"a"));
        QCOMPARE(trace.last(), QString("6 on"));
        QCOMPARE(replay(), QString());
        QCOMPARE(m_trace, trace);
    }

    void shortcuts()
    {
        the("m_pSendPB")->setFocus();
        const QStringList lines =
            record([this] { QTest::keyClick(handle(), Qt::Key_K, Qt::ControlModifier); });
        QCOMPARE(lines, QStringList("key m_pSendPB Ctrl+K"));
        const QStringList trace = m_trace;
        QCOMPARE(trace, QStringList("9 shortcut"));
        QCOMPARE(replay(), QString());
        QCOMPARE(m_trace, trace);
    }

    void emptiedText()
    {
        the<QLineEdit>("m_pTextLE")->setText("old");
        const QStringList lines = record([this] {
            click("m_pTextLE");
            QTest::keyClick(handle(), Qt::Key_A, Qt::ControlModifier);
            QTest::keyClick(handle(), Qt::Key_Delete);
        });
        QCOMPARE(lines.last(), QString("type m_pTextLE \"\""));
    }

    void choices()
    {
        auto* const combo = the<QComboBox>("m_pChoiceCMB");
        const QStringList lines = record([&] {
            click("m_pChoiceCMB");
            // The release that belongs to the press that opened the list chooses nothing.
            QVERIFY(combo->view()->isVisible());
            QTest::qWait(QApplication::doubleClickInterval() + 50);
            QWidget* const view = combo->view()->viewport();
            const QRect item = combo->view()->visualRect(combo->model()->index(1, 0));
            QTest::mouseClick(view->window()->windowHandle(), Qt::LeftButton, {},
                              view->mapTo(view->window(), item.center()));
            QTest::qWait(20);
            click("m_pChoiceCMB");
            QTest::keyClick(combo->view()->window()->windowHandle(), Qt::Key_Down);
            QTest::keyClick(combo->view()->window()->windowHandle(), Qt::Key_Return);
        });
        QCOMPARE(lines, (QStringList{"choose m_pChoiceCMB \"two words\"",
                                     "choose m_pChoiceCMB three", "key m_pChoiceCMB Enter"}));
        const QStringList trace = m_trace;
        QCOMPARE(trace, (QStringList{"5 two words", "5 three"}));
        QCOMPARE(replay(), QString());
        QCOMPARE(m_trace, trace);
    }

    void menus()
    {
        const QStringList lines = record([this] {
            const auto pick = [](QMenu* menu) {
                const QRect entry = menu->actionGeometry(menu->actions().value(1));
                QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, entry.center());
            };
            whenOpen<QMenu>(pick);
            click("m_pSendPB", Qt::RightButton);
            whenOpen<QMenu>([](QMenu* menu) { QTest::keyClick(menu->windowHandle(), Qt::Key_F); });
            click("m_pSendPB", Qt::RightButton);
            whenOpen<QMenu>(
                [](QMenu* menu) { QTest::keyClick(menu->windowHandle(), Qt::Key_Escape); });
            click("m_pSendPB", Qt::RightButton);
            auto* const bar = m_window->findChild<QMenuBar*>();
            QTest::mouseClick(handle(), Qt::LeftButton, {},
                              at(bar, bar->actionGeometry(bar->actions().first()).center()));
            QMenu* const menu = bar->actions().first()->menu();
            QVERIFY(QTest::qWaitFor([=] { return menu->isVisible(); }));
            QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {},
                              menu->actionGeometry(menu->actions().first()).center());
        });
        QCOMPARE(lines.mid(0, 2), (QStringList{"rightclick m_pSendPB \"Second one\"",
                                               "rightclick m_pSendPB First"}));
        QVERIFY(lines.value(2).startsWith("rightclick m_pSendPB "));
        QCOMPARE(lines.mid(3), QStringList("menu m_pDemoMenu m_pStartAct"));
        const QStringList trace = m_trace;
        QCOMPARE(trace, (QStringList{"8 &Second one", "8 &First", "8 dismissed", "1 started"}));
        QCOMPARE(replay(), QString());
        QCOMPARE(m_trace, trace);
    }

    void boxes()
    {
        const QStringList lines = record([this] {
            whenOpen<QMessageBox>([](QMessageBox* box) {
                QWidget* const yes = box->button(QMessageBox::Yes);
                QTest::mouseClick(box->windowHandle(), Qt::LeftButton, {},
                                  yes->mapTo(box, yes->rect().center()));
            });
            click("m_pBoxPB");
            whenOpen<QMessageBox>(
                [](QMessageBox* box) { QTest::keyClick(box->windowHandle(), Qt::Key_Escape); });
            click("m_pBoxPB");
        });
        QCOMPARE(
            lines,
            (QStringList{
                "click m_pBoxPB", "box accept \"title=Really \\\"now\\\"?\" \"text=Two lines\"",
                "click m_pBoxPB", "box reject \"title=Really \\\"now\\\"?\" \"text=Two lines\""}));
        const QStringList trace = m_trace;
        QCOMPARE(trace, (QStringList{"3 yes", "3 no"}));
        QCOMPARE(replay(), QString());
        QCOMPARE(m_trace, trace);
    }

    void placesOnTheCanvas()
    {
        QWidget* const canvas = the("m_pBoardView");
        const QStringList lines = record([&] {
            QTest::mouseClick(handle(), Qt::LeftButton, {}, at(canvas, {10, 70}));
            QTest::mouseMove(handle(), at(canvas, {11, 20}));
            QTest::qWait(QApplication::doubleClickInterval() + 50);
            QTest::mousePress(handle(), Qt::MiddleButton, {}, at(canvas, {20, 60}));
            QTest::mouseMove(handle(), at(canvas, {60, 30}));
            QTest::mouseRelease(handle(), Qt::MiddleButton, {}, at(canvas, {60, 30}));
            QTest::mouseClick(handle(), Qt::RightButton, {}, at(canvas, {5, 5}));
        });
        QCOMPARE(lines, (QStringList{"canvas click 1000 1000", "canvas press 2000 2000 middle",
                                     "canvas move 6000 5000", "canvas release 6000 5000 middle",
                                     "canvas rightclick 500 7500"}));
        const QStringList trace = m_trace;
        QVERIFY(trace.contains("7 move 60 30 4"));
        QCOMPARE(replay(), QString());
        QCOMPARE(m_trace, trace);
    }

    void doubleClicksAndWheel()
    {
        QWidget* const canvas = the("m_pBoardView");
        const QStringList lines = record([&] {
            QTest::mouseDClick(handle(), Qt::LeftButton, {}, at(canvas, {10, 70}));
            const QPoint place = at(canvas, {30, 40});
            QWheelEvent turn(place, m_window->mapToGlobal(place), {}, {0, -240}, Qt::NoButton, {},
                             Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(handle(), &turn);
        });
        QCOMPARE(lines, (QStringList{"canvas doubleclick 1000 1000", "canvas wheel 3000 4000 -2"}));
        const QStringList trace = m_trace;
        QCOMPARE(trace.last(), QString("7 wheel -240"));
        QCOMPARE(replay(), QString());
        QCOMPARE(m_trace, trace);
    }

    void eachLineIsInTheFileAtOnce()
    {
        const QString file = m_folder.filePath("crash.session");
        SessionRecorder recorder(m_window.get());
        recorder.start(file);
        const auto lastLine = [&] {
            QFile in(file);
            in.open(QIODevice::ReadOnly);
            return QString::fromUtf8(in.readAll()).trimmed().section('\n', -1);
        };
        the("m_pTextLE")->setFocus();
        write("ab");
        QCOMPARE(lastLine(), QString("type m_pTextLE ab"));
        QTest::keyClick(handle(), Qt::Key_Backspace);
        QCOMPARE(lastLine(), QString("type m_pTextLE a"));
        QTest::mousePress(handle(), Qt::LeftButton, {}, at(the("m_pOnCB"), {8, 9}));
        QCOMPARE(lastLine(), QString("press m_pOnCB 8 9"));
        QTest::mouseRelease(handle(), Qt::LeftButton, {}, at(the("m_pOnCB"), {8, 9}));
        QCOMPARE(lastLine(), QString("click m_pOnCB 8 9"));
        const QString nowhere = m_folder.filePath("no/file");
        QVERIFY(errorOf([&] { recorder.start(nowhere); }).startsWith(nowhere + ": "));
    }

    void platformsDialogsWaitUntilItStops()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false);
        SessionRecorder recorder(m_window.get());
        recorder.start(m_folder.filePath("dialogs.session"));
        QVERIFY(QApplication::testAttribute(Qt::AA_DontUseNativeDialogs));
        recorder.stop({});
        QVERIFY(!QApplication::testAttribute(Qt::AA_DontUseNativeDialogs));
    }

    void wordsSurviveTheFile()
    {
        const QStringList words{"type", "m_pX", "",   "a b", "#x",
                                "it's", "\"",   "\\", "x#",  "\u00e9 \u4e2d"};
        QCOMPARE(SessionParser::split(SessionFile::lineOf(words)), words);
    }
};

CTS_TEST(TestSessionRecorder);
#include "test_session_recorder.moc"
