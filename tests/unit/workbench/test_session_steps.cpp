// The steps that expect something, and those of drags, wheel, menu bar and canvas.

#include "Main.h"
#include "PlaySession.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/RecordKeys.h"

#include <PluginManagerStandIn.h>
#include <QTpluginsManger4CAM.h>

#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTimer>
#include <QVBoxLayout>

namespace Sent = MessageCodes::Sent;

namespace {

/// Notes what the mouse does to it.
class EventPad : public QWidget {
public:
    using QWidget::QWidget;
    QStringList events;

protected:
    void mousePressEvent(QMouseEvent* event) override { note("press", event); }
    void mouseMoveEvent(QMouseEvent* event) override { note("move", event); }
    void mouseReleaseEvent(QMouseEvent* event) override { note("release", event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { note("double", event); }
    void wheelEvent(QWheelEvent* event) override
    {
        events.append(QString("wheel %1").arg(event->angleDelta().y()));
    }

private:
    void note(const char* what, QMouseEvent* event)
    {
        events.append(QString("%1 %2 %3 %4")
                          .arg(what)
                          .arg(event->x())
                          .arg(event->y())
                          .arg(static_cast<int>(event->buttons())));
    }
};

/// A canvas of 100 micrometres per pixel, its origin at the lower left.
class EventCanvas : public EventPad {
    Q_OBJECT

public:
    using EventPad::EventPad;
    Q_INVOKABLE QPoint viewPoint(double x, double y) const
    {
        return {qRound(x / 100), height() - qRound(y / 100)};
    }
};

}  // namespace

class TestSessionSteps : public QObject {
    Q_OBJECT

    std::unique_ptr<QWidget> m_window;
    QPushButton* m_button = nullptr;
    QComboBox* m_combo = nullptr;
    char m_viewer = 0;          // registered with the manager as the canvas
    QPointer<QWidget> m_strip;  // ... and as the tool strip and its parent
    std::map<std::string, std::string> m_attributes{{".net", "gnd"}};

    static void receive(void*, PluginMetaData) {}

    template <class T>
    T* add(const char* name)
    {
        auto* const widget = new T(m_window.get());
        widget->setObjectName(name);
        m_window->layout()->addWidget(widget);
        return widget;
    }

    void send(int code, const QMap<QString, QVariant>& payload = {}, qint64 extra = 0) const
    {
        sendFrom(m_strip, code, payload, extra);
    }
    static void sendFrom(QWidget* sender, int code, const QMap<QString, QVariant>& payload = {},
                         qint64 extra = 0)
    {
        PluginMetaData message(ModuleNames::toolStrip, ModuleNames::viewer);
        message.code = code;
        message.payload = payload;
        message.extra = extra;
        QTpluginsManger4CAM::instance()->recMegToPlugin(sender, message);
    }

    QString play(const QString& text, int patience = shortPatience)
    {
        return playSession(text, m_window.get(), patience).error;
    }

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->setObjectName("m_pDemo");
        new QVBoxLayout(m_window.get());
        m_button = add<QPushButton>("m_pSendPB");
        m_combo = add<QComboBox>("m_pChoiceCMB");
        m_combo->addItems({"one", "two"});
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        m_strip = new QWidget(m_window.get());
        CanvasHost::addInstance(ModuleNames::viewer, &m_viewer, &receive);
        CanvasHost::addInstance(ModuleNames::toolStrip, m_strip, &receive, m_strip);
    }

    void cleanup()
    {
        CanvasHost::removeInstance(&m_viewer);
        CanvasHost::removeInstance(m_strip);
        m_window.reset();
    }

    void messages_data()
    {
        QTest::addColumn<QString>("expectation");
        QTest::addColumn<QString>("error");
        const QString got = "demo:2: expected message 50%1, got message 50%2";
        QTest::newRow("code") << "50"
                              << "";
        QTest::newRow("receiver") << "50 to=Canvas_Viewer.dll"
                                  << "";
        QTest::newRow("sender") << "50 from=Canvas_Tool_Strip.dll"
                                << "";
        QTest::newRow("any type") << "50 Features=2 Symbol=r10 Half=0.5 On=true"
                                  << "";
        QTest::newRow("types") << "50 Features:int=2 Symbol:text=r10 Half:decimal=0.5 On:bool=true"
                               << "";
        QTest::newRow("number and total") << "50 extra=0 total=4"
                                          << "";
        QTest::newRow("object") << "51 extra:attributes=.net=gnd"
                                << "";
        QTest::newRow("another code") << "7"
                                      << "demo:2: expected message 7, got message 50 to "
                                         "Canvas_Viewer.dll, then message 51 to Canvas_Viewer.dll";
        QTest::newRow("another receiver")
            << "50 to=Canvas_JobTree.dll"
            << got.arg(" to Canvas_JobTree.dll", " to Canvas_Viewer.dll");
        QTest::newRow("another value")
            << "50 Symbol=r20" << got.arg(" with Symbol=r20", " with Symbol=r10");
        QTest::newRow("another type")
            << "50 Features:text=2" << got.arg(" with Features:text=2", " with Features:int=2");
        QTest::newRow("no such key")
            << "50 Colour=red" << got.arg(" with Colour=red", " with no Colour");
        QTest::newRow("another number")
            << "50 extra=1 total=5" << got.arg(" with extra=1 total=5", " with extra=0 total=4");
        QTest::newRow("another object")
            << "51 extra:attributes=.net=vcc"
            << "demo:2: expected message 51 with extra={.net=vcc}, got message 51 with "
               "extra={.net=gnd}";
    }

    void messages()
    {
        QFETCH(QString, expectation);
        QFETCH(QString, error);
        connect(m_button, &QPushButton::clicked, this, [this] {
            send(Sent::Record, {{RecordKeys::features, FeatureKind::pad.toInt()},
                                {"Symbol", QString("r10")},
                                {"Half", 0.5},
                                {"On", true}});
            send(Sent::AttributeMap, {}, ExtraWord::pointingAt(m_attributes));
        });
        QCOMPARE(play("click m_pSendPB\nexpect message " + expectation + "\n"), error);
    }

    void messagesAreTakenInOrder()
    {
        connect(m_button, &QPushButton::clicked, this, [this] {
            send(1);
            send(2);
            sendFrom(m_window.get(), 3);  // not by the module, whatever name it has
        });
        const QString click = "click m_pSendPB\n";
        QCOMPARE(play(click + "expect message 1\nexpect message 2\nexpect nothing\n"), QString());
        QCOMPARE(play(click + "expect message 2\nexpect nothing\n"), QString());
        QCOMPARE(play(click + "expect message 2\nexpect message 1\n"),
                 QString("demo:3: expected message 1, got no message"));
        QCOMPARE(play(click + "expect message 1\nexpect nothing\n"),
                 QString("demo:3: expected no further message, got message 2 to "
                         "Canvas_Viewer.dll"));
        // What was sent before the session started does not belong to it.
        send(9);
        QCOMPARE(play("expect nothing\n"), QString());
    }

    void lateMessage()
    {
        QTimer::singleShot(60, this, [this] { send(4); });
        QCOMPARE(play("expect message 4\n", longPatience), QString());
    }

    void states_data()
    {
        QTest::addColumn<QString>("expectation");
        QTest::addColumn<QString>("error");
        QTest::newRow("text") << "m_pSendPB text=Send"
                              << "";
        QTest::newRow("several") << "m_pSendPB checked=true enabled=true visible=true tip=Now"
                                 << "";
        QTest::newRow("combo box") << "m_pChoiceCMB current=two text=two items=one,two"
                                   << "";
        QTest::newRow("own property") << "m_pValueSB value=7 maximum=99 minimum=0"
                                      << "";
        QTest::newRow("enumeration") << "m_pDemo windowModality=NonModal title=Demo"
                                     << "";
        QTest::newRow("disabled") << "m_pValueSB enabled=true"
                                  << "expected enabled=\"true\" of \"m_pValueSB\", got \"false\"";
        QTest::newRow("other text") << "m_pSendPB \"text=Send it\""
                                    << "expected text=\"Send it\" of \"m_pSendPB\", got \"Send\"";
        QTest::newRow("no widget")
            << "m_pSendPC text=Send"
            << "expected text=\"Send\" of \"m_pSendPC\", got no widget \"m_pSendPC\"; there is "
               "m_pSendPB";
        QTest::newRow("no property") << "m_pSendPB colour=red"
                                     << "\"m_pSendPB\" has no colour";
        QTest::newRow("no text") << "m_pSendPB palette=red"
                                 << "palette of \"m_pSendPB\" has no text";
    }

    void states()
    {
        QFETCH(QString, expectation);
        QFETCH(QString, error);
        m_window->setWindowTitle("Demo");
        m_button->setText("Send");
        m_button->setCheckable(true);
        m_button->setChecked(true);
        m_button->setToolTip("Now");
        m_combo->setCurrentText("two");
        auto* const spin = add<QSpinBox>("m_pValueSB");
        spin->setValue(7);
        spin->setEnabled(false);
        QCOMPARE(play("expect state " + expectation + "\n"),
                 error.isEmpty() ? error : "demo:1: " + error);
    }

    void boxesWithTitleAndText()
    {
        QStringList answers;
        connect(m_button, &QPushButton::clicked, this, [&] {
            const auto answer = QMessageBox::question(m_window.get(), "Really?", "Two\nlines");
            answers.append(answer == QMessageBox::Yes ? "yes" : "no");
        });
        const QString click = "click m_pSendPB\n";
        QCOMPARE(play(click + "box accept title=Really? 'text=Two lines'\n"), QString());
        QCOMPARE(play("box reject\n" + click), QString());
        QCOMPARE(answers, (QStringList{"yes", "no"}));
        QCOMPARE(play(click + "box accept title=Why?\n"),
                 QString("demo:2: expected a box of the title \"Why?\", got \"Really?\""));
        // The line is that of the expectation, wherever the box opens.
        QCOMPARE(play("\nbox accept text=One\n" + click),
                 QString("demo:2: expected a box of the text \"One\", got \"Two lines\""));
    }

    void drags()
    {
        auto* const pad = add<EventPad>("m_pPad");
        pad->setMinimumSize(100, 60);
        QCOMPARE(play("press m_pPad 10 11\nmove m_pPad 20 21\nrelease m_pPad 300 22\n"), QString());
        QCOMPARE(pad->events, (QStringList{"press 10 11 1", "move 20 21 1", "release 300 22 0"}));
        pad->events.clear();
        QCOMPARE(play("press m_pPad 1 2 middle\nrelease m_pPad 1 2 middle\nrightclick m_pPad 5 6\n"
                      "wheel m_pPad -1.5\nwheel m_pPad 2 4 5\n"),
                 QString());
        QCOMPARE(pad->events, (QStringList{"press 1 2 4", "release 1 2 0", "press 5 6 2",
                                           "release 5 6 0", "wheel -180", "wheel 240"}));
    }

    void canvasInBoardUnits()
    {
        auto* const canvas = add<EventCanvas>("m_pBoardView");
        canvas->setFixedSize(120, 80);
        QCOMPARE(play("canvas click 1000 2000\ncanvas rightclick 1mm 2mm\n"
                      "canvas press 100mil 0.1inch middle\ncanvas move 9mm 1mm\n"
                      "canvas release 9mm 1mm middle\ncanvas wheel 1mm 1mm 1\n"),
                 QString());
        QCOMPARE(canvas->events, (QStringList{"press 10 60 1", "release 10 60 0", "press 10 60 2",
                                              "release 10 60 0", "press 25 55 4", "move 90 70 4",
                                              "release 90 70 0", "wheel 120"}));
        QCOMPARE(play("canvas click 100mm 0\n"),
                 QString("demo:1: \"m_pBoardView\" does not show 100000 0"));
        delete canvas;
        add<EventPad>("m_pBoardView");
        QCOMPARE(play("canvas click 1 1\n"),
                 QString("demo:1: \"m_pBoardView\" does not know places on the board: it has no "
                         "method viewPoint(double,double)"));
    }

    void menuBarAndClose()
    {
        auto* const bar = new QMenuBar(m_window.get());
        m_window->layout()->setMenuBar(bar);
        QMenu* const menu = bar->addMenu("&Demo");
        menu->setObjectName("m_pDemoMenu");
        QStringList chosen;
        for (const char* const text : {"&Start", "S&top"}) {
            QAction* const action = menu->addAction(text);
            connect(action, &QAction::triggered, this, [&, text] { chosen.append(text); });
        }
        menu->actions().last()->setObjectName("m_pStopAct");
        QCOMPARE(play("menu m_pDemoMenu Start\nmenu m_pDemoMenu m_pStopAct\n"), QString());
        QCOMPARE(chosen, (QStringList{"&Start", "S&top"}));
        QCOMPARE(play("menu m_pDemoMenu End\n"),
                 QString("demo:1: no entry \"End\" to choose in the menu; there is Start, Stop"));
        QCOMPARE(play("menu m_pSendPB Start\n"), QString("demo:1: \"m_pSendPB\" is not a menu"));

        QWidget other(m_window.get(), Qt::Window);
        other.setObjectName("m_pOther");
        other.show();
        QCOMPARE(play("close m_pOther\nexpect state m_pOther visible=false\n"), QString());
    }

    void greyedItem()
    {
        auto* const model = qobject_cast<QStandardItemModel*>(m_combo->model());
        model->item(1)->setEnabled(false);
        QCOMPARE(play("choose m_pChoiceCMB two\n"), QString("demo:1: the item \"two\" is greyed"));
        QCOMPARE(play("set m_pChoiceCMB two\nexpect state m_pChoiceCMB current=two\n"), QString());
        QVERIFY(play("set m_pChoiceCMB three\n").startsWith("demo:1: no item \"three\""));
        QCOMPARE(play("set m_pSendPB two\n"), QString("demo:1: \"m_pSendPB\" is not a combo box"));
    }
};

CTS_TEST(TestSessionSteps);
#include "test_session_steps.moc"
