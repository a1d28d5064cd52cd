// Nothing typed is lost on a real desktop: with a window manager's focus, real keys and clicks, and
// boxes that stay open for half a second. And the dialog stays above the host's window.

#include "Agreement.h"
#include "Desktop.h"
#include "Entries.h"
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
#include <QTimer>

#include <algorithm>
#include <functional>
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
    BoxTextList boxes;

private:
    void look()
    {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || box == m_seen) {
            return;
        }
        m_seen = box;
        boxes.append({box->windowTitle(), box->text()});
        QTimer::singleShot(500, box, [box] { box->button(QMessageBox::Ok)->click(); });
    }

    QTimer m_watch;
    QPointer<QMessageBox> m_seen;
};

/// Half a second for each box: a few entries stand for all.
QVector<Entry> chosenEntries()
{
    const struct {
        const char* type;
        const char* field;
        bool isRefused;
    } chosen[] = {
        {"m_pPadTB", "m_pSymbolTextLE", false},    {"m_pPadTB", "m_pAngleValueSB", false},
        {"m_pPadTB", "m_pDrilDxLE", false},        {"m_pPadTB", "m_pDrilDxLE", true},
        {"m_pLineTB", "m_pCornerRadiusLE", false}, {"m_pLineTB", "m_pCornerRadiusLE", true},
        {"m_pTextTB", "m_pXSizeLE", false},        {"m_pTextTB", "m_pXSizeLE", true},
        {"m_pTextTB", "m_pTextLE", false},
    };
    QVector<Entry> found;
    for (const auto& row : chosen) {
        const auto entry =
            std::find_if(allEntries().cbegin(), allEntries().cend(), [&](const Entry& known) {
                return known.type() == row.type && known.field() == row.field &&
                       known.isRefused() == row.isRefused;
            });
        if (entry == allEntries().cend()) {
            qFatal("there is no such entry of %s", row.field);
        }
        found.append(*entry);
    }
    return found;
}

const QVector<Entry>& entries()
{
    static const QVector<Entry> chosen = chosenEntries();
    return chosen;
}

/// How the field is left.
struct Way {
    QString name;
    std::function<void()> leave;
    QString onlyOn = {};           ///< the button of the only page that has what is clicked
    bool closesTheDialog = false;  ///< what is not stored then is dropped
    BoxTextList boxes = {};
};

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

    void clickAnotherField() const { Desktop::click(control("m_pAttributesCB"), 1, QPoint(8, 10)); }

    void choose(const QString& combo, const QString& item) const
    {
        chooseItem(findNamed<QComboBox>(*m_dialog, combo), item);
    }

    QVector<Way> ways()
    {
        return {
            {"Tab", [] { Desktop::key("Tab"); }},
            {"Return", [] { Desktop::key("Return"); }},
            {"another field", [this] { clickAnotherField(); }},
            {"m_pLineTB", [this] { clickIfShown("m_pLineTB"); }},
            {"m_pTextTB", [this] { clickIfShown("m_pTextTB"); }},
            {"a tool", [this] { Desktop::click(tool("m_pRectSelectionTB")); }},
            {"the board", [this] { clickTheBoard(); }},
            {"close and open", [this] { closeTheDialog(); }, {}, true},
            {"AddFeature", [] { receive(Accepted::AddFeature); }},
            {"CloseDialogs", [] { receive(Accepted::CloseDialogs); }, {}, true},
            {"a host's box",
             [this] { QMessageBox::information(m_window.get(), "Host", "Elsewhere"); },
             {},
             false,
             {{"Host", "Elsewhere"}}},
            {"the symbol chooser", [this] { clickIfShown("m_pSymbolPB"); }},
            {"m_pLineCMB", [this] { choose("m_pLineCMB", "Single Line"); }, "m_pLineTB"},
            {"m_pFontPB", [this] { clickIfShown("m_pFontPB"); }, "m_pTextTB"},
        };
    }

    void closeOtherWindows() const
    {
        for (QWidget* const top : QApplication::topLevelWidgets()) {
            if (top != m_window.get() && top->isVisible()) {
                top->close();
            }
        }
    }

    void closeTheDialog() const
    {
        Desktop::closeByKeys(*m_dialog);
        QTRY_VERIFY(!m_dialog->isVisible());
    }

    void addRows(const QString& type)
    {
        QTest::addColumn<int>("entryNumber");
        QTest::addColumn<int>("wayNumber");
        for (int entry = 0; entry < entries().size(); ++entry) {
            for (int way = 0; way < ways().size(); ++way) {
                const QString onlyOn = ways()[way].onlyOn;
                if (entries()[entry].type() == type && (onlyOn.isEmpty() || onlyOn == type)) {
                    QTest::addRow("%s, %s", qPrintable(entries()[entry].words()),
                                  qPrintable(ways()[way].name))
                        << entry << way;
                }
            }
        }
    }

    void perform(const Step& step) const
    {
        if (step.act == Step::Act::Choose) {
            choose(step.control, step.text);
        } else {
            QCOMPARE(step.act, Step::Act::Click);
            Desktop::click(control(step.control));
        }
    }

    void enter(const Entry& entry) const
    {
        for (const Step& step : entry.reach()) {
            perform(step);
        }
        Desktop::click(control(entry.field()));
        Desktop::key("ctrl+a");
        Desktop::type(entry.typed());
    }

    void nothingTypedIsLost()
    {
        QFETCH(int, entryNumber);
        QFETCH(int, wayNumber);
        const Entry& entry = entries()[entryNumber];
        const Way way = ways()[wayNumber];
        const SlowHands hands;
        enter(entry);
        way.leave();
        QTRY_VERIFY(!QApplication::activeModalWidget());

        openDialog();
        m_dialog->activateWindow();
        clickAnotherField();
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QCOMPARE(m_agreement->faultOf(record()), QString());
        const bool isDropped = entry.recordKey() == RecordKeys::symbolText && way.closesTheDialog;
        QCOMPARE(record().value(entry.recordKey()).toString(),
                 isDropped ? QString() : entry.stored());
        const BoxTextList expected = entry.boxes() + way.boxes;
        QCOMPARE(hands.boxes.size(), expected.size());
        for (const BoxText& box : expected) {
            QCOMPARE(std::count_if(hands.boxes.cbegin(), hands.boxes.cend(),
                                   [&](const BoxText& seen) { return box.matches(seen); }),
                     1);
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_log = std::make_unique<MessageLog>();
        m_window = openWindow(*m_log);
    }

    void cleanupTestCase()
    {
        m_window.reset();
        m_log.reset();
    }

    void init()
    {
        openDialog();
        m_agreement = std::make_unique<Agreement>(*m_dialog);
        Desktop::move(*m_dialog, {Desktop::frame(*m_window).right() + 10, m_window->y()});
    }

    /// The strip makes another dialog for the next row.
    void cleanup()
    {
        m_agreement.reset();
        delete m_dialog;
        closeOtherWindows();
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
        const QRect host = Desktop::frame(*m_window);
        Desktop::move(*m_dialog, host.center() - QPoint(m_dialog->width() / 2, host.height() / 3));
        QVERIFY(host.contains(Desktop::frame(*m_dialog).center()));
        for (int i = 0; i < 3; ++i) {
            clickTheBoard();
            QTRY_VERIFY(m_window->isActiveWindow());
            QTest::qWait(200);
            QTRY_VERIFY(Desktop::isSeen(*m_dialog));
            QVERIFY(Desktop::frame(*m_window).contains(Desktop::frame(*m_dialog).center()));
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
