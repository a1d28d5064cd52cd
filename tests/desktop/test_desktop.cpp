// The running workbench, used as a user does.

#include "BoxCatcher.h"
#include "Desktop.h"
#include "FieldBounds.h"
#include "FindChild.h"
#include "Main.h"
#include "OpenWindow.h"
#include "ToolRows.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/RecordKeys.h"
#include "plugin/ToolModes.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>
#include <QToolButton>

#include <memory>

namespace Sent = MessageCodes::Sent;

namespace {

/// An entry that is refused in one box.
class Refusal {
public:
    explicit Refusal(const QString& type = {}, const QString& field = {})
        : m_type(type), m_field(field)
    {
    }
    Refusal& of(const QString& typed) { return m_typed = typed, *this; }
    Refusal& leaves(const QString& shown) { return m_shown = shown, *this; }
    Refusal& opens(const BoxText& box) { return m_box = box, *this; }

    QString words() const { return m_field + ' ' + m_typed; }
    QString type() const { return m_type; }
    QString field() const { return m_field; }
    QString typed() const { return m_typed; }
    QString shown() const { return m_shown; }
    BoxText box() const { return m_box; }

private:
    QString m_type;
    QString m_field;
    QString m_typed;
    QString m_shown;
    BoxText m_box;
};

}  // namespace
Q_DECLARE_METATYPE(Refusal)

class TestDesktop : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<WorkbenchWindow> m_window;

    QToolButton& tool(const char* name) const
    {
        return findNamed<QToolButton>(*m_window, QLatin1String(name));
    }

    /// What strip and dialog have sent since the log was cleared.
    QVector<int> sent() const
    {
        QVector<int> codes;
        for (const MessageRecord& message : m_log->messages()) {
            if (message.sender.startsWith(ModuleNames::bareToolStrip)) {
                codes.append(message.code);
            }
        }
        return codes;
    }

    QWidget& openDialog(const char* typeButton)
    {
        Desktop::click(tool("m_pAddFeatureTB"));
        auto& dialog = findNamed<QWidget>(*m_window, "AddFeature");
        Desktop::waitForWindow(&dialog);
        Desktop::click(findNamed(dialog, QLatin1String(typeButton)));
        m_log->clear();
        return dialog;
    }

    /// Where the round pad at the board's upper right is on the screen.
    static QPoint bigPad(const QWidget& board)
    {
        return board.mapToGlobal(QPoint(board.width() * 748 / 1000, board.height() * 24 / 100));
    }

    /// Opens the right-click menu of a tool and hands it to `inMenu`, which closes it.
    void rightClick(const char* name, const std::function<void(QMenu&)>& inMenu)
    {
        bool seen = false;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            if (auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
                watch.stop();
                seen = true;
                inMenu(*menu);
            }
        });
        watch.start(20);
        Desktop::click(tool(name), 3);
        QTRY_VERIFY(seen);
        QTRY_VERIFY(!QApplication::activePopupWidget());
    }

private Q_SLOTS:
    void init()
    {
        m_log = std::make_unique<MessageLog>();
        m_window = openWindow(*m_log);
    }

    void cleanup()
    {
        m_window.reset();
        m_log.reset();
    }

    void everyTool()
    {
        auto& label = findNamed<QLabel>(*m_window, "m_pActiveToolLB");
        QStringList shown;
        for (const ToolRow& row : toolRows()) {
            if (!row.isEnabled || row.opensWindow) {
                continue;
            }
            m_log->clear();
            Desktop::click(tool(qPrintable(row.objectName)));
            QCOMPARE(sent(), QVector<int>{row.code});
            QVERIFY(tool(qPrintable(row.objectName)).isChecked());
            shown.append(label.text());
        }
        QVERIFY(shown.size() > 15);
        // The canvas names another tool each time.
        QCOMPARE(shown.removeDuplicates(), 0);
    }

    void disabledToolsIgnoreClicks()
    {
        for (const char* const name : {"m_pRotateFeatureTB", "m_pPullLineTB"}) {
            Desktop::click(tool(name));
        }
        QVERIFY(sent().isEmpty());
        QVERIFY(tool("m_pAreaZoomTB").isChecked());
    }

    void menuByMouse()
    {
        rightClick("m_pDeleteFeatTB", [](QMenu& menu) {
            QCOMPARE(menu.actions().size(), 2);
            const QRect entry = menu.actionGeometry(menu.actions()[1]);
            Desktop::clickAt(menu.mapToGlobal(entry.center()));
        });
        QCOMPARE(sent(), QVector<int>{Sent::DeleteFeature});
        QCOMPARE(m_log->messages().back().extra, DeleteMode::toIntersection);
        QVERIFY(tool("m_pDeleteFeatTB").isChecked());
        Desktop::click(tool("m_pAreaZoomTB"));
        Desktop::click(tool("m_pDeleteFeatTB"));
        QCOMPARE(m_log->messages().back().extra, DeleteMode::toIntersection);
    }

    void menuByKeyboard()
    {
        rightClick("m_pSelectPolylineTB", [](QMenu&) {
            Desktop::key("Down");
            Desktop::key("Down");
            Desktop::key("Return");
        });
        QCOMPARE(sent(), QVector<int>{Sent::SelectBoardNet});
        QVERIFY(tool("m_pSelectPolylineTB").isChecked());
    }

    void dismissedMenu()
    {
        rightClick("m_pMarkTB", [](QMenu&) { Desktop::key("Escape"); });
        QVERIFY(sent().isEmpty());
        QVERIFY(tool("m_pAreaZoomTB").isChecked());
        rightClick("m_pMarkTB",
                   [this](QMenu&) { Desktop::clickAt(m_window->pos() + QPoint(700, 400)); });
        QVERIFY(sent().isEmpty());
    }

    void refusedOnce_data()
    {
        QTest::addColumn<Refusal>("refusal");
        QTest::addColumn<QString>("way");
        const QVector<Refusal> refusals = {
            Refusal("m_pPadTB", "m_pSymbolTextLE").of("foo").leaves("").opens(BoxTexts::symbol()),
            Refusal("m_pPadTB", "m_pDrilDxLE")
                .of(FieldBounds::of("m_pDrilDxLE").justAbove())
                .leaves("0")
                .opens(BoxTexts::coordinate(FieldBounds::of("m_pDrilDxLE").maximum)),
        };
        for (const Refusal& refusal : refusals) {
            for (const char* const way : {"Tab", "Return", "mouse"}) {
                QTest::addRow("%s by %s", qPrintable(refusal.words()), way) << refusal << way;
            }
        }
    }

    void refusedOnce()
    {
        QFETCH(Refusal, refusal);
        QFETCH(QString, way);
        BoxCatcher boxes;
        QWidget& dialog = openDialog(qPrintable(refusal.type()));
        auto& entry = findNamed<QLineEdit>(dialog, refusal.field());
        Desktop::click(entry);
        Desktop::key("ctrl+a");
        Desktop::type(refusal.typed());
        QCOMPARE(entry.text(), refusal.typed());
        if (way == "mouse") {
            Desktop::click(findNamed(dialog, "m_pAttributesCB"), 1, QPoint(8, 10));
        } else {
            Desktop::key(way);
        }
        QTRY_COMPARE(entry.text(), refusal.shown());
        QTest::qWait(100);
        QCOMPARE(boxes.takeTexts(), BoxTextList{refusal.box()});
    }

    void aWholeLine()
    {
        QWidget& dialog = openDialog("m_pLineTB");
        Desktop::click(findNamed(dialog, "m_pSymbolTextLE"));
        Desktop::type("r10");
        Desktop::key("Tab");
        QCOMPARE(sent(), QVector<int>{Sent::Record});
        QCOMPARE(m_log->messages().back().payload.value(RecordKeys::symbolText),
                 QVariant(QString("r10")));
        QVERIFY(m_log->messages().back().delivered);
        dialog.close();
        QTRY_VERIFY(tool("m_pAreaZoomTB").isChecked());
    }

    void pickedOnTheCanvas()
    {
        QWidget& dialog = openDialog("m_pLineTB");
        auto& symbol = findNamed<QLineEdit>(dialog, "m_pSymbolTextLE");
        Desktop::click(findNamed(dialog, "m_pSelectFromEditorPB"));
        QCOMPARE(sent(), QVector<int>{Sent::SelectSymbol});
        const auto& board = findNamed(*m_window, "m_pBoardView");
        Desktop::move(dialog, {m_window->x(), Desktop::frame(*m_window).bottom() + 10});
        Desktop::clickAt(bigPad(board));
        QTRY_VERIFY(!symbol.text().isEmpty());
        QVERIFY(symbol.text().startsWith('r'));
        const MessageRecord& record = m_log->messages().back();
        QCOMPARE(record.code, Sent::Record);
        QCOMPARE(record.payload.value(RecordKeys::symbolText), QVariant(symbol.text()));
    }

    void attributesOfAPickedFeature()
    {
        QWidget& dialog = openDialog("m_pLineTB");
        Desktop::click(findNamed(dialog, "m_pAttributesCB"), 1, QPoint(8, 10));
        Desktop::click(findNamed(dialog, "m_pValuesPB"));
        auto& values = findNamed<QWidget>(dialog, "Widget_Attributes");
        Desktop::waitForWindow(&values);
        // Behind the host's window, which comes to the front when it is clicked.
        values.resize(420, 160);
        Desktop::move(values, {m_window->x(), Desktop::frame(*m_window).bottom() + 10});
        Desktop::move(dialog, {values.x() + 460, values.y()});
        m_log->clear();
        Desktop::click(findNamed(values, "m_pFromEditorPB"));
        Desktop::clickAt(bigPad(findNamed(*m_window, "m_pBoardView")));
        QTRY_VERIFY(findNamed(dialog, "m_pValuesPB").styleSheet().contains("rgb(255, 0, 0)"));
        Desktop::click(findNamed(values, "m_pApplyPB"));
        QTRY_COMPARE(m_log->messages().back().code, Sent::AttributeMap);
        QVERIFY(!m_log->messages().back().pointedAt.isEmpty());
        QVERIFY(m_log->messages().front().sender == ModuleNames::ruleMenu);
    }

    void dimensionsFromTheMenu()
    {
        QAction* const action = m_window->findChild<QAction*>("m_pDimensionsAct");
        QVERIFY(action);
        action->trigger();
        auto& popup = findNamed<QWidget>(*m_window, "m_pDimensions");
        QTRY_VERIFY(popup.isVisible());
        QVERIFY(popup.isWindow());
        Desktop::waitForWindow(&popup);
        m_log->clear();
        Desktop::click(findNamed(popup, "m_pAddReferencePB"));
        QVERIFY(m_log->messages().empty());
    }

    void closingTheWindowWithAnUnfinishedSymbol()
    {
        BoxCatcher boxes;
        QWidget& dialog = openDialog("m_pLineTB");
        Desktop::click(findNamed(dialog, "m_pSymbolTextLE"));
        Desktop::type("r");
        Desktop::closeByKeys(dialog);
        QTRY_VERIFY(!dialog.isVisible());
        QTest::qWait(100);
        QVERIFY(boxes.takeTexts().isEmpty());
        QCOMPARE(sent(), QVector<int>{Sent::AreaZoom});
    }

    void keysWhileTheDialogIsActive()
    {
        QWidget& dialog = openDialog("m_pSurfaceTB");
        const auto& board = findNamed(*m_window, "m_pBoardView");
        Desktop::move(dialog, {m_window->x(), Desktop::frame(*m_window).bottom() + 10});
        Desktop::clickAt(bigPad(board));
        Desktop::clickAt(bigPad(board) + QPoint(30, 30));
        const auto undo = [&] { return tool("m_pUndoTB").toolTip(); };
        QTRY_COMPARE(undo(), QString("Undo: Add feature"));

        Desktop::click(findNamed(dialog, "m_pSurfaceTB"));
        Desktop::waitForWindow(&dialog);
        Desktop::key("ctrl+z");
        QTRY_COMPARE(undo(), QString("Undo: "));
        Desktop::key("ctrl+shift+z");
        QTRY_COMPARE(undo(), QString("Undo: Add feature"));
        Desktop::key("ctrl+a");
        QTRY_COMPARE(undo(), QString("Undo: Select all"));
        Desktop::key("Delete");
        QTRY_COMPARE(undo(), QString("Undo: Delete"));
        Desktop::key("ctrl+z");
        Desktop::key("ctrl+z");
        QTRY_COMPARE(undo(), QString("Undo: Add feature"));

        // Undo of typed text is the field's own.
        Desktop::click(findNamed(dialog, "m_pPadTB"));
        auto& symbol = findNamed<QLineEdit>(dialog, "m_pSymbolTextLE");
        Desktop::click(symbol);
        Desktop::type("r10");
        QTRY_COMPARE(symbol.text(), QString("r10"));
        Desktop::key("ctrl+z");
        QTRY_VERIFY(symbol.text() != "r10");
        Desktop::key("ctrl+y");
        Desktop::key("Delete");
        Desktop::key("Escape");
        QTest::qWait(100);
        QCOMPARE(undo(), QString("Undo: Add feature"));
        QVERIFY(dialog.isVisible());
    }
};

CTS_TEST(TestDesktop);
#include "test_desktop.moc"
