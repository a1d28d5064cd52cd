// Sessions played on a small test window: each kind of step, and each way to fail.

#include "Main.h"
#include "PlaySession.h"

#include <QComboBox>
#include <QEventLoop>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>

namespace {

template <class T>
T* add(QWidget* window, const char* name)
{
    auto* const widget = new T(window);
    widget->setObjectName(name);
    window->layout()->addWidget(widget);
    return widget;
}

/// Notes where and how it was clicked.
class ClickPad : public QWidget {
public:
    using QWidget::QWidget;
    QStringList clicks;

protected:
    void mousePressEvent(QMouseEvent* event) override { note("press", event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { note("double", event); }

private:
    void note(const char* what, QMouseEvent* event)
    {
        clicks.append(QString("%1 %2 %3").arg(what).arg(event->x()).arg(event->y()));
    }
};

}  // namespace

class TestSessionPlayer : public QObject {
    Q_OBJECT

    std::unique_ptr<QWidget> m_window;
    QPushButton* m_button = nullptr;
    QPushButton* m_boxButton = nullptr;
    QLineEdit* m_text = nullptr;
    QComboBox* m_combo = nullptr;
    ClickPad* m_pad = nullptr;
    QStringList m_noted;
    QStringList m_seen;  ///< the messages, as code and extra word

    /// What the player reports at the end: empty if the session was played to its end.
    QString play(const QString& text, int patience = shortPatience)
    {
        const Played played = playSession(text, m_window.get(), patience);
        m_noted = played.notes;
        m_seen = played.messages;
        return played.error;
    }

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        new QVBoxLayout(m_window.get());
        m_button = add<QPushButton>(m_window.get(), "m_pButtonPB");
        m_boxButton = add<QPushButton>(m_window.get(), "m_pBoxPB");
        m_text = add<QLineEdit>(m_window.get(), "m_pTextLE");
        m_combo = add<QComboBox>(m_window.get(), "m_pChoiceCMB");
        m_combo->addItems({"one", "two", "three"});
        m_pad = add<ClickPad>(m_window.get(), "m_pPad");
        m_pad->setMinimumSize(100, 60);
        connect(m_boxButton, &QPushButton::clicked, this,
                [this] { QMessageBox::information(m_window.get(), "Title", "Text"); });
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void clicks()
    {
        const QSignalSpy clicked(m_button, &QPushButton::clicked);
        QCOMPARE(play("click m_pButtonPB\nclick m_pButtonPB\nclick m_pPad 7 9\n"
                      "doubleclick m_pPad 11 12\n"),
                 QString());
        QCOMPARE(clicked.count(), 2);
        QCOMPARE(m_pad->clicks.first(), QString("press 7 9"));
        QCOMPARE(m_pad->clicks.last(), QString("double 11 12"));
    }

    void aVisibleWidgetIsPreferred()
    {
        // Widgets have no order of their own: with many hidden ones a wrong choice is seen.
        for (int i = 0; i < 20; ++i) {
            add<QPushButton>(m_window.get(), "m_pButtonPB")->hide();
        }
        const QSignalSpy clicked(m_button, &QPushButton::clicked);
        QCOMPARE(play("click m_pButtonPB\n"), QString());
        QCOMPARE(clicked.count(), 1);
    }

    void typing()
    {
        const QSignalSpy entered(m_text, &QLineEdit::returnPressed);
        m_text->setText("old");
        QCOMPARE(play("type m_pTextLE \"New text, 1.5\"\nkey m_pTextLE Enter\n"), QString());
        QCOMPARE(m_text->text(), QString("New text, 1.5"));
        QCOMPARE(entered.count(), 1);
        QCOMPARE(play("type m_pTextLE \"\"\n"), QString());
        QCOMPARE(m_text->text(), QString());
    }

    void choosing()
    {
        QCOMPARE(play("choose m_pChoiceCMB three\n"), QString());
        QCOMPARE(m_combo->currentText(), QString("three"));
    }

    void menus()
    {
        QStringList chosen;
        m_button->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(m_button, &QWidget::customContextMenuRequested, this, [&](const QPoint& at) {
            QMenu menu;
            menu.addAction("&First");
            menu.addAction("Save && close");
            menu.addAction("Closed")->setEnabled(false);
            const QAction* const action = menu.exec(m_button->mapToGlobal(at));
            chosen.append(action ? action->text() : "dismissed");
        });
        QCOMPARE(play("rightclick m_pButtonPB First\nrightclick m_pButtonPB 'Save & close'\n"
                      "rightclick m_pButtonPB\n"),
                 QString());
        QCOMPARE(chosen, (QStringList{"&First", "Save && close", "dismissed"}));
        QCOMPARE(play("rightclick m_pButtonPB Closed\n"),
                 QString("demo:1: no entry \"Closed\" to choose in the menu; there is First, "
                         "Save & close, Closed"));
        QCOMPARE(play("\nrightclick m_pBoxPB First\n"), QString("demo:2: no menu opened"));
    }

    void boxes()
    {
        QCOMPARE(play("box accept\nclick m_pBoxPB\n"), QString());
        QCOMPARE(m_noted, QStringList());
        QCOMPARE(play("click m_pBoxPB\nbox accept\n"), QString());
        QCOMPARE(m_noted, QStringList());
        QCOMPARE(play("click m_pBoxPB\nclick m_pButtonPB\n"), QString());
        QCOMPARE(m_noted, QStringList("demo:1: answered the box \"Title\": Text"));
        QCOMPARE(play("box accept\n"), QString("demo:1: the expected box did not appear"));
    }

    /// Longer than a step waits for what it expects.
    void whatAnAnswerCallsReturnsBeforeTheNextStep()
    {
        connect(m_button, &QPushButton::clicked, this, [this] {
            auto* const box = new QMessageBox(QMessageBox::Information, "Title", "Text",
                                              QMessageBox::Ok, m_window.get());
            connect(box, &QDialog::finished, this, [this] {
                QEventLoop work;
                QTimer::singleShot(500, &work, &QEventLoop::quit);
                work.exec();
                m_text->setText("done");
            });
            box->open();
        });
        QCOMPARE(play("click m_pButtonPB\nbox accept\nexpect state m_pTextLE text=done\n"),
                 QString());
    }

    void messages()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no module"));
        QCOMPARE(play("send 20000206 extra=1\nsend 20002400 JobName=demo StepName=pcb\n"),
                 QString());
        QCOMPARE(m_seen, (QStringList{"20000206 1", "20002400 0"}));
    }

    void picturesAndWaits()
    {
        const QTemporaryDir folder;
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(play(QString("wait 250\npicture %1/window.png\npicture %1/pad.png m_pPad\n")
                          .arg(folder.path())),
                 QString());
        QVERIFY(timer.elapsed() >= 250);
        QVERIFY(QImage(folder.filePath("window.png")).width() >= m_window->width());
        QCOMPARE(QImage(folder.filePath("pad.png")).size(), m_pad->size());
        const QString error = play(QString("picture %1/no/a.png\n").arg(folder.path()));
        QVERIFY2(error.startsWith("demo:1: the picture "), qPrintable(error));
    }

    void failures_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("unknown") << "click m_pButtonPC\n"
                                 << "demo:1: no widget \"m_pButtonPC\"; there is m_pButtonPB";
        QTest::newRow("disabled") << "wait 0\nclick m_pDisabledPB\n"
                                  << "demo:2: \"m_pDisabledPB\" is disabled";
        QTest::newRow("hidden") << "click m_pHiddenPB\n"
                                << "demo:1: \"m_pHiddenPB\" is not visible";
        QTest::newRow("outside") << "click m_pPad 5000 1\n"
                                 << "demo:1: \"m_pPad\" is only ";
        QTest::newRow("no combo box") << "choose m_pTextLE one\n"
                                      << "demo:1: \"m_pTextLE\" is not a combo box";
        QTest::newRow("no item") << "choose m_pChoiceCMB four\n"
                                 << "demo:1: ";
    }

    void failures()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        add<QPushButton>(m_window.get(), "m_pDisabledPB")->setEnabled(false);
        add<QPushButton>(m_window.get(), "m_pHiddenPB")->hide();
        const QString error = play(text);
        QVERIFY2(error.startsWith(expected), qPrintable(error));
        QVERIFY(!error.contains('\n'));
    }

    void waitsForAWidget()
    {
        m_button->hide();
        const QSignalSpy clicked(m_button, &QPushButton::clicked);
        QTimer::singleShot(60, m_button, &QWidget::show);
        QCOMPARE(play("click m_pButtonPB\n", longPatience), QString());
        QCOMPARE(clicked.count(), 1);
    }
};

CTS_TEST(TestSessionPlayer);
#include "test_session_player.moc"
