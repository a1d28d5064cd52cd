// The page of lines: kinds, directions, rectangle corners, slots.

#include "Main.h"
#include "PageCases.h"
#include "PageSteps.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <QButtonGroup>
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

const Expect::Expectation attributesAndRecord = Expect::sent(Sent::AttributeMap, Sent::Record);

/// What a kind shows and hides above the page.
Cases lineKinds()
{
    return {
        Case("slot")
            .given({Click("m_pAttributesCB")})
            .when(Choose("m_pLineCMB", "Slot"))
            .then(Expect::record(RecordKeys::line, LineKind::slot), attributesAndRecord,
                  noAttributeRows, Expect::shown("m_pSlotGroup")),
        Case("slot and back")
            .given(Steps{Click("m_pAttributesCB")} + slot)
            .when(Choose("m_pLineCMB", "Single Line"))
            .then(Expect::record(RecordKeys::line, LineKind::single), attributesAndRecord,
                  commonRows, Expect::hidden("m_pSlotGroup")),
        Case("while pads are chosen")
            .given({Click("m_pPadTB")})
            .when(Choose("m_pLineCMB", "Polyline"))
            .then(Expect::record(RecordKeys::line, LineKind::polyline), attributesAndRecord,
                  Expect::hidden("m_pMirrorCMB"), Expect::hidden("m_pAngleValueSB")),
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

    void kinds_data() { addCases(lineKinds()); }
    void kinds() { runCase(); }

    void texts()
    {
        const DialogFixture fixture;
        QCOMPARE(PageCases::visibleTexts(fixture, "m_pLinePage"),
                 (QStringList{"Single Line", "Polyline", "Rectangle", "Slot", "Closed",
                              "Angle (deg)", "Corner Type : ", "Straight", "Round", "Chamfer",
                              "Oblong", "Corner Radius : ", "mil", "Length : ", "\"",
                              "Angle (deg) : ", "Decode: ", "Plated", "Non Plated"}));
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

    void units()
    {
        PageCases::switchUnitTenTimes(
            roundCorner, {{"m_pCornerRadiusLE", "100"}, {"m_pLengthLE", "1.5"}},
            {{"m_pCornerRadiusUnitLB", "mil", "my"}, {"m_pLengthUnitLB", "\"", "mm"}});
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
