// What each kind of field stores, refuses and sends, without a dialog around it.

#include "AnyField.h"
#include "FakeDoor.h"
#include "Main.h"
#include "addfeature/fields/ButtonField.h"
#include "addfeature/fields/ChoiceField.h"
#include "addfeature/fields/FlagField.h"
#include "addfeature/fields/LengthField.h"
#include "addfeature/fields/NumberField.h"
#include "addfeature/fields/PitchField.h"
#include "addfeature/fields/RadioField.h"
#include "addfeature/fields/TextField.h"

#include <UiApiStandIn.h>

#include <QLabel>
#include <QToolButton>

#include <utility>

Q_DECLARE_METATYPE(Sends)
Q_DECLARE_METATYPE(ChoiceField::Stores)
Q_DECLARE_METATYPE(UnitField::Unit)

namespace {

/// "10" in a field for a length, and what results.
struct TypedLength {
    explicit TypedLength(Sends whenSends = Sends::Never) : sends(whenSends) {}
    TypedLength& inMetric() { return metric = true, *this; }
    TypedLength& refused() { return isAccepted = false, shown = stored = "0", *this; }
    TypedLength& stores(const QString& value) { return stored = value, *this; }
    TypedLength& isSent() { return sent = true, *this; }

    Sends sends;
    bool isAccepted = true;
    bool metric = false;
    QString shown = "10";
    QString stored;
    bool sent = false;
};

}  // namespace
Q_DECLARE_METATYPE(TypedLength)

class TestFields : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void buildingStoresAndSendsNothing()
    {
        FakeDoor door;
        QWidget page;
        const LengthField length(door, &page, upTo50000(Sends::Always), "250");
        QCOMPARE(door.record().text(anyKey), QString("6350"));
        QCOMPARE(door.takeCalls(), QStringList());
        QCOMPARE(door.connections(),
                 QStringList("m_pAnyLE editingFinished() on_m_pAnyLE_editingFinished()"));
        QCOMPARE(length.objectName(), QString("m_pAnyLE"));
        QCOMPARE(length.label()->objectName(), QString("m_pAnyLB"));
        QCOMPARE(length.label()->text(), QString("Any : "));
        QCOMPARE(length.label()->buddy(), static_cast<const QWidget*>(&length));
        QCOMPARE(length.unitLabel()->objectName(), QString("m_pAnyUnitLB"));
        QCOMPARE(length.parentWidget(), &page);
    }

    void length_data()
    {
        QTest::addColumn<TypedLength>("row");
        QTest::newRow("mil") << TypedLength(Sends::WhenAccepted).stores("254").isSent();
        QTest::newRow("metric")
            << TypedLength(Sends::WhenAccepted).inMetric().stores("10").isSent();
        QTest::newRow("never") << TypedLength(Sends::Never).stores("254");
        QTest::newRow("refused") << TypedLength(Sends::WhenAccepted).refused();
        QTest::newRow("refused, always") << TypedLength(Sends::Always).refused().isSent();
        QTest::newRow("refused, never") << TypedLength(Sends::Never).refused().inMetric();
    }

    void length()
    {
        QFETCH(TypedLength, row);
        FakeDoor door;
        QWidget page;
        LengthField field(door, &page, upTo50000(row.sends), "5");
        door.accepts = row.isAccepted;
        door.hostUnits.tell(row.metric);
        QString whenSent;
        door.onSend = [&] { whenSent = door.record().text(anyKey); };
        type(field, "10");
        QTest::keyClick(&field, Qt::Key_Return);
        QCOMPARE(field.text(), row.shown);
        QCOMPARE(door.record().text(anyKey), row.stored);
        QCOMPARE(door.takeCalls(), QStringList("length 10 up to 50000") +
                                       (row.sent ? QStringList("record") : QStringList()));
        QCOMPARE(whenSent, row.sent ? row.stored : QString());
    }

    void unit_data()
    {
        QTest::addColumn<UnitField::Unit>("unit");
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<QString>("metric");
        QTest::newRow("mil") << UnitField::Unit::Mil << QStringList{"mil", "my", "mil"} << "254";
        QTest::newRow("mil by its label")
            << UnitField::Unit::MilByLabel << QStringList{"mil", "mil", "mil"} << "254";
        QTest::newRow("inch") << UnitField::Unit::PlainInch << QStringList{"\"", "mm", "\""}
                              << "254";
    }

    void unit()
    {
        QFETCH(UnitField::Unit, unit);
        QFETCH(QStringList, labels);
        QFETCH(QString, metric);
        FakeDoor door;
        QWidget page;
        LengthField field(door, &page, upTo50000(Sends::Always), "10", unit);
        QCOMPARE(field.unitLabel()->text(), labels[0]);
        for (int twice = 0; twice < 2; ++twice) {
            field.changeUnit(true);
            QCOMPARE(field.unitLabel()->text(), labels[1]);
            QCOMPARE(field.text(), metric);
        }
        field.changeUnit(false);
        QCOMPARE(field.unitLabel()->text(), labels[2]);
        QCOMPARE(field.text(), QString("10"));
        QCOMPARE(door.record().text(anyKey), QString("254"));
        QCOMPARE(door.takeCalls(), QStringList());
    }

    void plainInchKeepsWhatIsNoNumberAndTakesEdits()
    {
        FakeDoor door;
        QWidget page;
        LengthField field(door, &page, upTo50000(Sends::Never), "1", UnitField::Unit::PlainInch);
        field.changeUnit(true);
        QCOMPARE(field.text(), QString("25.4"));
        field.setText("50.8");
        field.changeUnit(false);
        QCOMPARE(field.text(), QString("2"));
        field.setText("abc");
        field.changeUnit(true);
        QCOMPARE(field.text(), QString("abc"));
        field.setText("1");
        field.changeUnit(false);
        QCOMPARE(field.text(), QString("0.0393701"));  // 6 significant digits
    }

    void pitch()
    {
        FakeDoor door;
        QWidget page;
        CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Micrometre);
        PitchField field(door, &page, line(Sends::WhenAccepted));
        CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Mil);
        QCOMPARE(field.unitLabel()->text(), QString("my"));
        QCOMPARE(door.record().text(anyKey), QString("0"));
        type(field, "-10");
        QTest::keyClick(&field, Qt::Key_Return);
        QCOMPARE(door.record().text(anyKey), QString("-254"));
        QCOMPARE(door.takeCalls(), (QStringList{"coordinate -10", "record"}));

        door.accepts = false;
        type(field, "99");
        QTest::keyClick(&field, Qt::Key_Return);
        QCOMPARE(field.text(), QString("0"));
        QCOMPARE(door.record().text(anyKey), QString("-254"));  // only the field falls back
        QCOMPARE(door.takeCalls(), QStringList("coordinate 99"));

        door.accepts = true;
        field.clear();
        field.finish();
        QCOMPARE(field.text(), QString("0"));
        QCOMPARE(door.record().text(anyKey), QString("0"));
    }

    void number_data()
    {
        QTest::addColumn<bool>("atEachChange");
        QTest::newRow("at each change") << true;
        QTest::newRow("when finished") << false;
    }

    void number()
    {
        QFETCH(bool, atEachChange);
        FakeDoor door;
        QWidget page;
        Field::Details details = line(Sends::WhenAccepted).within(-1, 50);
        NumberField field(
            door, &page, atEachChange ? details : details.asDirection(), "1",
            atEachChange ? NumberField::Checked::AtEachChange : NumberField::Checked::WhenFinished,
            NumberField::Typed::AsTheHostAllows);
        const QString sent = atEachChange ? "record" : "direction";
        field.setText("7");
        if (!atEachChange) {
            QCOMPARE(door.takeCalls(), QStringList());
            field.finish();
        }
        QCOMPARE(door.takeCalls(), (QStringList{"number 7 from -1 to 50", sent}));
        QCOMPARE(door.record().text(anyKey), QString("7"));

        door.accepts = false;
        field.setText("99");
        if (!atEachChange) {
            field.finish();
        }
        QCOMPARE(door.takeCalls(), QStringList("number 99 from -1 to 50"));  // once, and unsent
        QCOMPARE(field.text(), QString("7"));
        QCOMPARE(door.record().text(anyKey), QString("7"));
    }

    /// Stored as typed, even if it is none.
    void whatIsNoNumberIsCheckedAsZero()
    {
        FakeDoor door;
        QWidget page;
        NumberField field(door, &page, line(Sends::Never).within(0, 50), "7",
                          NumberField::Checked::AtEachChange, NumberField::Typed::Whole);
        for (const auto& [text, checked] :
             {std::pair("50.0", "50"), std::pair("", "0"), std::pair("abc", "0"),
              std::pair("1e2", "100"), std::pair("nan", "nan"), std::pair("-inf", "-inf")}) {
            field.setText(text);
            QCOMPARE(door.takeCalls(), QStringList(QString("number %1 from 0 to 50").arg(checked)));
            QCOMPARE(door.record().text(anyKey), QString(text));
        }
    }

    void text()
    {
        FakeDoor door;
        QWidget page;
        TextField field(door, &page, line(Sends::Always), LineField::Pattern::Text, "a",
                        [](const QString& text) { return text != "bad"; });
        type(field, "word");
        QTest::keyClick(&field, Qt::Key_Return);
        QCOMPARE(door.record().text(anyKey), QString("word"));
        QCOMPARE(door.takeCalls(), QStringList("record"));

        field.setText("bad");
        field.finish();
        QCOMPARE(field.text(), QString());
        QCOMPARE(door.record().text(anyKey), QString("word"));
        QCOMPARE(door.takeCalls(), QStringList());
        field.enter("bad");  // chosen elsewhere: not asked
        QCOMPARE(door.record().text(anyKey), QString("bad"));
        QCOMPARE(door.takeCalls(), QStringList("record"));
    }

    void textThatIsNotSent()
    {
        FakeDoor door;
        QWidget page;
        TextField field(door, &page, line(Sends::Never), LineField::Pattern::Text, "a");
        field.enter("b");
        QCOMPARE(door.record().text(anyKey), QString("b"));
        QCOMPARE(door.takeCalls(), QStringList());
    }

    void choice_data()
    {
        using Stores = ChoiceField::Stores;
        QTest::addColumn<Stores>("stores");
        QTest::addColumn<QVariant>("atFirst");
        QTest::addColumn<QVariant>("chosen");
        QTest::addColumn<QVariant>("none");  // after the second item was chosen
        const QVariant x("x");
        const QVariant y("y");
        QTest::newRow("text") << Stores::Text << x << y << y;
        QTest::newRow("number") << Stores::Number << QVariant(1) << QVariant(2) << QVariant(0);
        QTest::newRow("text, then number")
            << Stores::TextThenNumber << x << QVariant(2) << QVariant(0);
        QTest::newRow("text, else number") << Stores::TextElseNumber << x << y << QVariant(0);
    }

    void choice()
    {
        QFETCH(ChoiceField::Stores, stores);
        QFETCH(QVariant, atFirst);
        QFETCH(QVariant, chosen);
        QFETCH(QVariant, none);
        FakeDoor door;
        QWidget page;
        ChoiceField field(
            door, &page,
            {"m_pAnyCMB", Caption::spoken("Any"), anyKey, SLOT(on_Any_Changed()), Sends::Always},
            {{"first", "x"}, {"second", "y", false}}, stores);
        const auto value = [&] { return door.record().map().value(anyKey); };
        QCOMPARE(value(), atFirst);
        QCOMPARE(value().type(), atFirst.type());
        QCOMPARE(field.accessibleName(), QString("Any"));
        QCOMPARE(field.toolTip(), QString("Any"));
        QVERIFY(!field.label());
        QCOMPARE(field.itemData(1, Qt::UserRole - 1), QVariant(0));
        QVERIFY(field.is("x") && !field.is("y"));

        field.setCurrentText("second");
        QCOMPARE(value(), chosen);
        QCOMPARE(value().type(), chosen.type());
        QVERIFY(field.is("y"));
        field.setCurrentIndex(-1);
        QCOMPARE(value(), none);
        QCOMPARE(value().type(), none.type());
        QVERIFY(!field.is("y") && !field.is(""));
        QCOMPARE(door.takeCalls(), (QStringList{"record", "record"}));
    }

    void choiceThatIsNotSentAndStartsElsewhere()
    {
        FakeDoor door;
        QWidget page;
        ChoiceField field(
            door, &page,
            {"m_pAnyCMB", Caption::label("Any"), anyKey, SLOT(on_Any_Changed()), Sends::Never},
            {{"first", "x"}, {"second", "y"}}, ChoiceField::Stores::Text, "y");
        QCOMPARE(door.record().text(anyKey), QString("y"));
        field.setCurrentText("first");
        QCOMPARE(door.record().text(anyKey), QString("x"));
        QCOMPARE(door.takeCalls(), QStringList());
        field.setCurrentText("second");
        field.retranslate();
        QCOMPARE(field.currentText(), QString("second"));
        QCOMPARE(door.takeCalls(), QStringList());
    }

    void flag()
    {
        FakeDoor door;
        QWidget page;
        FlagField field(
            door, &page,
            {"m_pAnyCB", Caption::own("Any"), anyKey, SLOT(on_Any_Changed(int)), Sends::Always},
            true, {"yes", "no"});
        QCOMPARE(field.text(), QString("Any"));
        QVERIFY(field.isChecked());
        QCOMPARE(door.record().text(anyKey), QString("yes"));
        field.setChecked(false);
        QCOMPARE(door.record().text(anyKey), QString("no"));
        QCOMPARE(door.takeCalls(), QStringList("record"));
        field.storeAs(true);
        QCOMPARE(door.record().text(anyKey), QString("yes"));
        QCOMPARE(door.takeCalls(), QStringList());
    }

    void radio()
    {
        FakeDoor door;
        QWidget page;
        RadioField field(
            door, &page,
            Field::Details{"m_pAnyBG", Caption::none(), anyKey,
                           SLOT(on_Any_Clicked(QAbstractButton*)), Sends::Always}
                .asDirection(),
            RadioField::Look::Tool,
            {{"m_pOneTB", "Free1.jpg", "One", "1"}, {"m_pTwoTB", "Ver1.jpg", "Two", "2"}});
        QCOMPARE(door.record().map().value(anyKey), QVariant("1"));
        QCOMPARE(field.checkedId(), 0);
        QCOMPARE(field.button(1)->toolTip(), QString("Two"));
        QCOMPARE(field.button(1)->accessibleName(), QString("Two"));
        QVERIFY(qobject_cast<QToolButton*>(field.button(1))->autoRaise());
        field.button(1)->click();
        QCOMPARE(door.record().map().value(anyKey), QVariant(2));
        QCOMPARE(door.takeCalls(), QStringList("direction"));
    }

    /// What a choice enables is enabled whole, with its labels, from the start on.
    void aChoiceEnablesARow()
    {
        FakeDoor door;
        QWidget page;
        ChoiceField choice(
            door, &page,
            {"m_pAnyCMB", Caption::spoken("Any"), "Choice", SLOT(on_Any_Changed()), Sends::Never},
            {{"first", "x"}, {"second", "y"}, {"third", "z"}}, ChoiceField::Stores::Text);
        const LengthField field(door, &page, upTo50000(Sends::Never).enabledBy(&choice, {"y", "z"}),
                                "5");
        const auto isEnabled = [&] {
            return QList<bool>{field.isEnabled(), field.label()->isEnabled(),
                               field.unitLabel()->isEnabled()};
        };
        const QList<bool> all{true, true, true};
        const QList<bool> none{false, false, false};
        QCOMPARE(isEnabled(), none);
        for (const auto& [item, expected] :
             {std::pair(1, all), std::pair(2, all), std::pair(0, none), std::pair(2, all)}) {
            choice.setCurrentIndex(item);
            QCOMPARE(isEnabled(), expected);
        }
        // Where nothing is stored, nothing changes either.
        choice.setCurrentIndex(-1);
        QCOMPARE(isEnabled(), all);
        choice.enableOthers();
        QCOMPARE(isEnabled(), none);
    }

    void flagsAndRadioButtonsEnable()
    {
        FakeDoor door;
        QWidget page;
        FlagField flag(
            door, &page,
            {"m_pAnyCB", Caption::own("Any"), "Flag", SLOT(on_Any_Changed(int)), Sends::Never},
            true, {"yes", "no"});
        RadioField radio(
            door, &page,
            {"m_pAnyBG", Caption::none(), "Radio", SLOT(on_Any_Clicked(QAbstractButton*)),
             Sends::Never},
            RadioField::Look::Radio,
            {{"m_pOneRB", "Free1.jpg", "One", "1"}, {"m_pTwoRB", "Ver1.jpg", "Two", "2"}});
        const ButtonField byFlag(door, &page,
                                 Field::Details{"m_pFlagPB", Caption::own("Flag"), QString(),
                                                SLOT(on_Flag_clicked()), Sends::Never}
                                     .enabledBy(&flag, {"no"}));
        const ButtonField byRadio(door, &page,
                                  Field::Details{"m_pRadioPB", Caption::own("Radio"), QString(),
                                                 SLOT(on_Radio_clicked()), Sends::Never}
                                      .enabledBy(&radio, {"2"}));
        QVERIFY(!byFlag.isEnabled() && !byRadio.isEnabled());
        QCOMPARE(byFlag.text(), QString("Flag"));
        flag.setChecked(false);
        QVERIFY(byFlag.isEnabled() && !byRadio.isEnabled());
        radio.button(1)->click();
        QVERIFY(byRadio.isEnabled());
        flag.setChecked(true);
        radio.button(0)->click();
        QVERIFY(!byFlag.isEnabled() && !byRadio.isEnabled());
        QVERIFY(!door.record().map().contains(QString()));
    }

    /// A length that starts in the unit that the host shows.
    void startsAsShown()
    {
        QWidget page;
        for (const bool isMetric : {false, true}) {
            using CanvasHost::DisplayUnit;
            CanvasHost::setDisplayUnit(isMetric ? DisplayUnit::Micrometre : DisplayUnit::Mil);
            FakeDoor door;
            const LengthField field(door, &page, upTo50000(Sends::Never), "24",
                                    LengthField::Unit::AsShown);
            QCOMPARE(field.text(), QString(isMetric ? "609.6" : "24"));
            QCOMPARE(field.unitLabel()->text(), QString(isMetric ? "my" : "mil"));
            QCOMPARE(door.record().text(anyKey), QString("609.6"));
        }
        CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Mil);
    }
};

CTS_TEST(TestFields);
#include "test_fields.moc"
