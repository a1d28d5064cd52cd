// Symbols that are chosen from the list or picked on the board.

#include "DialogFixture.h"
#include "Expect.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <common_widgets.h>

#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>

namespace Sent = MessageCodes::Sent;

namespace {

const QString armed(
    "QPushButton{background-image:url(:/Canvas_Tool_Strip/Resources/add_fea.jpg);"
    "border: 1px solid red;}");
const QString disarmed(
    "QPushButton{background-image:url(:/Canvas_Tool_Strip/Resources/add_fea.jpg);border: none;}");

}  // namespace

class TestSymbolPick : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pickButton()
    {
        DialogFixture fixture;
        QSignalSpy select(fixture.dialog, SIGNAL(Select_symbol()));
        const QWidget& button = fixture.find("m_pSelectFromEditorPB");
        fixture.click("m_pSelectFromEditorPB");
        QCOMPARE(button.styleSheet(), armed);
        fixture.click("m_pSelectFromEditorPB");
        QCOMPARE(button.styleSheet(), disarmed);
        QCOMPARE(select.size(), 2);
        QVERIFY(fixture.recorder.messages().isEmpty());
    }

    void picked_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<Unit>("unit");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("shown");  // empty: refused
        // clang-format off
        QTest::newRow("line") << "m_pLineTB" << Unit::Mil << "r10" << "r10";
        QTest::newRow("line, any symbol") << "m_pLineTB" << Unit::Mil << "logo" << "logo";
        QTest::newRow("pad, metric") << "m_pPadTB" << Unit::Metric << "rect20x40" << "rect508x1016";
        QTest::newRow("arc") << "m_pArcTB" << Unit::Mil << "r10.5" << "r10.5";
        QTest::newRow("arc, metric") << "m_pArcTB" << Unit::Metric << "r10" << "r254";
        QTest::newRow("arc, square") << "m_pArcTB" << Unit::Mil << "s20" << "";
        QTest::newRow("arc, r alone") << "m_pArcTB" << Unit::Mil << "r" << "";
        QTest::newRow("arc, rectangle") << "m_pArcTB" << Unit::Mil << "rect20x40" << "";
        QTest::newRow("arc, suffix") << "m_pArcTB" << Unit::Mil << "r10_45" << "";
        QTest::newRow("arc, no name") << "m_pArcTB" << Unit::Mil << "" << "";
        // clang-format on
    }

    void picked()
    {
        QFETCH(QString, type);
        QFETCH(Unit, unit);
        QFETCH(QString, name);
        QFETCH(QString, shown);
        DialogFixture fixture(unit);
        QSignalSpy select(fixture.dialog, SIGNAL(Select_symbol()));
        fixture.click("m_pSelectFromEditorPB");
        fixture.chooseType(type);
        fixture.setToolActive(false);  // a pick is sent whichever tool is active
        const QString before = fixture.symbol().text();

        fixture.dialog->get_ChangeSymbol_Info({{0, name.toStdString()}});
        const bool isRefused = shown.isEmpty();
        QCOMPARE(fixture.boxes.takeTexts(),
                 isRefused ? BoxTextList{BoxTexts::pickedSymbol(name)} : BoxTextList());
        QCOMPARE(fixture.symbol().text(), isRefused ? before : shown);
        QCOMPARE(fixture.find("m_pSelectFromEditorPB").styleSheet(), isRefused ? armed : disarmed);
        QCOMPARE(fixture.recorder.codes(), isRefused ? QVector<int>{} : QVector<int>{Sent::Record});
        Expect::holds(fixture,
                      {Expect::record(RecordKeys::symbolText, isRefused ? QString("") : shown)});
        QCOMPARE(select.size(), 1);  // the click's own
    }

    void severalAtOnce()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pArcTB");
        fixture.dialog->get_ChangeSymbol_Info({{7, "r30"}, {1, "r10"}, {3, "s20"}});
        QCOMPARE(fixture.boxes.takeTexts(), BoxTextList{BoxTexts::pickedSymbol("s20")});
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::Record, Sent::Record}));
        QCOMPARE(fixture.recorder.messages()[0].message.payload.value(RecordKeys::symbolText),
                 QVariant(QString("r10")));
        QCOMPARE(fixture.symbol().text(), QString("r30"));
        QCOMPARE(fixture.find("m_pSelectFromEditorPB").styleSheet(), disarmed);
        fixture.dialog->get_ChangeSymbol_Info({});
        QCOMPARE(fixture.recorder.codes().size(), 2);
    }

    void chosenName_data()
    {
        QTest::addColumn<Unit>("unit");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("stored");
        // clang-format off
        QTest::newRow("mil") << Unit::Mil << "r10" << "r10";
        QTest::newRow("metric") << Unit::Metric << "r254" << "r10";
        QTest::newRow("suffix stays") << Unit::Mil << "r10_45" << "r10_45";
        // clang-format on
    }

    void chosenName()
    {
        QFETCH(Unit, unit);
        QFETCH(QString, name);
        QFETCH(QString, stored);
        DialogFixture fixture(unit);
        fixture.find<QSpinBox>("m_pAngleValueSB").setValue(15);
        fixture.setToolActive(false);
        fixture.dialog->receive_text(name);
        QCOMPARE(fixture.symbol().text(), name);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        const QVariantMap sent = fixture.recorder.last(Sent::Record).message.payload;
        QCOMPARE(sent.value(RecordKeys::symbolText), QVariant(stored));
        QCOMPARE(sent.value(RecordKeys::mirrorRotate), QVariant(QString("15")));
    }

    void noChosenName()
    {
        DialogFixture fixture;
        fixture.enter("m_pSymbolTextLE", "r10");
        fixture.recorder.clear();
        fixture.dialog->receive_text("");
        fixture.dialog->Enter_Symbol_Text();
        QVERIFY(fixture.recorder.messages().isEmpty());
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r10")});
    }

    void chooser()
    {
        DialogFixture fixture;
        QVERIFY(!fixture.window.findChild<Widget_SymbolSelection*>());
        fixture.click("m_pSymbolPB");
        auto* const chooser = fixture.window.findChild<Widget_SymbolSelection*>();
        QVERIFY(chooser && chooser->isVisible() && chooser->isWindow());
        QCOMPARE(chooser->parent(), &fixture.window);
        auto& list = findNamed<QListWidget>(*chooser, "m_pSymbolLW");
        const auto offers = [&](const QString& name) {
            return !list.findItems(name, Qt::MatchExactly).isEmpty();
        };
        QVERIFY(offers("r10") && !offers("logo"));

        fixture.dialog->close();
        QVERIFY(!chooser->isVisible());
        fixture.dialog->show();
        const struct {
            const char* type;
            bool offersAll;
        } types[] = {{"m_pPadTB", true}, {"m_pArcTB", false}, {"m_pLineTB", false}};
        for (const auto& type : types) {
            fixture.chooseType(type.type);
            fixture.click("m_pSymbolPB");
            QCOMPARE(offers("logo"), type.offersAll);
        }
        QCOMPARE(fixture.window.findChildren<Widget_SymbolSelection*>().size(), 1);

        Q_EMIT chooser->sendText("s20");
        QCOMPARE(fixture.symbol().text(), QString("s20"));
        fixture.setUnit(Unit::Metric);
        QVERIFY(offers("r254") && !offers("r10"));
    }

    void chooserFollowsTheJob()
    {
        DialogFixture fixture;
        fixture.dialog->set_job_info("other", "step");  // no chooser yet
        fixture.dialog->refresh_symbolselection_user_list();
        fixture.chooseType("m_pPadTB");
        fixture.click("m_pSymbolPB");
        auto* const chooser = fixture.window.findChild<Widget_SymbolSelection*>();
        auto& list = findNamed<QListWidget>(*chooser, "m_pSymbolLW");
        QVERIFY(!list.findItems("coupon", Qt::MatchExactly).isEmpty());
        QVERIFY(list.findItems("fiducial_cross", Qt::MatchExactly).isEmpty());
        fixture.dialog->set_job_info("job", "step");
        QVERIFY(!list.findItems("fiducial_cross", Qt::MatchExactly).isEmpty());
        list.clear();
        fixture.dialog->refresh_symbolselection_user_list();
        QVERIFY(!list.findItems("fiducial_cross", Qt::MatchExactly).isEmpty());
    }
};

CTS_TEST(TestSymbolPick);
#include "test_symbol_pick.moc"
