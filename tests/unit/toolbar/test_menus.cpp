// The right-click menus of Delete Feature, Select By Net and Mark.

#include "Main.h"
#include "StripFixture.h"
#include "plugin/MessageCodes.h"

#include <QAction>
#include <QMenu>
#include <QTimer>

namespace Sent = MessageCodes::Sent;

namespace {

QString sheet(const char* image, const char* checkedImage, const char* tail = "")
{
    return QStringLiteral(
               "QToolButton{background-image:url(:/Canvas_Tool_Strip/Resources/%1);}"
               "QToolButton::checked{background-image:url(:/Canvas_Tool_Strip/Resources/%2);}%3")
        .arg(image, checkedImage, tail);
}

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
        QTest::addColumn<Tool>("tool");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("extra");
        QTest::addColumn<QString>("style");
        QTest::newRow("delete feature")
            << Tool::DeleteFeature << "Delete Feature" << int(Sent::DeleteFeature) << 0
            << sheet("delete1-gry.jpg", "delete1-gre.jpg");
        QTest::newRow("to intersection")
            << Tool::DeleteFeature << "Delete to Intersection" << int(Sent::DeleteFeature) << 1
            << sheet("delete2-gry.jpg", "delete2-gre.jpg");
        QTest::newRow("layer net")
            << Tool::SelectByNet << "Select Layer Net" << int(Sent::SelectLayerNet) << 0
            << sheet("Net selection6.jpg", "Net selection5.jpg");
        QTest::newRow("board net")
            << Tool::SelectByNet << "Select Board Net" << int(Sent::SelectBoardNet) << 0
            << sheet("Net selection4.jpg", "Net selection3.jpg", "border:2px solid green");
        QTest::newRow("polyline") << Tool::SelectByNet << "Select Polyline"
                                  << int(Sent::SelectPolyline) << 0
                                  << sheet("Net selection2.jpg", "Net selection1.jpg",
                                           "border:2px solid red");
        QTest::newRow("orthogonal") << Tool::Mark << "Mark Orthogonal" << int(Sent::Mark) << 0
                                    << sheet("markgry.png", "markgre.png");
        QTest::newRow("point to point") << Tool::Mark << "Mark Point to Point" << int(Sent::Mark)
                                        << 1 << sheet("xie_grey.png", "xie_green.png");
    }
    void entry()
    {
        QFETCH(Tool, tool);
        QFETCH(QString, entry);
        QFETCH(int, code);
        QFETCH(int, extra);
        QFETCH(QString, style);
        StripFixture fixture;
        fixture.window.show();
        QString styleWhileSending;
        QList<Tool> checkedWhileSending;
        fixture.recorder.setOnMessage([&](const Recorder::Entry&) {
            styleWhileSending = fixture.button(tool)->styleSheet();
            checkedWhileSending = fixture.checked();
        });
        rightClick(fixture, tool, entry);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{code});
        QCOMPARE(fixture.recorder.messages().last().message.extra, qint64(extra));
        QCOMPARE(fixture.recorder.messages().last().sender, static_cast<void*>(&fixture.window));
        QCOMPARE(styleWhileSending, style);
        QCOMPARE(checkedWhileSending, QList<Tool>{tool});

        // The variant remains for plain clicks.
        QTest::mouseClick(fixture.button(Tool::AreaZoom), Qt::LeftButton);
        QTest::mouseClick(fixture.button(tool), Qt::LeftButton);
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{code, Sent::AreaZoom, code}));
        QCOMPARE(fixture.recorder.messages().last().message.extra, qint64(extra));
        QCOMPARE(fixture.button(tool)->styleSheet(), style);
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
        QCOMPARE(fixture.recorder.messages().last().message.extra, qint64(1));
    }

    void variantsAreIndependent()
    {
        StripFixture fixture;
        fixture.window.show();
        rightClick(fixture, Tool::DeleteFeature, "Delete to Intersection");
        fixture.strip->on_mark_clicked();
        QCOMPARE(fixture.recorder.messages().last().message.extra, qint64(0));
        rightClick(fixture, Tool::Mark, "Mark Point to Point");
        rightClick(fixture, Tool::DeleteFeature, "Delete Feature");
        fixture.strip->on_mark_clicked();
        QCOMPARE(fixture.recorder.messages().last().message.extra, qint64(1));
        fixture.strip->On_DeleteFeat_Clicked();
        QCOMPARE(fixture.recorder.messages().last().message.extra, qint64(0));
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
