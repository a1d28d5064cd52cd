// What a typed symbol becomes in the record.

#include "DialogFixture.h"
#include "GlogCatcher.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QSpinBox>

namespace Sent = MessageCodes::Sent;

namespace {

const QString refusal("Illegal Input|Unable to create special symbol!");

struct Row {
    const char* name;
    const char* type;
    bool metric;
    const char* typed;
    const char* stored;    // null: refused
    const char* rotation;  // with the spin box at 30
};

const Row rows[] = {
    {"line, round", "m_pLineTB", false, "r10", "r10", "30"},
    {"line, square with decimals", "m_pLineTB", false, "s20.5", "s20.5", "30"},
    {"line, empty", "m_pLineTB", false, "", "", "30"},
    {"line, r alone", "m_pLineTB", false, "r", nullptr, "30"},
    {"line, s alone", "m_pLineTB", false, "s", nullptr, "30"},
    {"line, metric", "m_pLineTB", true, "r254", "r10", "30"},
    {"line, special", "m_pLineTB", false, "fiducial_cross", "fiducial_cross", "30"},
    {"line, special in metric", "m_pLineTB", true, "fiducial_cross", "fiducial_cross", "30"},
    {"line, special with a blank", "m_pLineTB", false, "Target 1", "Target 1", "30"},
    {"line, special in other letters", "m_pLineTB", false, "target 1", nullptr, "30"},
    {"line, with suffix", "m_pLineTB", false, "r10_5", "r10", "35"},
    {"pad, r alone", "m_pPadTB", false, "r", nullptr, "30"},
    {"pad, rectangle", "m_pPadTB", false, "rect20x40", "rect20x40", "30"},
    {"pad, metric rectangle", "m_pPadTB", true, "rect508x1016", "rect20x40", "30"},
    {"pad, user symbol", "m_pPadTB", false, "logo", "logo", "30"},
    {"pad, suffix", "m_pPadTB", false, "r10_45", "r10", "75"},
    {"pad, metric suffix", "m_pPadTB", true, "r254_45", "r10", "75"},
    {"pad, suffix after underscores", "m_pPadTB", false, "ring_r60x30_90", "ring_r60x30", "120"},
    {"pad, ring", "m_pPadTB", false, "ring_r60x30", "ring_r60x30", "30"},
    {"pad, suffix of a special symbol", "m_pPadTB", false, "fiducial_cross_10", "fiducial_cross",
     "40"},
    {"pad, suffix with a letter", "m_pPadTB", false, "r10_4x", nullptr, "30"},
    {"pad, suffix without a number", "m_pPadTB", false, "r10_", nullptr, "30"},
    {"pad, signed suffix", "m_pPadTB", false, "r10_-5", nullptr, "30"},
    {"pad, decimal suffix", "m_pPadTB", false, "r10_4.5", nullptr, "30"},
    {"pad, endless suffix", "m_pPadTB", false, "r10_99999999999999999999", nullptr, "30"},
    {"pad, no symbol", "m_pPadTB", false, "foo", nullptr, "30"},
    {"pad, suffix of no symbol", "m_pPadTB", false, "foo_45", nullptr, "75"},
    {"pad, two suffixes", "m_pPadTB", false, "r10_20_45", nullptr, "75"},
    {"pad, size 0", "m_pPadTB", false, "r0", nullptr, "30"},
    {"pad, with a blank", "m_pPadTB", false, "r 10", nullptr, "30"},
    {"pad, only underscores", "m_pPadTB", false, "___", nullptr, "30"},
    {"arc, round", "m_pArcTB", false, "r10", "r10", "30"},
    {"arc, square", "m_pArcTB", false, "s10", nullptr, "30"},
    {"arc, r alone", "m_pArcTB", false, "r", nullptr, "30"},
    {"arc, metric", "m_pArcTB", true, "r25.4", "r1", "30"},
};

}  // namespace

class TestSymbolEntry : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entry_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("isActive");
        for (int i = 0; i < int(std::size(rows)); ++i) {
            QTest::addRow("%s", rows[i].name) << i << true;
            QTest::addRow("%s, other tool", rows[i].name) << i << false;
        }
    }

    void entry()
    {
        QFETCH(int, row);
        QFETCH(bool, isActive);
        const Row& expected = rows[row];
        DialogFixture fixture(expected.metric);
        fixture.find<QSpinBox>("m_pAngleValueSB").setValue(30);
        fixture.enter(expected.metric ? "r254" : "r10");  // what a refusal takes away
        fixture.choose(expected.type);
        fixture.setToolActive(isActive);

        fixture.enter(expected.typed);
        const bool isRefused = !expected.stored;
        QCOMPARE(fixture.boxes.takeTexts(), isRefused ? QStringList(refusal) : QStringList());
        QCOMPARE(fixture.symbol().text(), isRefused ? QString() : QString(expected.typed));
        QCOMPARE(fixture.recorder.codes(), isActive ? QVector<int>{Sent::Record} : QVector<int>{});
        const QVariantMap record = fixture.record();
        QCOMPARE(record.value(RecordKeys::symbolText), QVariant(QString(expected.stored)));
        QCOMPARE(record.value(RecordKeys::mirrorRotate), QVariant(QString(expected.rotation)));
        if (isActive) {
            QCOMPARE(fixture.recorder.last(Sent::Record).message.payload, record);
        }
    }

    void withoutAToolStrip()
    {
        DialogFixture fixture;
        fixture.dialog->setToolStrip(nullptr);
        fixture.enter("r10");
        QVERIFY(fixture.recorder.messages().isEmpty());
        QCOMPARE(fixture.record().value(RecordKeys::symbolText), QVariant(QString("r10")));

        fixture.dialog->setToolStrip(fixture.strip);
        delete fixture.strip;
        fixture.enter("r20");
        QVERIFY(fixture.recorder.messages().isEmpty());
        QCOMPARE(fixture.record().value(RecordKeys::symbolText), QVariant(QString("r20")));
    }

    void theNextEntryClearsTheSuffix()
    {
        DialogFixture fixture;
        fixture.choose("m_pPadTB");
        fixture.enter("r10_45");
        fixture.find<QSpinBox>("m_pAngleValueSB").setValue(10);
        fixture.dialog->on_m_pAngleValueSB_editingFinished();
        QCOMPARE(fixture.record().value(RecordKeys::mirrorRotate), QVariant(QString("55")));
        fixture.enter("r10");
        QCOMPARE(fixture.record().value(RecordKeys::mirrorRotate), QVariant(QString("10")));
        fixture.dialog->on_m_pAngleValueSB_editingFinished();
        QCOMPARE(fixture.record().value(RecordKeys::mirrorRotate), QVariant(QString("10")));
    }

    void rotationAddsWhatFollowsTheFirstUnderscore()
    {
        DialogFixture fixture;
        fixture.choose("m_pPadTB");
        fixture.enter("fiducial_cross_45");
        QCOMPARE(fixture.record().value(RecordKeys::mirrorRotate), QVariant(QString("45")));
        fixture.dialog->on_m_pAngleValueSB_editingFinished();
        QCOMPARE(fixture.record().value(RecordKeys::mirrorRotate), QVariant(QString("0")));
    }

    void onlyAnArcAsksForRoundSymbols()
    {
        const struct {
            const char* type;
            QVector<bool> flags;
        } expected[] = {{"m_pLineTB", {false}}, {"m_pPadTB", {false}}, {"m_pArcTB", {true}}};
        for (const auto& row : expected) {
            DialogFixture fixture;
            fixture.choose(row.type);
            QVector<bool> flags;
            CanvasHost::camApiOverrides().identify_symbol =
                [&](const std::string&, ZENTRA::API::symbol_type&, int&, int&, bool arc) {
                    flags.append(arc);
                    return true;
                };
            fixture.enter("r10");
            QCOMPARE(flags, row.flags);
            flags.clear();
            fixture.enter("r10_45");  // the test of the whole name comes first, without the flag
            QCOMPARE(flags, QVector<bool>({false}) + row.flags);
        }
    }

    void refusedOnce_data()
    {
        QTest::addColumn<QString>("way");
        for (const char* const way : {"Tab", "Enter", "mouse"}) {
            QTest::newRow(way) << way;
        }
    }

    void refusedOnce()
    {
        QFETCH(QString, way);
        DialogFixture fixture;
        fixture.type("r");
        fixture.leave(way);
        QCOMPARE(fixture.boxes.takeTexts(), QStringList(refusal));
        QCOMPARE(fixture.symbol().text(), QString());
        // Enter sends what it was given before the entry is looked at.
        QCOMPARE(fixture.recorder.codes(), way == "Enter"
                                               ? (QVector<int>{Sent::Record, Sent::Record})
                                               : QVector<int>{Sent::Record});
        QCOMPARE(fixture.record().value(RecordKeys::symbolText), QVariant(QString("")));
    }

    void enterSendsWhatWasTyped()
    {
        DialogFixture fixture;
        fixture.type("r10");
        QVERIFY(fixture.recorder.messages().isEmpty());
        fixture.leave("Enter");
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::Record, Sent::Record}));
        QCOMPARE(fixture.recorder.last(Sent::Record).message.payload.value(RecordKeys::symbolText),
                 QVariant(QString("r10")));
    }

    void enterSendsWhateverTheToolIs()
    {
        DialogFixture fixture(true);
        fixture.setToolActive(false);
        fixture.type("r254");
        fixture.leave("Enter");
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        QCOMPARE(fixture.recorder.last(Sent::Record).message.payload.value(RecordKeys::symbolText),
                 QVariant(QString("r10")));
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
        fixture.type("r10");
        fixture.symbol().setCursorPosition(cursor);
        QString textWhenSent;
        fixture.recorder.setOnMessage([&](const Recorder::Entry&) {
            textWhenSent = textWhenSent.isNull() ? fixture.symbol().text() : textWhenSent;
        });
        fixture.dialog->on_m_pSymbolTextLE_returnPressed();
        QCOMPARE(fixture.symbol().text(), kept);
        QCOMPARE(textWhenSent, kept);
        QCOMPARE(fixture.recorder.last(Sent::Record).message.payload.value(RecordKeys::symbolText),
                 QVariant(kept));
    }

    void tooLargeASizeIsRefusedByTheSend()
    {
        DialogFixture fixture;
        fixture.type("r60000");
        fixture.leave("Tab");
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
        fixture.choose(type);
        fixture.type(typed);
        QCOMPARE(fixture.symbol().text(), shown);
    }

    void hostileTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("a million digits") << 'r' + QString(1000000, '1');
        QTest::newRow("a million letters") << QString(1000000, 'x');
        QTest::newRow("a million underscores") << QString(1000000, '_');
        QTest::newRow("million-digit suffix") << "r10_" + QString(1000000, '9');
        QTest::newRow("other scripts") << QString::fromUtf8("线宽_\xF0\x9F\x98\x80_45");
        QTest::newRow("other digits") << QString::fromUtf8("r10_٤٥");
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
        fixture.choose("m_pPadTB");
        fixture.symbol().setMaxLength(INT_MAX);
        fixture.enter(text);
        QCOMPARE(fixture.boxes.takeTexts(), QStringList(refusal));
        QCOMPARE(fixture.symbol().text(), QString());
        QCOMPARE(fixture.record().value(RecordKeys::symbolText), QVariant(QString("")));
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
        fixture.enter("r20");
        QCOMPARE(fixture.record().value(RecordKeys::symbolText), QVariant(QString("r20")));
    }

    /// What the type does not accept is not reported; when a type that does is chosen, it is taken.
    void aNameThatAnotherTypeAcceptsIsTakenWithIt()
    {
        DialogFixture fixture;
        fixture.choose("m_pPadTB");
        fixture.type("rect20x40");
        fixture.choose("m_pLineTB");
        fixture.leave("Tab");
        QVERIFY(fixture.recorder.codes().isEmpty());
        fixture.click("m_pPadTB");
        QCOMPARE(fixture.symbol().text(), QString("rect20x40"));
        QCOMPARE(fixture.recorder.last(MessageCodes::Sent::Record)
                     .message.payload.value(RecordKeys::symbolText),
                 QVariant(QString("rect20x40")));
    }

    /// The canvas opens a box of its own while it is told: the field reports the same entry again.
    void aBoxOfTheCanvasSendsNothingTwice()
    {
        DialogFixture fixture;
        fixture.type("r10");
        bool isFirst = true;
        fixture.recorder.setOnMessage([&](const Recorder::Entry&) {
            if (std::exchange(isFirst, false)) {
                fixture.dialog->on_m_pSymbolTextLE_editingFinished();
            }
        });
        fixture.leave("Tab");
        QCOMPARE(fixture.recorder.codes(), QVector<int>{50});
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
        QCOMPARE(fixture.record().value(RecordKeys::symbolText), QVariant(QString("r30")));
        QCOMPARE(fixture.recorder.codes(), QVector<int>{50});
    }

    void whatWasTypedWhileTheHostFailedIsTakenOnLeaving()
    {
        DialogFixture fixture;
        CanvasHost::uiApiOverrides().getUnit = [](void*) -> int {
            throw std::runtime_error("no unit");
        };
        fixture.symbol().setFocus();
        QTest::keyClicks(&fixture.symbol(), "r10");
        QCOMPARE(fixture.boxes.take().size(), 3);  // one a key, and none for the focus
        QCOMPARE(fixture.symbol().text(), QString("r10"));
        CanvasHost::uiApiOverrides() = {};
        QApplication::setActiveWindow(fixture.dialog);
        fixture.symbol().setFocus();
        fixture.leave("Tab");
        QTRY_COMPARE(fixture.recorder.codes(), QVector<int>{50});
        QCOMPARE(fixture.record().value(RecordKeys::symbolText), QVariant(QString("r10")));
        QTest::qWait(20);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{50});
    }
};

CTS_TEST(TestSymbolEntry);
#include "test_symbol_entry.moc"
