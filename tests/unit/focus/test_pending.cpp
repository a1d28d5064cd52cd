// An entry that is pending when a box opens elsewhere is taken once the box is closed.

#include "DialogFixture.h"
#include "Expect.h"
#include "Main.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <UiApiStandIn.h>

#include <QLineEdit>

#include <stdexcept>
#include <utility>

namespace Accepted = MessageCodes::Accepted;
namespace Sent = MessageCodes::Sent;

using Opened = DialogFixture::Opened;

namespace {

/// What refuses a symbol of that size.
const BoxText sizeBox = BoxTexts::number(0, 50000);

/// Entries on pages whose symbol is checked when the record is sent.
QVector<int> entriesWithSymbol()
{
    QVector<int> numbers;
    for (int i = 0; i < allEntries().size(); ++i) {
        const Entry& entry = allEntries()[i];
        if (entry.isTyped() && entry.field() != "m_pSymbolTextLE" && !entry.isCheckedWhileTyped() &&
            (entry.type() == "m_pLineTB" || entry.type() == "m_pPadTB")) {
            numbers.append(i);
        }
    }
    return numbers;
}

}  // namespace

class TestPending : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void takenWhenLeft_data()
    {
        QTest::addColumn<int>("number");
        for (int i = 0; i < allEntries().size(); ++i) {
            if (allEntries()[i].isTyped()) {
                QTest::addRow("%s", qPrintable(allEntries()[i].words())) << i;
            }
        }
    }

    /// With nothing in its way.
    void takenWhenLeft()
    {
        QFETCH(int, number);
        const Entry& entry = allEntries()[number];
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.perform(entry.reach());
        fixture.make(entry);
        if (entry.isCheckedWhileTyped()) {
            Expect::sameBoxes(fixture.boxes.takeTexts(), entry.boxes());
        }
        fixture.recorder.clear();
        fixture.leave();
        QCOMPARE(fixture.recorder.codes(), entry.codes());
        Expect::sameBoxes(fixture.boxes.takeTexts(),
                          entry.isCheckedWhileTyped() ? BoxTextList() : entry.boxes());
        Expect::holds(fixture, {Expect::record(entry.recordKey(), entry.stored())});
    }

    void refusedSymbolAtTheSend_data()
    {
        QTest::addColumn<int>("number");
        for (const int number : entriesWithSymbol()) {
            QTest::addRow("%s", qPrintable(allEntries()[number].words())) << number;
        }
        QVERIFY(entriesWithSymbol().size() > 10);
    }

    /// The canvas asks for the record while the symbol is one that the host refuses.
    void refusedSymbolAtTheSend()
    {
        QFETCH(int, number);
        const Entry& entry = allEntries()[number];
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.perform(entry.reach());
        fixture.find<QLineEdit>("m_pSymbolTextLE").setText("r60000");
        fixture.boxes.take();
        fixture.make(entry);
        fixture.recorder.clear();
        fixture.receive(Accepted::AddFeature);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::AddFeatureStarted} + entry.codes());
        Expect::sameBoxes(fixture.boxes.takeTexts(), BoxTextList{sizeBox} + entry.boxes());
        QCOMPARE(fixture.value(entry.recordKey()).toString(), entry.stored());
        QCOMPARE(fixture.text("m_pSymbolTextLE"), QString());
        QCOMPARE(fixture.agreement->faultOf(fixture.record()), QString());

        // Leaving the field does nothing more; a spin box may send the same again.
        const QVariantMap before = fixture.record();
        fixture.leave();
        QCOMPARE(fixture.record(), before);
        QVERIFY(fixture.boxes.take().isEmpty());
    }

    void picks_data()
    {
        QTest::addColumn<QStringList>("picked");
        QTest::addColumn<QStringList>("refused");
        QTest::addColumn<QStringList>("sent");
        QTest::newRow("refused") << QStringList{"s5"} << QStringList{"s5"} << QStringList{"r30"};
        QTest::newRow("refused twice")
            << QStringList{"s5", "s6"} << QStringList{"s5", "s6"} << QStringList{"r30"};
        QTest::newRow("refused, accepted")
            << QStringList{"s5", "r7"} << QStringList{"s5"} << QStringList{"r30", "r7"};
        QTest::newRow("accepted, refused")
            << QStringList{"r7", "s5"} << QStringList{"s5"} << QStringList{"r7"};
        QTest::newRow("accepted") << QStringList{"r7"} << QStringList() << QStringList{"r7"};
    }

    void picks()
    {
        QFETCH(QStringList, picked);
        QFETCH(QStringList, refused);
        QFETCH(QStringList, sent);
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.click("m_pArcTB");
        fixture.type("m_pSymbolTextLE", "r30");
        fixture.recorder.clear();
        std::map<int, std::string> symbols;
        for (const QString& name : picked) {
            symbols[int(symbols.size())] = name.toStdString();
        }
        fixture.receive(Accepted::SymbolsPicked, {}, ExtraWord::pointingAt(symbols));
        BoxTextList boxes;
        for (const QString& name : refused) {
            boxes.append(BoxTexts::pickedSymbol(name));
        }
        QCOMPARE(fixture.boxes.takeTexts(), boxes);
        QStringList names;
        for (const Recorder::Entry& entry : fixture.recorder.messages()) {
            QCOMPARE(entry.message.code, int(Sent::Record));
            names.append(entry.message.payload.value(RecordKeys::symbolText).toString());
        }
        QCOMPARE(names, sent);
        QCOMPARE(fixture.agreement->faultOf(fixture.record()), QString());
    }

    /// The box of one field, while the symbol is pending.
    void anotherFieldsRefusal()
    {
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.click("m_pPadTB");
        fixture.find<QLineEdit>("m_pDrilDxLE").setText("100005");
        fixture.type("m_pSymbolTextLE", "s20");
        fixture.recorder.clear();
        fixture.dialog->on_m_pDrilDxLE_editingFinished();
        QCOMPARE(fixture.boxes.takeTexts(), BoxTextList{BoxTexts::coordinate(100000)});
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "s20")});
        Expect::holds(fixture, {Expect::record(RecordKeys::padDx, "0")});
        QCOMPARE(fixture.text("m_pDrilDxLE"), QString("0"));
    }

    /// Reported twice while a box is open, an entry is taken once.
    void reportedTwiceInsideTheBox()
    {
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.click("m_pFixedAngleRB");
        fixture.find<QLineEdit>("m_pSymbolTextLE").setText("r60000");
        fixture.type("m_pAngleLE", "45");
        fixture.recorder.clear();
        fixture.boxes.setOnBox([&] {
            fixture.dialog->on_m_pAngleLE_editingFinished();
            fixture.dialog->on_m_pAngleLE_editingFinished();
        });
        fixture.dialog->getChangeCurrentTool();
        fixture.boxes.setOnBox({});
        QCOMPARE(fixture.boxes.takeTexts(), BoxTextList{sizeBox});
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::DirectionRecord});
        Expect::holds(fixture, {Expect::record(RecordKeys::angle, "45")});
    }

    void boxOfAReceiver_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("field");
        QTest::newRow("text") << "m_pTextTB"
                              << "m_pTextLE";
        QTest::newRow("length") << "m_pTextTB"
                                << "m_pXSizeLE";
        QTest::newRow("pitch") << "m_pPadTB"
                               << "m_pDrilDxLE";
    }

    /// The canvas opens a box on an entry's message: the focus goes, the entry is not sent again.
    void boxOfAReceiver()
    {
        QFETCH(QString, page);
        QFETCH(QString, field);
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.click(page);
        fixture.type(field, "12");
        fixture.recorder.clear();
        bool isOpened = false;
        fixture.recorder.setOnMessage([&](const Recorder::Entry& /*sent*/) {
            if (!std::exchange(isOpened, true)) {
                fixture.openHostBox();
            }
        });
        fixture.press(Qt::Key_Return);
        fixture.recorder.setOnMessage({});
        QCOMPARE(fixture.boxes.takeTexts(), (BoxTextList{{"Host", "Elsewhere"}}));
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
    }

    void failingTextHandler_data()
    {
        QTest::addColumn<bool>("isText");
        QTest::addColumn<QString>("type");
        for (const char* const type : {"m_pLineTB", "m_pPadTB", "m_pArcTB"}) {
            QTest::addRow("a text, %s", type) << true << type;
            QTest::addRow("an exception, %s", type) << false << type;
        }
    }

    /// The host fails while a symbol is typed: one box for each letter, and the text stays.
    void failingTextHandler()
    {
        QFETCH(bool, isText);
        QFETCH(QString, type);
        DialogFixture fixture(Unit::Mil, Opened::ByTheStrip);
        fixture.click(type);
        fixture.focus("m_pSymbolTextLE");
        fixture.recorder.clear();
        auto& getUnit = CanvasHost::uiApiOverrides().getUnit;
        getUnit = [isText](void*) -> int {
            if (isText) {
                throw "no unit";
            }
            throw std::runtime_error("no unit");
        };
        QTest::keyClicks(&fixture.find("m_pSymbolTextLE"), "r1");
        getUnit = nullptr;
        const BoxText noUnit{"Information", "no unit"};
        QCOMPARE(fixture.boxes.takeTexts(), (BoxTextList{noUnit, noUnit}));
        QCOMPARE(fixture.text("m_pSymbolTextLE"), QString("r1"));
        QVERIFY(fixture.recorder.messages().isEmpty());
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "")});

        // The host works again: the entry continues.
        fixture.open();
        fixture.focus("m_pSymbolTextLE");
        QTest::keyClicks(&fixture.find("m_pSymbolTextLE"), "0");
        fixture.leave();
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r10")});
        QVERIFY(fixture.boxes.take().isEmpty());
    }
};

CTS_TEST(TestPending);
#include "test_pending.moc"
