// The page of lines: kinds, directions, rectangle corners, slots.

#include "Main.h"
#include "PageCases.h"
#include "PageSteps.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <QButtonGroup>
#include <QLabel>
#include <QRadioButton>

namespace Sent = MessageCodes::Sent;

using namespace PageSteps;

namespace {

const Expect::Expectations commonRows = {
    Expect::shown("m_pAttributesCB"),  Expect::shown("m_pValuesPB"),
    Expect::shown("m_pFillPB"),        Expect::shown("m_pPolarityCMB"),
    Expect::shown("m_pSymbolTextLE"),  Expect::hidden("m_pMirrorCMB"),
    Expect::hidden("m_pAngleValueSB"),
};
const Expect::Expectations noAttributeRows = {
    Expect::hidden("m_pAttributesCB"), Expect::hidden("m_pValuesPB"),
    Expect::hidden("m_pFillPB"),       Expect::hidden("m_pPolarityCMB"),
    Expect::hidden("m_pMirrorCMB"),    Expect::hidden("m_pAngleValueSB"),
    Expect::shown("m_pSymbolTextLE"),
};

/// The one of the three groups that is shown.
Expect::Expectations onlyGroup(const QString& shown)
{
    Expect::Expectations expected;
    for (const QString& group :
         QStringList{"m_pDirectionGroup", "m_pCornerGroup", "m_pSlotGroup"}) {
        expected.append(group == shown ? Expect::shown(group) : Expect::hidden(group));
    }
    return expected;
}

const Expect::Expectation attributesAndRecord = Expect::sent(Sent::AttributeMap, Sent::Record);

/// From another kind, with everything visible that a kind may hide.
Case kind(const QString& item, const QString& value)
{
    const QString other = item == "Single Line" ? "Polyline" : "Single Line";
    return Case("kind " + item)
        .given({Click("m_pAttributesCB"), Choose("m_pLineCMB", other)})
        .when(Choose("m_pLineCMB", item))
        .then(Expect::record(RecordKeys::line, value), attributesAndRecord);
}

Cases kinds()
{
    return {
        kind("Single Line", LineKind::single)
            .then(commonRows, onlyGroup("m_pDirectionGroup"), Expect::disabled("m_pClosedCB")),
        kind("Polyline", LineKind::polyline)
            .then(commonRows, onlyGroup("m_pDirectionGroup"), Expect::enabled("m_pClosedCB")),
        kind("Rectangle", LineKind::rectangle)
            .then(commonRows, onlyGroup("m_pCornerGroup"), Expect::disabled("m_pClosedCB")),
        kind("Slot", LineKind::slot)
            .then(noAttributeRows, onlyGroup("m_pSlotGroup"), Expect::disabled("m_pClosedCB")),
        Case("while pads are chosen")
            .given({Click("m_pPadTB")})
            .when(Choose("m_pLineCMB", "Polyline"))
            .then(Expect::record(RecordKeys::line, LineKind::polyline), attributesAndRecord,
                  Expect::hidden("m_pMirrorCMB"), Expect::hidden("m_pAngleValueSB")),
        Case("no kind")
            .given(polyline)
            .when(ChooseNothing("m_pLineCMB"))
            .then(Expect::record(RecordKeys::line, LineKind::polyline), attributesAndRecord,
                  Expect::enabled("m_pClosedCB"), Expect::shown("m_pDirectionGroup")),
        Case("slot and back")
            .given(Steps{Click("m_pAttributesCB")} + slot)
            .when(Choose("m_pLineCMB", "Single Line"))
            .then(Expect::record(RecordKeys::line, LineKind::single), attributesAndRecord,
                  commonRows),
    };
}

Cases directions()
{
    const auto free = [](const QString& button, const QString& direction) {
        return Case()
            .given(fixedAngle)
            .when(Click(button))
            .then(Expect::record(RecordKeys::angleGroup, direction.toInt()),
                  Expect::record(RecordKeys::angle, ""), Expect::sent(Sent::DirectionRecord),
                  Expect::disabled("m_pAngleLE"), Expect::disabled("m_pAngleLB"));
    };
    return {
        free("m_pFreeDirectionRB", LineDirection::free),
        free("m_pVerticalRB", LineDirection::vertical),
        free("m_pHorizontalRB", LineDirection::horizontal),
        free("m_pVerticalHorizontalRB", LineDirection::verticalThenHorizontal),
        free("m_pEightDirectionsRB", LineDirection::eightDirections),
        Case()
            .given({Click("m_pVerticalRB")})
            .when(Click("m_pFixedAngleRB"))
            .then(Expect::record(RecordKeys::angleGroup, LineDirection::fixed.toInt()),
                  Expect::record(RecordKeys::angle, ""), Expect::sent(Sent::DirectionRecord),
                  Expect::enabled("m_pAngleLE"), Expect::enabled("m_pAngleLB")),
    };
}

Cases angles()
{
    Cases cases;
    for (const QString& legal : QStringList{"0", "45", "359.99", "360", "1e2", "", "abc"}) {
        cases.append(Case(QStringLiteral("angle \"%1\"").arg(legal))
                         .given(fixedAngle)
                         .when(Enter("m_pAngleLE", legal))
                         .then(Expect::record(RecordKeys::angle, legal),
                               Expect::sent(Sent::DirectionRecord),
                               Expect::text("m_pAngleLE", legal)));
    }
    for (const QString& illegal : QStringList{"400", "360.01", "-0.01", "-1", "inf", "nan"}) {
        cases.append(Case(QStringLiteral("angle \"%1\"").arg(illegal))
                         .given(fixedAngle + Type("m_pAngleLE", "45"))
                         .when(Enter("m_pAngleLE", illegal))
                         .then(Expect::record(RecordKeys::angle, "45"),
                               Expect::text("m_pAngleLE", "45"), Expect::hostBox()));
    }
    return cases;
}

Cases corners()
{
    const auto corner = [](const QString& item, const QString& other, const QString& value) {
        return Case("corner " + item)
            .given(rectangle + Choose("m_pCornerTypeCMB", other))
            .when(Choose("m_pCornerTypeCMB", item))
            .then(Expect::record(RecordKeys::cornerType, value.toInt()),
                  Expect::sent(Sent::Record));
    };
    const Expect::Expectations aRadius = {Expect::enabled("m_pCornerRadiusLB"),
                                          Expect::enabled("m_pCornerRadiusLE"),
                                          Expect::enabled("m_pCornerRadiusUnitLB")};
    const Expect::Expectations noRadius = {Expect::disabled("m_pCornerRadiusLB"),
                                           Expect::disabled("m_pCornerRadiusLE"),
                                           Expect::disabled("m_pCornerRadiusUnitLB")};
    return {
        corner("Straight", "Round", CornerType::straight).then(noRadius),
        corner("Round", "Oblong", CornerType::round).then(aRadius),
        corner("Chamfer", "Round", CornerType::chamfer).then(aRadius),
        corner("Oblong", "Round", CornerType::oblong).then(noRadius),
    };
}

/// What is stored and sent with the next record.
Cases silent()
{
    const auto entered = [](const QString& field, const QString& text, const QString& key) {
        return Case().given(slot).when(Enter(field, text)).then(Expect::record(key, text));
    };
    const Steps nonPlated = slot + Choose("m_pSlotPlatedCMB", "Non Plated");
    return {
        entered("m_pSlotAngleLE", "-12.5", RecordKeys::slotAngle),
        entered("m_pSlotAngleLE", "99999", RecordKeys::slotAngle),
        entered("m_pSlotAngleLE", "", RecordKeys::slotAngle),
        entered("m_pSlotDecodeLE", "7", RecordKeys::slotDecode),
        entered("m_pSlotDecodeLE", "x", RecordKeys::slotDecode),
        Case()
            .given(slot)
            .when(Choose("m_pSlotPlatedCMB", "Non Plated"))
            .then(Expect::record(RecordKeys::slotPlated, SlotPlated::no)),
        Case()
            .given(nonPlated)
            .when(Choose("m_pSlotPlatedCMB", "Plated"))
            .then(Expect::record(RecordKeys::slotPlated, SlotPlated::yes)),
        Case()
            .given(nonPlated)
            .when(ChooseNothing("m_pSlotPlatedCMB"))
            .then(Expect::record(RecordKeys::slotPlated, SlotPlated::no)),
        Case("typed slot angle")
            .given(slot)
            .when(Type("m_pSlotAngleLE", "30"))
            .then(Expect::record(RecordKeys::slotAngle, "30")),
    };
}

Cases closed()
{
    const Steps closedPolyline = polyline + Click("m_pClosedCB");
    return {
        Case()
            .given(polyline)
            .when(Click("m_pClosedCB"))
            .then(Expect::record(RecordKeys::closed, Closed::yes), Expect::sent(Sent::Record)),
        Case("open again")
            .given(closedPolyline)
            .when(Click("m_pClosedCB"))
            .then(Expect::record(RecordKeys::closed, Closed::no), Expect::sent(Sent::Record)),
        Case("kept by a single line")
            .given(closedPolyline)
            .when(Choose("m_pLineCMB", "Single Line"))
            .then(Expect::record(RecordKeys::closed, Closed::yes),
                  Expect::record(RecordKeys::line, LineKind::single), attributesAndRecord,
                  Expect::checked("m_pClosedCB"), Expect::disabled("m_pClosedCB")),
        Case("disabled")
            .when(Click("m_pClosedCB"))
            .then(Expect::record(RecordKeys::closed, Closed::no)),
    };
}

}  // namespace

class TestLinePage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void connections()
    {
        const char* const index = SIGNAL(currentIndexChanged(QString));
        const char* const edited = SIGNAL(editingFinished());
        PageCases::connected(
            {{"m_pLineCMB", index, SLOT(on_Line_ComboBox_Changed())},
             {"m_pClosedCB", SIGNAL(stateChanged(int)),
              SLOT(on_m_pClosedCB_CheckState_Changed(int))},
             {"m_pAngleLE", edited, SLOT(on_m_pAngleLE_editingFinished())},
             {"m_pCornerTypeCMB", index, SLOT(on_CornerTypre_ComboBox_Changed())},
             {"m_pCornerRadiusLE", edited, SLOT(on_m_pCornerRadiusLE_editingFinished())},
             {"m_pSlotPlatedCMB", index, SLOT(on_m_pSlotPlatedCMB_ComboBox_Changed())},
             {"m_pLengthLE", edited, SLOT(on_m_pLengthLE_editingFinished())},
             {"m_pSlotAngleLE", edited, SLOT(on_m_pSlotAngleLE_editingFinished())},
             {"m_pSlotDecodeLE", edited, SLOT(on_m_pSlotDecodeLE_editingFinished())}});
    }

    void table_data()
    {
        addCases(kinds() + directions() + angles() + corners() + silent() + closed());
    }
    void table() { runCase(); }

    void lengths_data()
    {
        addCases(PageCases::LengthField("m_pCornerRadiusLE", RecordKeys::cornerRadius)
                     .reachedBy(roundCorner)
                     .sends(Sends::WhenAccepted)
                     .cases() +
                 PageCases::LengthField("m_pLengthLE", RecordKeys::slotLength)
                     .reachedBy(slot)
                     .sends(Sends::Never)
                     .cases());
    }
    void lengths() { runCase(); }

    void start()
    {
        DialogFixture fixture;
        Expect::holds(
            fixture,
            {Expect::chosen("m_pLineCMB", "Single Line"),
             Expect::chosen("m_pCornerTypeCMB", "Straight"),
             Expect::chosen("m_pSlotPlatedCMB", "Plated"), Expect::disabled("m_pClosedCB"),
             Expect::checked("m_pFreeDirectionRB"), Expect::disabled("m_pAngleLE"),
             Expect::disabled("m_pAngleLB"), Expect::hidden("m_pCornerGroup"),
             Expect::hidden("m_pSlotGroup"), Expect::disabled("m_pCornerRadiusLE"),
             Expect::disabled("m_pCornerRadiusLB"), Expect::disabled("m_pCornerRadiusUnitLB"),
             Expect::shown("m_pDirectionGroup"), Expect::text("m_pAngleLE", ""),
             Expect::text("m_pCornerRadiusLE", "0"), Expect::text("m_pLengthLE", "0"),
             Expect::text("m_pSlotAngleLE", "0"), Expect::text("m_pSlotDecodeLE", "0")});
    }

    void texts()
    {
        const DialogFixture fixture;
        QCOMPARE(PageCases::visibleTexts(fixture, "m_pLinePage"),
                 (QStringList{"Single Line", "Polyline", "Rectangle", "Slot", "Closed",
                              "Angle (deg)", "Corner Type : ", "Straight", "Round", "Chamfer",
                              "Oblong", "Corner Radius : ", "mil", "Length : ", "\"",
                              "Angle (deg) : ", "Decode: ", "Plated", "Non Plated"}));
        QCOMPARE(PageCases::greyedItems(fixture, "m_pLinePage"), QStringList("m_pLineCMB: Slot"));
    }

    void directionIcons()
    {
        const DialogFixture fixture;
        const struct {
            const char* button;
            const char* icon;
        } directions[] = {
            {"m_pFreeDirectionRB", "Free1.jpg"},    {"m_pVerticalRB", "Ver1.jpg"},
            {"m_pHorizontalRB", "Hori1.jpg"},       {"m_pVerticalHorizontalRB", "VH1.jpg"},
            {"m_pEightDirectionsRB", "8 Dir1.jpg"}, {"m_pFixedAngleRB", "Fixed1.jpg"}};
        int id = 0;
        int x = -1;
        for (const auto& direction : directions) {
            auto& radio = fixture.find<QRadioButton>(direction.button);
            const QIcon expected(QString(":/Canvas_Tool_Strip/Resources/") + direction.icon);
            QVERIFY(!expected.pixmap(24, 24).isNull());
            QCOMPARE(radio.icon().pixmap(24, 24).toImage(), expected.pixmap(24, 24).toImage());
            QVERIFY(radio.text().isEmpty());
            QVERIFY(radio.group()->exclusive());
            QCOMPARE(radio.group()->id(&radio), id++);
            QVERIFY(radio.x() > x);
            x = radio.x();
        }
    }

    void typing_data()
    {
        QTest::addColumn<Steps>("reach");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        // clang-format off
        QTest::newRow("leading zero") << roundCorner << "m_pCornerRadiusLE" << "01" << "0";
        QTest::newRow("decimals") << roundCorner << "m_pCornerRadiusLE" << "1.5" << "15";
        QTest::newRow("sign") << roundCorner << "m_pCornerRadiusLE" << "-5" << "5";
        QTest::newRow("angle") << fixedAngle << "m_pAngleLE" << "4a5.5" << "45.5";
        QTest::newRow("slot length") << slot << "m_pLengthLE" << "1.2.3" << "1.23";
        // clang-format on
    }
    void typing()
    {
        QFETCH(Steps, reach);
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        const DialogFixture fixture;
        fixture.perform(reach);
        fixture.type(field, typed);
        QCOMPARE(fixture.text(field), shown);
    }

    void greyedItems_data()
    {
        PageCases::addGreyedRows({PageCases::GreyedItems("m_pLineCMB")
                                      .free({"Single Line", "Polyline", "Rectangle"})
                                      .greyed({"Slot"})});
    }
    void greyedItems() { PageCases::tryToReachGreyedItem(); }

    void refusals_data()
    {
        using PageCases::Refusal;
        PageCases::addRefusalRows(
            {Refusal("m_pAngleLE").reachedBy(fixedAngle).above().leaves("").beside("m_pLineCMB"),
             Refusal("m_pCornerRadiusLE")
                 .reachedBy(roundCorner)
                 .above()
                 .leaves("0")
                 .beside("m_pCornerTypeCMB"),
             Refusal("m_pLengthLE")
                 .reachedBy(slot)
                 .above()
                 .leaves("0")
                 .beside("m_pSlotPlatedCMB")});
    }
    void refusals() { PageCases::refuseOnce(); }

    void units()
    {
        PageCases::switchUnitTenTimes(
            roundCorner, {{"m_pCornerRadiusLE", "100"}, {"m_pLengthLE", "1.5"}},
            {{"m_pCornerRadiusUnitLB", "mil", "my"}, {"m_pLengthUnitLB", "\"", "mm"}});
    }

    void unitsLeaveAnglesAndDecodeAlone()
    {
        const DialogFixture fixture;
        const QStringList fields = {"m_pAngleLE", "m_pSlotAngleLE", "m_pSlotDecodeLE"};
        for (const QString& field : fields) {
            fixture.find<QLineEdit>(field).setText("12.5");
        }
        fixture.setUnit(Unit::Metric);
        for (const QString& field : fields) {
            QCOMPARE(fixture.text(field), QString("12.5"));
        }
    }

    void slotLengthInTheOtherUnit()
    {
        const DialogFixture fixture;
        auto& length = fixture.find<QLineEdit>("m_pLengthLE");
        length.setText("1.23456789");
        fixture.setUnit(Unit::Metric);
        QCOMPARE(length.text(), QString("31.358"));  // 6 significant digits
        length.setText("1");
        fixture.setUnit(Unit::Mil);
        QCOMPARE(length.text(), QString("0.0393701"));
    }

    void language() { PageCases::retranslate("m_pLinePage", roundCorner); }

    void keepsItsStateWhenShownAgain()
    {
        DialogFixture fixture;
        fixture.perform(rectangle + Choose("m_pCornerTypeCMB", "Chamfer") + Click("m_pPadTB") +
                        Click("m_pLineTB"));
        Expect::holds(fixture,
                      {Expect::chosen("m_pLineCMB", "Rectangle"), Expect::shown("m_pCornerGroup"),
                       Expect::record(RecordKeys::cornerType, CornerType::chamfer.toInt())});
    }
};

CTS_TEST(TestLinePage);
#include "test_line_page.moc"
