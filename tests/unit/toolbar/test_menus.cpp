// The right-click menus of Delete Feature, Select By Net and Mark.

#include "Main.h"
#include "StripFixture.h"
#include "plugin/MessageCodes.h"
#include "plugin/ToolModes.h"

#include <QAction>
#include <QMenu>
#include <QTimer>

namespace Sent = MessageCodes::Sent;

namespace {

/// A row of a menu, and what choosing it does.
class MenuRow {
public:
    explicit MenuRow(Tool tool = Tool::AreaZoom, const QString& text = {})
        : m_tool(tool), m_text(text)
    {
    }
    MenuRow& sends(int code, qint64 mode = 0) { return m_code = code, m_mode = mode, *this; }
    MenuRow& shows(const char* image, const char* checkedImage)
    {
        m_sheet =
            QStringLiteral(
                "QToolButton{background-image:url(:/Canvas_Tool_Strip/Resources/%1);}"
                "QToolButton::checked{background-image:url(:/Canvas_Tool_Strip/Resources/%2);}")
                .arg(image, checkedImage);
        return *this;
    }
    MenuRow& framed(const QString& border) { return m_sheet += border, *this; }

    Tool tool() const { return m_tool; }
    QString text() const { return m_text; }
    int code() const { return m_code; }
    qint64 mode() const { return m_mode; }
    QString styleSheet() const { return m_sheet; }

private:
    Tool m_tool;
    QString m_text;
    int m_code = Sent::Unset;
    qint64 m_mode = 0;
    QString m_sheet;
};

struct Opened {
    QStringList entries;
    QObject* parent = nullptr;
    QPoint position;
    QMenu* menu = nullptr;
};

/// Right-clicks the tool and chooses the entry with that text by mouse; dismisses the menu if there
/// is none.
Opened rightClick(StripFixture& fixture, Tool tool, const QString& entry)
{
    Opened opened;
    const QPoint cursor = fixture.window.mapToGlobal(QPoint(17, 23));
    QCursor::setPos(cursor);
    QTimer::singleShot(0, [&] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu) {
            return;
        }
        opened.menu = menu;
        opened.parent = menu->parent();
        opened.position = menu->pos();
        QAction* chosen = nullptr;
        for (QAction* const action : menu->actions()) {
            opened.entries.append(action->text());
            chosen = action->text() == entry ? action : chosen;
        }
        if (chosen) {
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(chosen).center());
        } else {
            QTest::keyClick(menu, Qt::Key_Escape);
        }
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3));
    QApplication::sendEvent(fixture.button(tool), &event);
    return opened;
}

}  // namespace
Q_DECLARE_METATYPE(MenuRow)

class TestMenus : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void menu_data()
    {
        QTest::addColumn<Tool>("tool");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<Tool>("parent");
        QTest::newRow("delete") << Tool::DeleteFeature
                                << QStringList{"Delete Feature", "Delete to Intersection"}
                                << Tool::SelectByNet;
        QTest::newRow("net") << Tool::SelectByNet
                             << QStringList{"Select Layer Net", "Select Board Net",
                                            "Select Polyline"}
                             << Tool::SelectByNet;
        QTest::newRow("mark") << Tool::Mark
                              << QStringList{"Mark Orthogonal", "Mark Point to Point", "Setting"}
                              << Tool::Mark;
    }
    void menu()
    {
        QFETCH(Tool, tool);
        QFETCH(QStringList, entries);
        QFETCH(Tool, parent);
        StripFixture fixture;
        fixture.window.show();
        const QString sheetBefore = fixture.button(tool)->styleSheet();

        const Opened first = rightClick(fixture, tool, {});
        QCOMPARE(first.entries, entries);
        QCOMPARE(first.parent, fixture.button(parent));
        QCOMPARE(first.position, QCursor::pos());
        const Opened second = rightClick(fixture, tool, {});
        QCOMPARE(second.entries, entries);
        QCOMPARE(second.menu, first.menu);
        // Dismissed twice: no mode, picture or message changed.
        QVERIFY(fixture.recorder.messages().isEmpty());
        QCOMPARE(fixture.button(tool)->styleSheet(), sheetBefore);
        QCOMPARE(fixture.checked(), QList<Tool>{Tool::AreaZoom});
    }

    void entry_data()
    {
        QTest::addColumn<MenuRow>("row");
        const QVector<MenuRow> rows = {
            MenuRow(Tool::DeleteFeature, "Delete Feature")
                .sends(Sent::DeleteFeature, DeleteMode::feature)
                .shows("delete1-gry.jpg", "delete1-gre.jpg"),
            MenuRow(Tool::DeleteFeature, "Delete to Intersection")
                .sends(Sent::DeleteFeature, DeleteMode::toIntersection)
                .shows("delete2-gry.jpg", "delete2-gre.jpg"),
            MenuRow(Tool::SelectByNet, "Select Layer Net")
                .sends(Sent::SelectLayerNet)
                .shows("Net selection6.jpg", "Net selection5.jpg"),
            MenuRow(Tool::SelectByNet, "Select Board Net")
                .sends(Sent::SelectBoardNet)
                .shows("Net selection4.jpg", "Net selection3.jpg")
                .framed("border:2px solid green"),
            MenuRow(Tool::SelectByNet, "Select Polyline")
                .sends(Sent::SelectPolyline)
                .shows("Net selection2.jpg", "Net selection1.jpg")
                .framed("border:2px solid red"),
            MenuRow(Tool::Mark, "Mark Orthogonal")
                .sends(Sent::Mark, MarkMode::orthogonal)
                .shows("markgry.png", "markgre.png"),
            MenuRow(Tool::Mark, "Mark Point to Point")
                .sends(Sent::Mark, MarkMode::pointToPoint)
                .shows("xie_grey.png", "xie_green.png"),
        };
        for (const MenuRow& row : rows) {
            QTest::newRow(qPrintable(row.text())) << row;
        }
    }
    void entry()
    {
        QFETCH(MenuRow, row);
        const Tool tool = row.tool();
        StripFixture fixture;
        fixture.window.show();
        QString styleWhileSending;
        QList<Tool> checkedWhileSending;
        fixture.recorder.setOnMessage([&](const Recorder::Entry&) {
            styleWhileSending = fixture.button(tool)->styleSheet();
            checkedWhileSending = fixture.checked();
        });
        rightClick(fixture, tool, row.text());
        QCOMPARE(fixture.recorder.codes(), QVector<int>{row.code()});
        QCOMPARE(fixture.recorder.messages().last().message.extra, row.mode());
        QCOMPARE(fixture.recorder.messages().last().sender, static_cast<void*>(&fixture.window));
        QCOMPARE(styleWhileSending, row.styleSheet());
        QCOMPARE(checkedWhileSending, QList<Tool>{tool});

        // The variant remains for plain clicks.
        QTest::mouseClick(fixture.button(Tool::AreaZoom), Qt::LeftButton);
        QTest::mouseClick(fixture.button(tool), Qt::LeftButton);
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{row.code(), Sent::AreaZoom, row.code()}));
        QCOMPARE(fixture.recorder.messages().last().message.extra, row.mode());
        QCOMPARE(fixture.button(tool)->styleSheet(), row.styleSheet());
    }

    void settingOnlySends()
    {
        StripFixture fixture;
        fixture.window.show();
        rightClick(fixture, Tool::Mark, "Mark Point to Point");
        QTest::mouseClick(fixture.button(Tool::OpenPopView), Qt::LeftButton);
        const QString styleBefore = fixture.button(Tool::Mark)->styleSheet();
        fixture.recorder.clear();
        rightClick(fixture, Tool::Mark, "Setting");
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::MarkSettings});
        QCOMPARE(fixture.recorder.messages().last().message.extra, qint64(0));
        QCOMPARE(fixture.checked(), QList<Tool>{Tool::OpenPopView});
        QCOMPARE(fixture.button(Tool::Mark)->styleSheet(), styleBefore);
        QTest::mouseClick(fixture.button(Tool::Mark), Qt::LeftButton);
        QCOMPARE(fixture.recorder.messages().last().message.extra, MarkMode::pointToPoint);
    }

    void variantsAreIndependent()
    {
        StripFixture fixture;
        fixture.window.show();
        rightClick(fixture, Tool::DeleteFeature, "Delete to Intersection");
        fixture.strip->on_mark_clicked();
        QCOMPARE(fixture.recorder.messages().last().message.extra, MarkMode::orthogonal);
        rightClick(fixture, Tool::Mark, "Mark Point to Point");
        rightClick(fixture, Tool::DeleteFeature, "Delete Feature");
        fixture.strip->on_mark_clicked();
        QCOMPARE(fixture.recorder.messages().last().message.extra, MarkMode::pointToPoint);
        fixture.strip->On_DeleteFeat_Clicked();
        QCOMPARE(fixture.recorder.messages().last().message.extra, DeleteMode::feature);
    }

    void entriesHaveTheirNames()
    {
        StripFixture fixture;
        fixture.window.show();
        QStringList names;
        for (const Tool tool : {Tool::DeleteFeature, Tool::SelectByNet, Tool::Mark}) {
            rightClick(fixture, tool, {});
        }
        for (const QAction* const action : fixture.window.findChildren<QAction*>()) {
            if (action->objectName().startsWith("m_p")) {
                names.append(action->objectName());
            }
        }
        names.sort();
        QCOMPARE(names, (QStringList{"m_pDeleteFeatureAct", "m_pDeleteToIntersectionAct",
                                     "m_pMarkOrthogonalAct", "m_pMarkPointToPointAct",
                                     "m_pMarkSettingAct", "m_pSelectBoardNetAct",
                                     "m_pSelectLayerNetAct", "m_pSelectPolylineAct"}));
    }
};

CTS_TEST(TestMenus);
#include "test_menus.moc"
