// What a typed symbol becomes in the record.

#include "DialogFixture.h"
#include "Expect.h"
#include "GlogCatcher.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QSpinBox>

namespace Sent = MessageCodes::Sent;

namespace {

/// What happens to a name that is entered while the rotation is 30 degrees.
class EnteredSymbol {
public:
    explicit EnteredSymbol(const QString& words = {}) : name(words) {}
    EnteredSymbol& on(const QString& button) { return type = button, *this; }
    EnteredSymbol& in(Unit others) { return unit = others, *this; }
    EnteredSymbol& typed(const QString& symbol) { return text = symbol, *this; }
    EnteredSymbol& stores(const QString& symbol) { return stored = symbol, *this; }
    EnteredSymbol& isRefused() { return refused = true, *this; }
    EnteredSymbol& turnsTo(int degrees) { return rotation = degrees, *this; }

    QString name;
    QString type;
    Unit unit = Unit::Mil;
    QString text;
    QString stored = "";
    bool refused = false;
    int rotation = 30;
};

QList<EnteredSymbol> enteredSymbols()
{
    const auto line = [](const QString& name) {
        return EnteredSymbol("line, " + name).on("m_pLineTB");
    };
    const auto pad = [](const QString& name) {
        return EnteredSymbol("pad, " + name).on("m_pPadTB");
    };
    const auto arc = [](const QString& name) {
        return EnteredSymbol("arc, " + name).on("m_pArcTB");
    };
    return {
        line("round").typed("r10").stores("r10"),
        line("square with decimals").typed("s20.5").stores("s20.5"),
        line("empty").typed("").stores(""),
        line("r alone").typed("r").isRefused(),
        line("s alone").typed("s").isRefused(),
        line("metric").in(Unit::Metric).typed("r254").stores("r10"),
        line("special").typed("fiducial_cross").stores("fiducial_cross"),
        line("special in metric").in(Unit::Metric).typed("fiducial_cross").stores("fiducial_cross"),
        line("special with a blank").typed("Target 1").stores("Target 1"),
        line("special in other letters").typed("target 1").isRefused(),
        line("with suffix").typed("r10_5").stores("r10").turnsTo(35),
        pad("r alone").typed("r").isRefused(),
        pad("rectangle").typed("rect20x40").stores("rect20x40"),
        pad("metric rectangle").in(Unit::Metric).typed("rect508x1016").stores("rect20x40"),
        pad("user symbol").typed("logo").stores("logo"),
        pad("suffix").typed("r10_45").stores("r10").turnsTo(75),
        pad("metric suffix").in(Unit::Metric).typed("r254_45").stores("r10").turnsTo(75),
        pad("suffix after underscores").typed("ring_r60x30_90").stores("ring_r60x30").turnsTo(120),
        pad("ring").typed("ring_r60x30").stores("ring_r60x30"),
        pad("suffix of a special symbol")
            .typed("fiducial_cross_10")
            .stores("fiducial_cross")
            .turnsTo(40),
        pad("suffix with a letter").typed("r10_4x").isRefused(),
        pad("suffix without a number").typed("r10_").isRefused(),
        pad("signed suffix").typed("r10_-5").isRefused(),
        pad("decimal suffix").typed("r10_4.5").isRefused(),
        pad("endless suffix").typed("r10_99999999999999999999").isRefused(),
        pad("no symbol").typed("foo").isRefused(),
        pad("suffix of no symbol").typed("foo_45").isRefused().turnsTo(75),
        pad("two suffixes").typed("r10_20_45").isRefused().turnsTo(75),
        pad("size 0").typed("r0").isRefused(),
        pad("with a blank").typed("r 10").isRefused(),
        pad("only underscores").typed("___").isRefused(),
        arc("round").typed("r10").stores("r10"),
        arc("square").typed("s10").isRefused(),
        arc("r alone").typed("r").isRefused(),
        arc("metric").in(Unit::Metric).typed("r25.4").stores("r1"),
    };
}

}  // namespace

Q_DECLARE_METATYPE(EnteredSymbol)

class TestSymbolEntry : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entry_data()
    {
        QTest::addColumn<EnteredSymbol>("entered");
        QTest::addColumn<bool>("isActive");
        for (const EnteredSymbol& entered : enteredSymbols()) {
            QTest::addRow("%s", qPrintable(entered.name)) << entered << true;
            QTest::addRow("%s, other tool", qPrintable(entered.name)) << entered << false;
        }
    }

    void entry()
    {
        QFETCH(EnteredSymbol, entered);
        QFETCH(bool, isActive);
        DialogFixture fixture(entered.unit);
        fixture.find<QSpinBox>("m_pAngleValueSB").setValue(30);
        // What a refusal takes away.
        fixture.enter("m_pSymbolTextLE", entered.unit == Unit::Metric ? "r254" : "r10");
        fixture.chooseType(entered.type);
        fixture.setToolActive(isActive);

        fixture.enter("m_pSymbolTextLE", entered.text);
        QCOMPARE(fixture.boxes.takeTexts(),
                 entered.refused ? BoxTextList{BoxTexts::symbol()} : BoxTextList());
        QCOMPARE(fixture.symbol().text(), entered.refused ? QString() : entered.text);
        QCOMPARE(fixture.recorder.codes(), isActive ? QVector<int>{Sent::Record} : QVector<int>{});
        Expect::holds(
            fixture, {Expect::record(RecordKeys::symbolText, entered.stored),
                      Expect::record(RecordKeys::mirrorRotate, QString::number(entered.rotation))});
        if (isActive) {
            QCOMPARE(fixture.lastRecord(), fixture.record());
        }
    }

    void withoutAToolStrip()
    {
        DialogFixture fixture;
        fixture.dialog->setToolStrip(nullptr);
        fixture.enter("m_pSymbolTextLE", "r10");
        QVERIFY(fixture.recorder.messages().isEmpty());
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r10")});

        fixture.dialog->setToolStrip(fixture.strip);
        delete fixture.strip;
        fixture.enter("m_pSymbolTextLE", "r20");
        QVERIFY(fixture.recorder.messages().isEmpty());
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r20")});
    }

    void theNextEntryClearsTheSuffix()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pPadTB");
        fixture.enter("m_pSymbolTextLE", "r10_45");
        fixture.find<QSpinBox>("m_pAngleValueSB").setValue(10);
        fixture.dialog->on_m_pAngleValueSB_editingFinished();
        Expect::holds(fixture, {Expect::record(RecordKeys::mirrorRotate, "55")});
        fixture.enter("m_pSymbolTextLE", "r10");
        Expect::holds(fixture, {Expect::record(RecordKeys::mirrorRotate, "10")});
        fixture.dialog->on_m_pAngleValueSB_editingFinished();
        Expect::holds(fixture, {Expect::record(RecordKeys::mirrorRotate, "10")});
    }

    void rotationAddsWhatFollowsTheFirstUnderscore()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pPadTB");
        fixture.enter("m_pSymbolTextLE", "fiducial_cross_45");
        Expect::holds(fixture, {Expect::record(RecordKeys::mirrorRotate, "45")});
        fixture.dialog->on_m_pAngleValueSB_editingFinished();
        Expect::holds(fixture, {Expect::record(RecordKeys::mirrorRotate, "0")});
    }

    void onlyAnArcAsksForRoundSymbols()
    {
        const struct {
            const char* type;
            QVector<bool> flags;
        } expected[] = {{"m_pLineTB", {false}}, {"m_pPadTB", {false}}, {"m_pArcTB", {true}}};
        for (const auto& row : expected) {
            DialogFixture fixture;
            fixture.chooseType(row.type);
            QVector<bool> flags;
            CanvasHost::camApiOverrides().identify_symbol =
                [&](const std::string&, ZENTRA::API::symbol_type&, int&, int&, bool arc) {
                    flags.append(arc);
                    return true;
                };
            fixture.enter("m_pSymbolTextLE", "r10");
            QCOMPARE(flags, row.flags);
            flags.clear();
            fixture.enter("m_pSymbolTextLE",
                          "r10_45");  // the whole name is tested first, without the flag
            QCOMPARE(flags, QVector<bool>({false}) + row.flags);
        }
    }

    void refusedOnce_data()
    {
        QTest::addColumn<By>("way");
        QTest::newRow("Tab") << By::Tab;
        QTest::newRow("Enter") << By::Enter;
        QTest::newRow("mouse") << By::Mouse;
    }

    void refusedOnce()
    {
        QFETCH(By, way);
        DialogFixture fixture;
        fixture.type("m_pSymbolTextLE", "r");
        fixture.leave(way);
        QCOMPARE(fixture.boxes.takeTexts(), BoxTextList{BoxTexts::symbol()});
        QCOMPARE(fixture.symbol().text(), QString());
        // Enter sends what it was given before the entry is checked.
        QCOMPARE(fixture.recorder.codes(), way == By::Enter
                                               ? (QVector<int>{Sent::Record, Sent::Record})
                                               : QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "")});
    }

    void enterSendsWhatWasTyped()
    {
        DialogFixture fixture;
        fixture.type("m_pSymbolTextLE", "r10");
        QVERIFY(fixture.recorder.messages().isEmpty());
        fixture.leave(By::Enter);
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::Record, Sent::Record}));
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r10")});
    }

    void enterSendsWhateverTheToolIs()
    {
        DialogFixture fixture(Unit::Metric);
        fixture.setToolActive(false);
        fixture.type("m_pSymbolTextLE", "r254");
        fixture.leave(By::Enter);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r10")});
    }

    void enterCutsAtTheCursor_data()
    {
        QTest::addColumn<int>("cursor");
        QTest::addColumn<QString>("kept");
        QTest::newRow("start") << 0 << "";
        QTest::newRow("after the shape") << 1 << "r";
        QTest::newRow("in the size") << 2 << "r1";
        QTest::newRow("end") << 3 << "r10";
    }

    void enterCutsAtTheCursor()
    {
        QFETCH(int, cursor);
        QFETCH(QString, kept);
        DialogFixture fixture;
        fixture.type("m_pSymbolTextLE", "r10");
        fixture.symbol().setCursorPosition(cursor);
        QString textWhenSent;
        fixture.recorder.setOnMessage([&](const Recorder::Entry&) {
            textWhenSent = textWhenSent.isNull() ? fixture.symbol().text() : textWhenSent;
        });
        fixture.dialog->on_m_pSymbolTextLE_returnPressed();
        QVERIFY(fixture.recorder.codes().contains(Sent::Record));
        QCOMPARE(fixture.symbol().text(), kept);
        QCOMPARE(textWhenSent, kept);
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, kept)});
    }

    void tooLargeASizeIsRefusedByTheSend()
    {
        DialogFixture fixture;
        fixture.type("m_pSymbolTextLE", "r60000");
        fixture.leave(By::Tab);
        QCOMPARE(fixture.boxes.take().size(), 1);
        QCOMPARE(fixture.symbol().text(), QString());
        QVERIFY(fixture.recorder.messages().isEmpty());
    }

    void validatorsWhileTyping_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::newRow("line") << "m_pLineTB"
                              << "xr1s0.5q"
                              << "r10.5";
        QTest::newRow("line, other shape") << "m_pLineTB"
                                           << "rect"
                                           << "r";
        QTest::newRow("pad") << "m_pPadTB"
                             << "Rect2 0x40_4,5"
                             << "ect20x40_45";
        QTest::newRow("arc") << "m_pArcTB"
                             << "sr5"
                             << "r5";
    }

    void validatorsWhileTyping()
    {
        QFETCH(QString, type);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        DialogFixture fixture;
        fixture.chooseType(type);
        fixture.type("m_pSymbolTextLE", typed);
        QCOMPARE(fixture.symbol().text(), shown);
    }

    void hostileTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("a million digits") << 'r' + QString(1000000, '1');
        QTest::newRow("a million letters") << QString(1000000, 'x');
        QTest::newRow("a million underscores") << QString(1000000, '_');
        QTest::newRow("million-digit suffix") << "r10_" + QString(1000000, '9');
        QTest::newRow("other scripts") << QString::fromUtf8("\u7ebf\u5bbd_\xF0\x9F\x98\x80_45");
        QTest::newRow("other digits") << QString::fromUtf8("r10_\u0664\u0665");
        QTest::newRow("lone surrogate") << QString(QChar(0xD800)) + "_5";
        QTest::newRow("null character") << QString("r10") + QChar(0) + "_5";
        QTest::newRow("line breaks") << "r10_45\n";
        QTest::newRow("negative") << "r-5";
        QTest::newRow("exponent") << "r1e3";
        QTest::newRow("no number") << "rnan";
    }

    void hostileTexts()
    {
        QFETCH(QString, text);
        DialogFixture fixture;
        fixture.chooseType("m_pPadTB");
        fixture.symbol().setMaxLength(INT_MAX);
        fixture.enter("m_pSymbolTextLE", text);
        QCOMPARE(fixture.boxes.takeTexts(), BoxTextList{BoxTexts::symbol()});
        QCOMPARE(fixture.symbol().text(), QString());
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "")});
    }

    void textChangedIsGuarded_data()
    {
        QTest::addColumn<bool>("isText");
        QTest::newRow("text") << true;
        QTest::newRow("exception") << false;
    }

    void textChangedIsGuarded()
    {
        QFETCH(bool, isText);
        DialogFixture fixture;
        GlogCatcher log;
        CanvasHost::uiApiOverrides().getUnit = [isText](void*) -> int {
            if (isText) {
                throw "no unit";
            }
            throw std::runtime_error("no unit");
        };
        fixture.symbol().setText("r10");
        const auto boxes = fixture.boxes.take();
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes[0].title, QString("Information"));
        QCOMPARE(boxes[0].text, QString("no unit"));
        QCOMPARE(boxes[0].icon, QMessageBox::Information);
        QCOMPARE(log.errors().size(), isText ? 2 : 0);
        if (isText) {
            QVERIFY(
                log.errors()[0].startsWith("\xD2\xEC\xB3\xA3\xCE\xBB\xD6\xC3\xA3\xBA"
                                           "AddFeature.cpp : "));
            QCOMPARE(log.errors()[1],
                     QByteArray("\xD2\xEC\xB3\xA3\xC3\xE8\xCA\xF6\xA3\xBAno unit"));
        }
        CanvasHost::uiApiOverrides() = {};
        fixture.enter("m_pSymbolTextLE", "r20");
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r20")});
    }

    /// What the type does not accept is not reported; once a type that does is chosen, it is taken.
    void aNameThatAnotherTypeAcceptsIsTakenWithIt()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pPadTB");
        fixture.type("m_pSymbolTextLE", "rect20x40");
        fixture.chooseType("m_pLineTB");
        fixture.leave(By::Tab);
        QVERIFY(fixture.recorder.codes().isEmpty());
        fixture.click("m_pPadTB");
        QCOMPARE(fixture.recorder.codes(),
                 (QVector<int>{Sent::AttributeMap, Sent::Record, Sent::Record}));
        QCOMPARE(fixture.symbol().text(), QString("rect20x40"));
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "rect20x40")});
    }

    /// The canvas opens a box while it gets the message: the field reports the same entry again.
    void aBoxOfTheCanvasSendsNothingTwice()
    {
        DialogFixture fixture;
        fixture.type("m_pSymbolTextLE", "r10");
        bool isFirst = true;
        fixture.recorder.setOnMessage([&](const Recorder::Entry&) {
            if (std::exchange(isFirst, false)) {
                fixture.dialog->on_m_pSymbolTextLE_editingFinished();
            }
        });
        fixture.leave(By::Tab);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        fixture.recorder.setOnMessage({});
    }

    void aPickDuringTheBoxOfARefusalStays()
    {
        DialogFixture fixture;
        fixture.symbol().setText("r60000");
        bool isFirst = true;
        fixture.boxes.setOnBox([&] {
            if (std::exchange(isFirst, false)) {
                fixture.dialog->getChangeCurrentTool();  // no second box for the same refusal
                fixture.dialog->get_ChangeSymbol_Info({{1, "r30"}});
            }
        });
        fixture.dialog->getChangeCurrentTool();
        QCOMPARE(fixture.boxes.take().size(), 1);
        QCOMPARE(fixture.symbol().text(), QString("r30"));
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r30")});
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
    }

    void whatWasTypedWhileTheHostFailedIsTakenOnLeaving()
    {
        DialogFixture fixture;
        CanvasHost::uiApiOverrides().getUnit = [](void*) -> int {
            throw std::runtime_error("no unit");
        };
        fixture.type("m_pSymbolTextLE", "r10");
        QCOMPARE(fixture.boxes.take().size(), 3);  // one per key, and none for the focus
        QCOMPARE(fixture.symbol().text(), QString("r10"));
        CanvasHost::uiApiOverrides() = {};
        fixture.open();
        fixture.focus("m_pSymbolTextLE");
        fixture.leave(By::Tab);
        QTRY_COMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r10")});
        QTest::qWait(20);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
    }

    /// Closing the window takes the focus, and is no entry; nor is leaving the field later.
    void closingForgetsAPendingEntry()
    {
        DialogFixture fixture(Unit::Mil, DialogFixture::Opened::ByTheStrip);
        fixture.type("m_pSymbolTextLE", "s5");
        fixture.dialog->close();
        fixture.open();
        fixture.symbol().setFocus();
        fixture.recorder.clear();
        fixture.leave();
        QCOMPARE(fixture.recorder.codes(), QVector<int>());
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "")});
        QCOMPARE(fixture.symbol().text(), QString("s5"));
    }
};

CTS_TEST(TestSymbolEntry);
#include "test_symbol_entry.moc"
