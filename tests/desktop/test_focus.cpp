// Nothing typed is lost on a real desktop: with a window manager's focus, real keys and clicks, and
// boxes that stay open for half a second. And the dialog stays above the host's window.

#include "Agreement.h"
#include "Desktop.h"
#include "FindChild.h"
#include "Main.h"
#include "OpenWindow.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <QTpluginsManger4CAM.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

#include <memory>

namespace Accepted = MessageCodes::Accepted;

namespace {

/// Answers each box once it has been open for half a second, and keeps the texts.
class SlowHands : public QObject {
public:
    SlowHands()
    {
        connect(&m_watch, &QTimer::timeout, this, [this] { look(); });
        m_watch.start(10);
    }
    QStringList texts;

private:
    void look()
    {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || box == m_seen) {
            return;
        }
        m_seen = box;
        texts.append(box->windowTitle() + '|' + box->text());
        QTimer::singleShot(500, box, [box] { box->button(QMessageBox::Ok)->click(); });
    }

    QTimer m_watch;
    QPointer<QMessageBox> m_seen;
};

struct Entry {
    const char* type;
    QStringList reach;  ///< "combo=item"
    const char* field;
    const char* typed;
    QString key;
    const char* stored;
    const char* box;  ///< how the refusal starts; null: accepted
};

const QVector<Entry>& entries()
{
    static const char length[] =
        "Information|The current text box can only enter a value from 0 to";
    static const QVector<Entry> all = {
        {"m_pPadTB", {}, "m_pSymbolTextLE", "s20", RecordKeys::symbolText, "s20", nullptr},
        {"m_pPadTB", {}, "m_pAngleValueSB", "45", RecordKeys::mirrorRotate, "45", nullptr},
        {"m_pPadTB", {}, "m_pDrilDxLE", "10", RecordKeys::padDx, "254", nullptr},
        {"m_pPadTB",
         {},
         "m_pDrilDxLE",
         "100001",
         RecordKeys::padDx,
         "0",
         "Information|The current value out of range:"},
        {"m_pLineTB",
         {"m_pLineCMB=2", "m_pCornerTypeCMB=1"},
         "m_pCornerRadiusLE",
         "10",
         RecordKeys::cornerRadius,
         "254",
         nullptr},
        {"m_pLineTB",
         {"m_pLineCMB=2", "m_pCornerTypeCMB=1"},
         "m_pCornerRadiusLE",
         "50001",
         RecordKeys::cornerRadius,
         "0",
         length},
        {"m_pTextTB", {}, "m_pXSizeLE", "100", RecordKeys::stringXSize, "2540", nullptr},
        {"m_pTextTB", {}, "m_pXSizeLE", "10001", RecordKeys::stringXSize, "0", length},
        {"m_pTextTB", {}, "m_pTextLE", "abc", RecordKeys::textContains, "abc", nullptr},
    };
    return all;
}

const QStringList ways = {"Tab",        "Return",   "another field", "m_pLineTB",
                          "m_pTextTB",  "a tool",   "the board",     "close and open",
                          "20004602",   "20002403", "a host's box",  "the symbol chooser",
                          "m_pLineCMB", "m_pFontPB"};

}  // namespace

class TestFocus : public QObject {
    Q_OBJECT

    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<WorkbenchWindow> m_window;
    std::unique_ptr<Agreement> m_agreement;
    QPointer<QWidget> m_dialog;

    QWidget& tool(const char* name) const { return findNamed(*m_window, QLatin1String(name)); }
    QWidget& control(const QString& name) const { return findNamed(*m_dialog, name); }

    void openDialog()
    {
        if (m_dialog && m_dialog->isVisible()) {
            return;
        }
        Desktop::click(tool("m_pAddFeatureTB"));
        m_dialog = &findNamed(*m_window, "AddFeature");
        Desktop::waitForWindow(m_dialog);
    }

    static void receive(int code)
    {
        PluginMetaData message("Host.dll", "Canvas_Tool_Strip.dll");
        message.code = code;
        QTpluginsManger4CAM::instance()->recMegToPlugin(nullptr, message);
    }

    QVariantMap record() const
    {
        QMetaObject::invokeMethod(m_dialog, "on_Line_Button_Clicked",
                                  Q_ARG(QAbstractButton*, nullptr));
        return m_log->messages().back().payload;
    }

    /// A place in the host's window that the dialog does not cover.
    void clickTheBoard() const
    {
        const QWidget& board = findNamed(*m_window, "m_pBoardView");
        Desktop::clickAt(board.mapToGlobal(QPoint(board.width() - 15, board.height() - 15)));
    }

    void clickIfShown(const QString& name) const
    {
        if (control(name).isVisible()) {
            Desktop::click(control(name));
        }
    }

    void leave(const QString& way)
    {
        if (way == "Tab" || way == "Return") {
            Desktop::key(way);
        } else if (way == "another field") {
            Desktop::click(control("m_pAttributesCB"), 1, QPoint(8, 10));
        } else if (way == "a tool") {
            Desktop::click(tool("m_pRectSelectionTB"));
        } else if (way == "the board") {
            clickTheBoard();
        } else if (way == "close and open") {
            Desktop::key("alt+F4");
            QTRY_VERIFY(!m_dialog->isVisible());
        } else if (way == "20004602") {
            receive(Accepted::AddFeature);
        } else if (way == "20002403") {
            receive(Accepted::CloseDialogs);
        } else if (way == "a host's box") {
            QMessageBox::information(m_window.get(), "Host", "Elsewhere");
        } else if (way == "the symbol chooser") {
            clickIfShown("m_pSymbolPB");
        } else if (way == "m_pLineCMB") {
            findNamed<QComboBox>(*m_dialog, way).setCurrentIndex(0);
        } else {
            clickIfShown(way);
        }
        QTest::qWait(100);
    }

    static void addRows(const char* type)
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("way");
        for (int number = 0; number < entries().size(); ++number) {
            for (const QString& way : ways) {
                const Entry& entry = entries()[number];
                const bool isPossible = qstrcmp(entry.type, type) == 0 &&
                                        (way != "m_pLineCMB" || qstrcmp(type, "m_pLineTB") == 0) &&
                                        (way != "m_pFontPB" || qstrcmp(type, "m_pTextTB") == 0);
                if (isPossible) {
                    QTest::addRow("%s %s, %s", entry.field, entry.typed, qPrintable(way))
                        << number << way;
                }
            }
        }
    }

    void nothingTypedIsLost()
    {
        QFETCH(int, number);
        QFETCH(QString, way);
        const Entry& entry = entries()[number];
        const SlowHands hands;
        Desktop::click(control(entry.type));
        for (const QString& step : entry.reach) {
            findNamed<QComboBox>(*m_dialog, step.section('=', 0, 0))
                .setCurrentIndex(step.section('=', 1).toInt());
        }
        Desktop::click(control(entry.field));
        Desktop::key("ctrl+a");
        Desktop::type(entry.typed);
        leave(way);
        QTRY_VERIFY(!QApplication::activeModalWidget());

        openDialog();
        m_dialog->activateWindow();
        Desktop::click(control("m_pAttributesCB"), 1, QPoint(8, 10));
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QCOMPARE(m_agreement->faultOf(record()), QString());
        const bool isDropped =
            entry.key == RecordKeys::symbolText && (way == "close and open" || way == "20002403");
        QCOMPARE(record().value(entry.key).toString(), QString(isDropped ? "" : entry.stored));
        QCOMPARE(hands.texts.filter("Host|Elsewhere").size(), way == "a host's box" ? 1 : 0);
        QCOMPARE(hands.texts.filter(entry.box ? entry.box : "|").size(),
                 (entry.box ? 1 : 0) + (!entry.box && way == "a host's box" ? 1 : 0));
    }

private Q_SLOTS:
    void init()
    {
        m_log = std::make_unique<MessageLog>();
        m_window = openWindow(*m_log);
        m_dialog = nullptr;
        openDialog();
        m_agreement = std::make_unique<Agreement>(*m_dialog);
        m_dialog->move(m_window->frameGeometry().right() + 10, m_window->y());
    }

    void cleanup()
    {
        m_agreement.reset();
        m_window.reset();
        m_log.reset();
    }

    void padEntries_data() { addRows("m_pPadTB"); }
    void padEntries() { nothingTypedIsLost(); }

    void lineEntries_data() { addRows("m_pLineTB"); }
    void lineEntries() { nothingTypedIsLost(); }

    void textEntries_data() { addRows("m_pTextTB"); }
    void textEntries() { nothingTypedIsLost(); }

    /// The host's window comes to the front when it is clicked, but not above the dialog.
    void dialogStaysAboveTheHostsWindow()
    {
        const QRect host = m_window->frameGeometry();
        m_dialog->move(host.center() - QPoint(m_dialog->width() / 2, host.height() / 3));
        QTest::qWait(150);
        QVERIFY(host.contains(m_dialog->frameGeometry().center()));
        for (int i = 0; i < 3; ++i) {
            clickTheBoard();
            QTRY_VERIFY(m_window->isActiveWindow());
            QTest::qWait(200);
            const QImage wanted = m_dialog->grab().toImage().convertToFormat(QImage::Format_RGB32);
            const QPoint corner = m_dialog->mapToGlobal(QPoint());
            const QImage seen =
                m_dialog->screen()
                    ->grabWindow(0, corner.x(), corner.y(), m_dialog->width(), m_dialog->height())
                    .toImage()
                    .convertToFormat(QImage::Format_RGB32);
            QCOMPARE(seen.size(), wanted.size());
            int different = 0;
            for (int y = 0; y < seen.height(); ++y) {
                for (int x = 0; x < seen.width(); ++x) {
                    different += seen.pixel(x, y) != wanted.pixel(x, y);
                }
            }
            // A cursor may blink.
            QVERIFY2(different * 100 < seen.width() * seen.height(),
                     qPrintable(QString::number(different)));
            const char* const type = i % 2 ? "m_pLineTB" : "m_pPadTB";
            Desktop::click(control(type));
            QVERIFY(findNamed<QAbstractButton>(*m_dialog, type).isChecked());
        }
    }

    /// Coming to the front, the dialog does not take the focus.
    void theHostsWindowKeepsTheFocus()
    {
        clickTheBoard();
        QTRY_VERIFY(m_window->isActiveWindow());
        QTest::qWait(200);
        QVERIFY(m_window->isActiveWindow());
        QVERIFY(!m_dialog->isActiveWindow());
    }
};

CTS_TEST(TestFocus);
#include "test_focus.moc"
