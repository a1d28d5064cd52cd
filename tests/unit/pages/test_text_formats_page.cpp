// Barcode, plot stamp and canned text: what their controls write. None of them sends.

#include "Main.h"
#include "PageCases.h"
#include "PageSteps.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace Sent = MessageCodes::Sent;

using namespace PageSteps;

class TestTextFormatsPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutEffect_data()
    {
        addCases(
            {Case("background without markers").given(matrixCode).when(Click("m_pBackgroundCB")),
             Case("matrix button").given(matrixCode).when(Click("m_pMatrixPB"))});
    }
    void withoutEffect() { runCase(); }

    void connections()
    {
        const char* const index = SIGNAL(currentIndexChanged(QString));
        const char* const state = SIGNAL(stateChanged(int));
        const char* const edited = SIGNAL(editingFinished());
        PageCases::connected(
            {{"m_pUPCCMB", index, SLOT(on_UPC_ComboBox_Changed())},
             {"m_pAddStringCB", state, SLOT(on_AddString_CheckState_Changed(int))},
             {"m_pPositionCMB", index, SLOT(on_m_pPositionCMB_ComboBox_Changed())},
             {"m_pBackgroundCB", state, SLOT(on_m_pBackgroundCB_CheckState_Changed(int))},
             {"m_pAddMarkersCB", state, SLOT(on_m_pAddMarkersCB_CheckState_Changed(int))},
             {"m_pHeightLE", edited, SLOT(on_m_pHeightLE_editingFinished())},
             {"m_pMatrixLE", edited, SLOT(on_m_pMatrixLE_editingFinished())},
             {"m_pMatrixPB", SIGNAL(clicked()), SLOT(on_m_pMatrixPB_clicked())},
             {"m_pOrbotechTypeCMB", index, SLOT(on_m_pOrbotechTypeCMB_ComboBox_Changed())},
             {"m_pOrbotechFontSizeCMB", index, SLOT(on_m_pOrbotechFontSizeCMB_ComboBox_Changed())},
             {"m_pOrbotechZoomCMB", index, SLOT(on_m_pOrbotechZoomCMB_ComboBox_Changed())},
             {"m_pCannedHoleSizeCMB", index, SLOT(on_m_pCannedHoleSizeCMB_ComboBox_Changed())},
             {"m_pCannedHoleSizeLE", edited, SLOT(on_m_pCannedHoleSizeLE_editingFinished())}});
    }

    void labels()
    {
        const DialogFixture fixture;
        const struct {
            const char* label;
            const char* text;
        } labels[] = {{"m_pHeightLB", "Height\t:"},       {"m_pHeightUnitLB", "mil"},
                      {"m_pOrbotechTypeLB", "Type\t\t:"}, {"m_pOrbotechFontSizeLB", "Font Size\t:"},
                      {"m_pCannedTypeLB", "Type\t\t:"},   {"m_pOrbotechZoomLB", "Zoom Factor\t:"},
                      {"m_pCannedHoleSizeUnitLB", "mil"}};
        for (const auto& expected : labels) {
            QCOMPARE(fixture.find<QLabel>(expected.label).text(), QString(expected.text));
        }
        QCOMPARE(fixture.find<QPushButton>("m_pMatrixPB").text(), QString("Matrix\t:"));
        QCOMPARE(fixture.find<QCheckBox>("m_pAddStringCB").text(), QString("Add String"));
        QCOMPARE(fixture.find<QCheckBox>("m_pBackgroundCB").text(), QString("Background"));
        QCOMPARE(fixture.find<QCheckBox>("m_pAddMarkersCB").text(), QString("Add Markers"));
    }

    /// The labels say "mil" in every unit and language, whatever the fields show.
    void lengthLabels()
    {
        const DialogFixture fixture(Unit::Metric);
        for (const char* const name : {"m_pHeightUnitLB", "m_pCannedHoleSizeUnitLB"}) {
            const auto& label = fixture.find<QLabel>(name);
            QCOMPARE(label.text(), QString("mil"));
            fixture.setUnit(Unit::Mil);
            fixture.setUnit(Unit::Metric);
            QCOMPARE(label.text(), QString("mil"));
            fixture.dialog->change_language();
            QCOMPARE(label.text(), QString("mil"));
        }
    }

    void heightInBothUnits()
    {
        PageCases::switchUnitTenTimes(barcode, {{"m_pHeightLE", "100"}},
                                      {{"m_pHeightUnitLB", "mil", "mil"}});
    }

    void holeSizeInBothUnits()
    {
        PageCases::switchUnitTenTimes(cannedText, {{"m_pCannedHoleSizeLE", "12.5"}},
                                      {{"m_pCannedHoleSizeUnitLB", "mil", "mil"}});
    }

    void theBoxesThemselvesDecide()
    {
        DialogFixture fixture;
        fixture.dialog->on_AddString_CheckState_Changed(Qt::Checked);
        fixture.dialog->on_m_pAddMarkersCB_CheckState_Changed(Qt::Checked);
        Expect::holds(fixture, {Expect::record(RecordKeys::addString, Added::no),
                                Expect::record(RecordKeys::addMarkers, Added::no)});
    }

    void theHoleModeWritesTheZoomToo()
    {
        DialogFixture fixture;
        fixture.perform(cannedText);
        fixture.recorder.clear();
        {
            // A zoom that the record does not know yet.
            const QSignalBlocker blocker(&fixture.find<QComboBox>("m_pOrbotechZoomCMB"));
            fixture.choose("m_pOrbotechZoomCMB", "5");
        }
        Expect::holds(fixture, {Expect::record(RecordKeys::orbotechZoom, 1)});
        fixture.choose("m_pCannedHoleSizeCMB", "6 X 7");
        Expect::holds(fixture, {Expect::record(RecordKeys::orbotechZoom, 5)});
    }

    void valuesTravelWithTheNextSend()
    {
        DialogFixture fixture;
        fixture.perform(barcode);
        fixture.recorder.clear();
        fixture.enter("m_pHeightLE", "100");
        QCOMPARE(fixture.recorder.codes(), QVector<int>());
        fixture.choose("m_pPolarityCMB", "Negative");
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::barcodeHeight, "2540"),
                                Expect::record(RecordKeys::textFormat, TextKind::barcode)});
    }
};

CTS_TEST(TestTextFormatsPage);
#include "test_text_formats_page.moc"
