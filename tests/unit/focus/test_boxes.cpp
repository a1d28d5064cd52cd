// A box takes the focus, whoever opens it and however long it stays: that is neither an entry in a
// field that nobody touched, nor leaving one.

#include "DialogFixture.h"
#include "Expect.h"
#include "Main.h"
#include "PageSteps.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <UiApiStandIn.h>

#include <QLineEdit>

#include <stdexcept>

namespace Sent = MessageCodes::Sent;

using Opened = DialogFixture::Opened;

namespace {

const BoxText noUnit{"Information", "no unit"};

/// The host fails at each letter of a symbol.
void failAsText()
{
    CanvasHost::uiApiOverrides().getUnit = [](void*) -> int { throw "no unit"; };
}

void failAsException()
{
    CanvasHost::uiApiOverrides().getUnit = [](void*) -> int {
        throw std::runtime_error("no unit");
    };
}

void letHostWork()
{
    CanvasHost::uiApiOverrides() = {};
}

/// Long enough for every event that a box leaves behind.
void settle()
{
    QTest::qWait(20);
}

}  // namespace

class TestBoxes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void untouched_data()
    {
        QTest::addColumn<QString>("refused");
        QTest::addColumn<QString>("next");
        QTest::newRow("X size") << "m_pXSizeLE"
                                << "m_pYSizeLE";
        QTest::newRow("Y size") << "m_pYSizeLE"
                                << "m_pLineWidthLE";
    }

    /// The field that the Tab reaches loses the focus to the box of the one that it leaves.
    void untouched()
    {
        QFETCH(QString, refused);
        QFETCH(QString, next);
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.click("m_pTextTB");
        fixture.type(refused, "20000");
        fixture.recorder.clear();
        fixture.leave(By::Tab);
        settle();
        QCOMPARE(fixture.dialog->focusWidget()->objectName(), next);
        QCOMPARE(fixture.boxes.takeTexts(), BoxTextList{BoxTexts::length(10000)});
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        QCOMPARE(fixture.agreement->faultOf(fixture.record()), QString());
    }

    void hostsBox_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QVector<int>>("codes");
        const QVector<int> nothing;
        const QVector<int> theRecord{Sent::Record};
        QTest::newRow("untouched") << "m_pXSizeLE" << QString() << nothing;
        QTest::newRow("typed") << "m_pXSizeLE"
                               << "12" << theRecord;
        QTest::newRow("untouched text") << "m_pTextLE" << QString() << nothing;
        // It cannot be touched: it is looked up whenever it reports.
        QTest::newRow("font") << "m_pFontLE" << QString() << theRecord;
    }

    void hostsBox()
    {
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(QVector<int>, codes);
        for (const int delay : {BoxCatcher::atOnce, 10}) {
            DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
            fixture.boxes.closeAfter(delay);
            fixture.click("m_pTextTB");
            fixture.focus(field);
            fixture.recorder.clear();
            if (!typed.isEmpty()) {
                fixture.type(field, typed);
            }
            fixture.openHostBox();
            settle();
            QCOMPARE(fixture.boxes.takeTexts(), (BoxTextList{{"Host", "Elsewhere"}}));
            QCOMPARE(fixture.recorder.codes(), codes);
        }
    }

    /// A report of a field that nobody touched is an entry as ever, where no box is open.
    void withoutABox()
    {
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.click("m_pTextTB");
        fixture.recorder.clear();
        fixture.dialog->on_m_pXSizeLE_editingFinished();
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
    }

    void failure_data()
    {
        QTest::addColumn<bool>("isText");
        QTest::addColumn<int>("delay");
        for (const bool isText : {true, false}) {
            for (const int delay : {BoxCatcher::atOnce, 0, 1, 10, 500}) {
                QTest::addRow("%s, box closed after %d ms", isText ? "a text" : "an exception",
                              delay)
                    << isText << delay;
            }
        }
    }

    /// However quickly the box of a failure is closed, the entry is still being typed.
    void failure()
    {
        QFETCH(bool, isText);
        QFETCH(int, delay);
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.boxes.closeAfter(delay);
        fixture.focus("m_pSymbolTextLE");
        fixture.recorder.clear();
        isText ? failAsText() : failAsException();
        QTest::keyClicks(&fixture.symbol(), "r");
        settle();
        QCOMPARE(fixture.boxes.takeTexts(), BoxTextList{noUnit});
        QCOMPARE(fixture.text("m_pSymbolTextLE"), QString("r"));
        QVERIFY(fixture.recorder.messages().isEmpty());

        // The user comes back, and goes on.
        fixture.open();
        QVERIFY(fixture.symbol().hasFocus());
        letHostWork();
        QTest::keyClicks(&fixture.symbol(), "10");
        fixture.leave();
        settle();
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r10")});
        QVERIFY(fixture.boxes.take().isEmpty());
    }

    void leftAfterAFailure_data() { failure_data(); }

    /// What Qt reported into the box, and does not report again, is taken when the field is left.
    void leftAfterAFailure()
    {
        QFETCH(bool, isText);
        QFETCH(int, delay);
        for (const By way : {By::Tab, By::Mouse}) {
            DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
            fixture.boxes.closeAfter(delay);
            fixture.focus("m_pSymbolTextLE");
            fixture.type("m_pSymbolTextLE", "r");
            isText ? failAsText() : failAsException();
            QTest::keyClicks(&fixture.symbol(), "5");
            letHostWork();
            settle();
            QCOMPARE(fixture.boxes.takeTexts(), BoxTextList{noUnit});
            fixture.recorder.clear();
            fixture.open();
            QVERIFY(fixture.recorder.messages().isEmpty());
            fixture.leave(way);
            settle();
            QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
            Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r5")});
        }
    }

    /// So it is when the focus has moved on while the box was open.
    void movedWhileTheBoxWasOpen()
    {
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.focus("m_pSymbolTextLE");
        fixture.type("m_pSymbolTextLE", "r");
        fixture.recorder.clear();
        fixture.boxes.setOnBox([&] {
            letHostWork();
            fixture.find("m_pPolarityCMB").setFocus();
            // As where a window becomes active within the call.
            QApplication::setActiveWindow(fixture.dialog);
            QCoreApplication::sendPostedEvents();
        });
        failAsText();
        QTest::keyClicks(&fixture.symbol(), "5");
        QVERIFY(fixture.recorder.messages().isEmpty());
        settle();
        QCOMPARE(fixture.boxes.takeTexts(), BoxTextList{noUnit});
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r5")});
    }

    /// So it is when another window becomes the active one.
    void hostsWindowAfterAFailure()
    {
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.focus("m_pSymbolTextLE");
        fixture.type("m_pSymbolTextLE", "r");
        failAsText();
        QTest::keyClicks(&fixture.symbol(), "5");
        letHostWork();
        QCOMPARE(fixture.boxes.takeTexts(), BoxTextList{noUnit});
        fixture.recorder.clear();
        QApplication::setActiveWindow(&fixture.window);
        settle();
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r5")});
    }

    void emptiedRadius_data()
    {
        QTest::addColumn<By>("way");
        QTest::addColumn<bool>("isClosed");
        QTest::newRow("window closed") << By::Enter << true;
        QTest::newRow("Tab") << By::Tab << false;
        QTest::newRow("mouse") << By::Mouse << false;
    }

    /// The radius does not accept an empty text: nothing is reported, nothing is refused.
    void emptiedRadius()
    {
        QFETCH(By, way);
        QFETCH(bool, isClosed);
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.perform(PageSteps::rectangle + Choose("m_pCornerTypeCMB", "Chamfer"));
        fixture.type("m_pCornerRadiusLE", "");
        QTest::keyClicks(&fixture.find("m_pCornerRadiusLE"), "-");
        fixture.recorder.clear();
        fixture.leave(way);
        if (isClosed) {
            fixture.dialog->close();
            QApplication::setActiveWindow(&fixture.window);
            fixture.recorder.clear();  // the area zoom that a closed dialog leaves behind
        }
        settle();
        QVERIFY(fixture.boxes.take().isEmpty());
        QVERIFY(fixture.recorder.messages().isEmpty());
        QCOMPARE(fixture.text("m_pCornerRadiusLE"), QString());
        Expect::holds(fixture, {Expect::record(RecordKeys::cornerRadius, "0")});
    }
};

CTS_TEST(TestBoxes);
#include "test_boxes.moc"
