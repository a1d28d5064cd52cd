// The page of lines: kinds, directions, rectangle corners, slots.

#include "Main.h"
#include "PageCases.h"
#include "PageFixture.h"

#include "addfeature/AddFeature.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

namespace Sent = MessageCodes::Sent;

using PageCases::Case;

namespace {

const QList<int> attributesAndRecord = {Sent::AttributeMap, Sent::Record};
const QStringList rectangle = {"m_pLineCMB=2"};
const QStringList roundCorner = {"m_pLineCMB=2", "m_pCornerTypeCMB=1"};
const QStringList slot = {"m_pLineCMB=3"};
const QStringList fixedAngle = {"m_pFixedAngleRB"};

QString text(const char* value)
{
    return QString::fromLatin1(value);
}

Case kind(int index, const char* value, const QStringList& states)
{
    Case row;
    row.name = QStringLiteral("kind %1").arg(index);
    // From another kind, with everything in sight that a kind may hide.
    row.before = QStringList{"m_pAttributesCB", index == 0 ? "m_pLineCMB=1" : "m_pLineCMB=0"};
    row.action = QStringLiteral("m_pLineCMB=%1").arg(index);
    row.entries = {{RecordKeys::line, text(value)}};
    row.codes = attributesAndRecord;
    row.states = states;
    return row;
}

const QStringList common = {"shown m_pAttributesCB", "shown m_pValuesPB",     "shown m_pFillPB",
                            "shown m_pPolarityCMB",  "shown m_pSymbolTextLE", "hidden m_pMirrorCMB",
                            "hidden m_pAngleValueSB"};

QList<Case> kinds()
{
    const QStringList directions = {"shown m_pDirectionGroup", "hidden m_pCornerGroup",
                                    "hidden m_pSlotGroup"};
    return {
        kind(0, "1", common + directions + QStringList("disabled m_pClosedCB")),
        kind(1, "2", common + directions + QStringList("enabled m_pClosedCB")),
        kind(2, "3",
             common + QStringList{"hidden m_pDirectionGroup", "shown m_pCornerGroup",
                                  "hidden m_pSlotGroup", "disabled m_pClosedCB"}),
        kind(3, "4",
             {"hidden m_pAttributesCB", "hidden m_pValuesPB", "hidden m_pFillPB",
              "hidden m_pPolarityCMB", "hidden m_pMirrorCMB", "hidden m_pAngleValueSB",
              "shown m_pSymbolTextLE", "hidden m_pDirectionGroup", "hidden m_pCornerGroup",
              "shown m_pSlotGroup", "disabled m_pClosedCB"}),
        {"while pads are chosen",
         {"m_pPadTB"},
         "m_pLineCMB=1",
         {{RecordKeys::line, LineKind::polyline}},
         attributesAndRecord,
         {"hidden m_pMirrorCMB", "hidden m_pAngleValueSB"}},
        {"no kind",
         {"m_pLineCMB=1"},
         "m_pLineCMB=-1",
         {{RecordKeys::line, LineKind::polyline}},
         attributesAndRecord,
         {"enabled m_pClosedCB", "shown m_pDirectionGroup"}},
        {"slot and back",
         {"m_pAttributesCB", "m_pLineCMB=3"},
         "m_pLineCMB=0",
         {{RecordKeys::line, LineKind::single}},
         attributesAndRecord,
         common},
    };
}

QList<Case> directionRows()
{
    const char* const buttons[] = {"m_pFreeDirectionRB",   "m_pVerticalRB",
                                   "m_pHorizontalRB",      "m_pVerticalHorizontalRB",
                                   "m_pEightDirectionsRB", "m_pFixedAngleRB"};
    QList<Case> rows;
    for (int id = 0; id < 6; ++id) {
        const bool isFixed = id == 5;
        rows.append({"",
                     {isFixed ? "m_pVerticalRB" : "m_pFixedAngleRB"},
                     buttons[id],
                     {{RecordKeys::angleGroup, id + 1}, {RecordKeys::angle, text("")}},
                     {Sent::DirectionRecord},
                     isFixed ? QStringList{"enabled m_pAngleLE", "enabled m_pAngleLB"}
                             : QStringList{"disabled m_pAngleLE", "disabled m_pAngleLB"}});
    }
    return rows;
}

QList<Case> angles()
{
    QList<Case> rows;
    for (const char* const legal : {"0", "45", "359.99", "360", "1e2", "", "abc"}) {
        rows.append({QStringLiteral("angle \"%1\"").arg(legal),
                     fixedAngle,
                     text("m_pAngleLE<") + legal,
                     {{RecordKeys::angle, text(legal)}},
                     {Sent::DirectionRecord},
                     {},
                     legal});
    }
    for (const char* const illegal : {"400", "360.01", "-0.01", "-1", "inf", "nan"}) {
        rows.append({QStringLiteral("angle \"%1\"").arg(illegal),
                     fixedAngle + QStringList("m_pAngleLE:45"),
                     text("m_pAngleLE<") + illegal,
                     {{RecordKeys::angle, text("45")}},
                     {},
                     {},
                     "45",
                     {"*"}});
    }
    return rows;
}

QList<Case> corners()
{
    QList<Case> rows;
    for (int index = 0; index < 4; ++index) {
        const QString state = index == 1 || index == 2 ? "enabled " : "disabled ";
        rows.append(
            {QStringLiteral("corner %1").arg(index),
             rectangle + QStringList(index == 1 ? "m_pCornerTypeCMB=3" : "m_pCornerTypeCMB=1"),
             QStringLiteral("m_pCornerTypeCMB=%1").arg(index),
             {{RecordKeys::cornerType, index + 1}},
             {Sent::Record},
             {state + "m_pCornerRadiusLB", state + "m_pCornerRadiusLE",
              state + "m_pCornerRadiusUnitLB"}});
    }
    return rows;
}

QList<Case> silent()
{
    return {
        {"", slot, "m_pSlotAngleLE<-12.5", {{RecordKeys::slotAngle, text("-12.5")}}},
        {"", slot, "m_pSlotAngleLE<99999", {{RecordKeys::slotAngle, text("99999")}}},
        {"", slot, "m_pSlotAngleLE<", {{RecordKeys::slotAngle, text("")}}},
        {"", slot, "m_pSlotDecodeLE<7", {{RecordKeys::slotDecode, text("7")}}},
        {"", slot, "m_pSlotDecodeLE<x", {{RecordKeys::slotDecode, text("x")}}},
        {"", slot, "m_pSlotPlatedCMB=1", {{RecordKeys::slotPlated, SlotPlated::no}}},
        {"",
         slot + QStringList("m_pSlotPlatedCMB=1"),
         "m_pSlotPlatedCMB=0",
         {{RecordKeys::slotPlated, SlotPlated::yes}}},
        {"",
         slot + QStringList("m_pSlotPlatedCMB=1"),
         "m_pSlotPlatedCMB=-1",
         {{RecordKeys::slotPlated, SlotPlated::no}}},
        {"typed slot angle", slot, "m_pSlotAngleLE:30", {{RecordKeys::slotAngle, text("30")}}},
    };
}

QList<Case> closed()
{
    return {
        {"", {"m_pLineCMB=1"}, "m_pClosedCB", {{RecordKeys::closed, Closed::yes}}, {Sent::Record}},
        {"open again",
         {"m_pLineCMB=1", "m_pClosedCB"},
         "m_pClosedCB",
         {{RecordKeys::closed, Closed::no}},
         {Sent::Record}},
        {"kept by a single line",
         {"m_pLineCMB=1", "m_pClosedCB"},
         "m_pLineCMB=0",
         {{RecordKeys::closed, Closed::yes}, {RecordKeys::line, LineKind::single}},
         attributesAndRecord,
         {"checked m_pClosedCB", "disabled m_pClosedCB"}},
        {"disabled", {}, "m_pClosedCB", {{RecordKeys::closed, Closed::no}}},
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
        PageCases::compareConnections(
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
        PageCases::addRows(kinds() + directionRows() + angles() + corners() + silent() + closed());
    }
    void table() { PageCases::run(); }

    void lengths_data()
    {
        PageCases::addRows(
            PageCases::lengthCases({{"m_pCornerRadiusLE",
                                     RecordKeys::cornerRadius,
                                     roundCorner,
                                     50000,
                                     {Sent::Record},
                                     {}},
                                    {"m_pLengthLE", RecordKeys::slotLength, slot, 50000, {}, {}}}));
    }
    void lengths() { PageCases::run(); }

    void start()
    {
        PageFixture fixture;
        QCOMPARE(fixture.index("m_pLineCMB"), 0);
        QCOMPARE(fixture.index("m_pCornerTypeCMB"), 0);
        QCOMPARE(fixture.index("m_pSlotPlatedCMB"), 0);
        for (const char* const state :
             {"disabled m_pClosedCB", "checked m_pFreeDirectionRB", "disabled m_pAngleLE",
              "disabled m_pAngleLB", "hidden m_pCornerGroup", "hidden m_pSlotGroup",
              "disabled m_pCornerRadiusLE", "disabled m_pCornerRadiusLB",
              "disabled m_pCornerRadiusUnitLB", "shown m_pDirectionGroup"}) {
            QVERIFY2(fixture.hasState(state), state);
        }
        QCOMPARE(fixture.text("m_pAngleLE"), QString());
        for (const char* const field :
             {"m_pCornerRadiusLE", "m_pLengthLE", "m_pSlotAngleLE", "m_pSlotDecodeLE"}) {
            QCOMPARE(fixture.text(field), QString("0"));
        }
    }

    void texts()
    {
        PageFixture fixture;
        QCOMPARE(fixture.visibleTexts("m_pLinePage"),
                 (QStringList{"Single Line", "Polyline", "Rectangle", "Slot", "Closed",
                              "Angle (deg)", "Corner Type : ", "Straight", "Round", "Chamfer",
                              "Oblong", "Corner Radius : ", "mil", "Length : ", "\"",
                              "Angle (deg) : ", "Decode: ", "Plated", "Non Plated"}));
        QCOMPARE(fixture.greyedItems("m_pLinePage"), QStringList("m_pLineCMB 3"));
    }

    void directionIcons()
    {
        PageFixture fixture;
        const char* const icons[][2] = {
            {"m_pFreeDirectionRB", "Free1.jpg"},    {"m_pVerticalRB", "Ver1.jpg"},
            {"m_pHorizontalRB", "Hori1.jpg"},       {"m_pVerticalHorizontalRB", "VH1.jpg"},
            {"m_pEightDirectionsRB", "8 Dir1.jpg"}, {"m_pFixedAngleRB", "Fixed1.jpg"}};
        int id = 0;
        int x = -1;
        for (const auto& [button, icon] : icons) {
            auto& radio = fixture.find<QRadioButton>(button);
            const QIcon expected(QString(":/Canvas_Tool_Strip/Resources/") + icon);
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
        QTest::addColumn<QStringList>("before");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::newRow("leading zero") << roundCorner << "m_pCornerRadiusLE"
                                      << "01"
                                      << "0";
        QTest::newRow("decimals") << roundCorner << "m_pCornerRadiusLE"
                                  << "1.5"
                                  << "15";
        QTest::newRow("sign") << roundCorner << "m_pCornerRadiusLE"
                              << "-5"
                              << "5";
        QTest::newRow("angle") << fixedAngle << "m_pAngleLE"
                               << "4a5.5"
                               << "45.5";
        QTest::newRow("slot length") << slot << "m_pLengthLE"
                                     << "1.2.3"
                                     << "1.23";
    }
    void typing()
    {
        QFETCH(QStringList, before);
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        PageFixture fixture;
        fixture.perform(before);
        fixture.type(field, typed);
        QCOMPARE(fixture.text(field), shown);
    }

    void greyedItems_data() { PageCases::addGreyedRows({{"m_pLineCMB", {}, 2, 4}}); }
    void greyedItems() { PageCases::tryToReachGreyedItem(); }

    void refusals_data()
    {
        PageCases::addRefusalRows(
            {{"m_pAngleLE", fixedAngle, "400", "", "m_pLineCMB"},
             {"m_pCornerRadiusLE", roundCorner, "50001", "0", "m_pCornerTypeCMB"},
             {"m_pLengthLE", slot, "50000.5", "0", "m_pSlotPlatedCMB"}});
    }
    void refusals() { PageCases::refuseOnce(); }

    void units()
    {
        PageCases::switchUnitTenTimes(roundCorner, {"m_pCornerRadiusLE~100", "m_pLengthLE~1.5"},
                                      {"m_pCornerRadiusUnitLB=mil|my", "m_pLengthUnitLB=\"|mm"});
    }

    void unitsLeaveAnglesAndDecodeAlone()
    {
        PageFixture fixture;
        const QStringList fields = {"m_pAngleLE", "m_pSlotAngleLE", "m_pSlotDecodeLE"};
        for (const QString& field : fields) {
            fixture.setText(field, "12.5");
        }
        fixture.changeUnit(true);
        for (const QString& field : fields) {
            QCOMPARE(fixture.text(field), QString("12.5"));
        }
    }

    void slotLengthInTheOtherUnit()
    {
        PageFixture fixture;
        fixture.setText("m_pLengthLE", "1.23456789");
        fixture.changeUnit(true);
        QCOMPARE(fixture.text("m_pLengthLE"), QString("31.358"));  // 6 significant digits
        fixture.setText("m_pLengthLE", "1");
        fixture.changeUnit(false);
        QCOMPARE(fixture.text("m_pLengthLE"), QString("0.0393701"));
    }

    void language() { PageCases::retranslate("m_pLinePage", roundCorner); }

    void keepsItsStateWhenShownAgain()
    {
        PageFixture fixture;
        fixture.perform(QStringList{"m_pLineCMB=2", "m_pCornerTypeCMB=2", "m_pPadTB", "m_pLineTB"});
        QCOMPARE(fixture.index("m_pLineCMB"), 2);
        QVERIFY(fixture.hasState("shown m_pCornerGroup"));
        QCOMPARE(fixture.record().value(RecordKeys::cornerType),
                 QVariant(CornerType::chamfer.toInt()));
    }
};

CTS_TEST(TestLinePage);
#include "test_line_page.moc"
