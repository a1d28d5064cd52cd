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

namespace {

Cases barcodeTypes()
{
    const Expect::Expectations aMatrix = {Expect::enabled("m_pAddMarkersCB"),
                                          Expect::enabled("m_pMatrixPB"),
                                          Expect::enabled("m_pMatrixLE")};
    const Expect::Expectations noMatrix = {Expect::disabled("m_pAddMarkersCB"),
                                           Expect::disabled("m_pMatrixPB"),
                                           Expect::disabled("m_pMatrixLE")};
    const auto type = [](const QString& item, const QString& other, const QString& value) {
        return Case("barcode type " + item)
            .given(barcode + Choose("m_pUPCCMB", other))
            .when(Choose("m_pUPCCMB", item))
            .then(Expect::record(RecordKeys::barcodeMode, value.toInt()));
    };
    return {
        type("UPC39", "ECC-200", Symbology::upc39).then(noMatrix),
        type("UPC39 ascii", "ECC-200", Symbology::upc39Ascii).then(noMatrix),
        type("CODE128B", "ECC-200", Symbology::code128B).then(noMatrix),
        type("CODE128C", "ECC-200", Symbology::code128C).then(noMatrix),
        type("ECC-200", "UPC39", Symbology::ecc200).then(aMatrix),
        Case("matrix values are kept")
            .given(matrixCode + Click("m_pAddMarkersCB") + Enter("m_pMatrixLE", "12x12"))
            .when(Choose("m_pUPCCMB", "CODE128C"))
            .then(Expect::record(RecordKeys::addMarkers, Added::yes),
                  Expect::record(RecordKeys::barcodeMatrix, "12x12"),
                  Expect::record(RecordKeys::barcodeMode, Symbology::code128C.toInt()), noMatrix),
    };
}

Cases strings()
{
    const Steps withString = barcode + Click("m_pAddStringCB");
    return {
        Case()
            .given(barcode)
            .when(Click("m_pAddStringCB"))
            .then(Expect::record(RecordKeys::addString, Added::yes),
                  Expect::enabled("m_pPositionCMB")),
        Case("string off")
            .given(withString)
            .when(Click("m_pAddStringCB"))
            .then(Expect::record(RecordKeys::addString, Added::no),
                  Expect::disabled("m_pPositionCMB")),
        Case("bottom")
            .given(withString)
            .when(Choose("m_pPositionCMB", "Bottom"))
            .then(Expect::record(RecordKeys::stringPosition, StringPosition::bottom)),
        Case("top")
            .given(withString + Choose("m_pPositionCMB", "Bottom"))
            .when(Choose("m_pPositionCMB", "Top"))
            .then(Expect::record(RecordKeys::stringPosition, StringPosition::top)),
        Case("no position")
            .given(barcode + Choose("m_pPositionCMB", "Bottom"))
            .when(ChooseNothing("m_pPositionCMB"))
            .then(Expect::record(RecordKeys::stringPosition, StringPosition::bottom)),
    };
}

/// The markers decide what the background is stored as.
Cases backgroundAndMarkers()
{
    const Steps withMarkers = matrixCode + Click("m_pAddMarkersCB");
    return {
        Case("background alone")
            .given(matrixCode)
            .when(Click("m_pBackgroundCB"))
            .then(Expect::record(RecordKeys::addBackground, Added::no),
                  Expect::record(RecordKeys::addMarkers, Added::no)),
        Case("background with markers")
            .given(withMarkers)
            .when(Click("m_pBackgroundCB"))
            .then(Expect::record(RecordKeys::addBackground, Added::yes)),
        Case("background off with markers")
            .given(matrixCode + Click("m_pBackgroundCB") + Click("m_pAddMarkersCB"))
            .when(Click("m_pBackgroundCB"))
            .then(Expect::record(RecordKeys::addBackground, Added::yes)),
        Case("markers")
            .given(matrixCode)
            .when(Click("m_pAddMarkersCB"))
            .then(Expect::record(RecordKeys::addMarkers, Added::yes),
                  Expect::record(RecordKeys::addBackground, Added::no)),
        Case("markers off")
            .given(withMarkers)
            .when(Click("m_pAddMarkersCB"))
            .then(Expect::record(RecordKeys::addMarkers, Added::no)),
    };
}

Cases matrixAndHeight()
{
    return {
        Case()
            .given(matrixCode)
            .when(Enter("m_pMatrixLE", "anything"))
            .then(Expect::record(RecordKeys::barcodeMatrix, "anything")),
        Case().given(matrixCode).when(Click("m_pMatrixPB")),
        Case("typed matrix")
            .given(matrixCode)
            .when(Type("m_pMatrixLE", "8 x 18?"))
            .then(Expect::record(RecordKeys::barcodeMatrix, "8 x 18?")),
        Case("no matrix")
            .given(matrixCode)
            .when(Enter("m_pMatrixLE", ""))
            .then(Expect::record(RecordKeys::barcodeMatrix, "")),
        Case("typed height")
            .given(barcode)
            .when(Type("m_pHeightLE", "12.5"))
            .then(Expect::record(RecordKeys::barcodeHeight, "317.5")),
    };
}

Cases plotStamps()
{
    Cases cases = {
        Case("stamp barcode")
            .given(plotStamp)
            .when(Choose("m_pOrbotechTypeCMB", "Barcode"))
            .then(Expect::record(RecordKeys::orbotechType, PlotStampType::barcode)),
        Case("stamp string")
            .given(plotStamp + Choose("m_pOrbotechTypeCMB", "Barcode"))
            .when(Choose("m_pOrbotechTypeCMB", "String"))
            .then(Expect::record(RecordKeys::orbotechType, PlotStampType::string)),
        Case("no stamp")
            .given(plotStamp)
            .when(ChooseNothing("m_pOrbotechTypeCMB"))
            .then(Expect::record(RecordKeys::orbotechType, 0)),
    };
    for (const QString& size : QStringList{"2", "3", "4"}) {
        cases.append(Case()
                         .given(plotStamp)
                         .when(Choose("m_pOrbotechFontSizeCMB", size))
                         .then(Expect::record(RecordKeys::orbotechFontSize, size.toInt())));
    }
    for (const QString& zoom : QStringList{"2", "3", "4", "5", "6", "7"}) {
        cases.append(Case()
                         .given(plotStamp)
                         .when(Choose("m_pOrbotechZoomCMB", zoom))
                         .then(Expect::record(RecordKeys::orbotechZoom, zoom.toInt())));
    }
    return cases;
}

/// The mode of the holes stores the zoom as well.
Cases cannedTexts()
{
    const Steps sixBySeven = cannedText + Choose("m_pCannedHoleSizeCMB", "6 X 7");
    return {
        Case("typed hole size")
            .given(cannedText)
            .when(Type("m_pCannedHoleSizeLE", "20.5"))
            .then(Expect::record(RecordKeys::cannedHoleSize, "520.7")),
        Case("6 by 7")
            .given(cannedText + Choose("m_pOrbotechZoomCMB", "7"))
            .when(Choose("m_pCannedHoleSizeCMB", "6 X 7"))
            .then(Expect::record(RecordKeys::cannedHoleMode, CannedHoleMode::sixBySeven),
                  Expect::record(RecordKeys::orbotechZoom, 7)),
        Case("5 by 7")
            .given(sixBySeven)
            .when(Choose("m_pCannedHoleSizeCMB", "5 X 7"))
            .then(Expect::record(RecordKeys::cannedHoleMode, CannedHoleMode::fiveBySeven),
                  Expect::record(RecordKeys::orbotechZoom, 1)),
        Case("no mode")
            .given(sixBySeven)
            .when(ChooseNothing("m_pCannedHoleSizeCMB"))
            .then(Expect::record(RecordKeys::cannedHoleMode, CannedHoleMode::sixBySeven),
                  Expect::record(RecordKeys::orbotechZoom, 1)),
    };
}

}  // namespace

class TestTextFormatsPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void table_data()
    {
        addCases(barcodeTypes() + strings() + backgroundAndMarkers() + matrixAndHeight() +
                 plotStamps() + cannedTexts());
    }
    void table() { runCase(); }

    void lengths_data()
    {
        using PageCases::LengthField;
        addCases(LengthField("m_pHeightLE", RecordKeys::barcodeHeight)
                     .reachedBy(barcode)
                     .sends(Sends::Never)
                     .cases() +
                 LengthField("m_pCannedHoleSizeLE", RecordKeys::cannedHoleSize)
                     .reachedBy(cannedText)
                     .sends(Sends::Never)
                     .cases());
    }
    void lengths() { runCase(); }

    void defaults_data()
    {
        QTest::addColumn<Unit>("unit");
        QTest::newRow("mil") << Unit::Mil;
        QTest::newRow("metric") << Unit::Metric;
    }
    void defaults()
    {
        QFETCH(Unit, unit);
        DialogFixture fixture(unit);
        QCOMPARE(fixture.recorder.codes(), QVector<int>());
        Expect::holds(fixture,
                      {Expect::record(RecordKeys::barcodeMode, Symbology::upc39),
                       Expect::record(RecordKeys::addString, Added::no),
                       Expect::record(RecordKeys::addBackground, Added::no),
                       Expect::record(RecordKeys::stringPosition, StringPosition::top),
                       Expect::record(RecordKeys::addMarkers, Added::no),
                       Expect::record(RecordKeys::barcodeMatrix, "Minimal"),
                       Expect::record(RecordKeys::barcodeHeight, "6350"),
                       Expect::record(RecordKeys::orbotechType, PlotStampType::string),
                       Expect::record(RecordKeys::orbotechFontSize, 1),
                       Expect::record(RecordKeys::orbotechZoom, 1),
                       Expect::record(RecordKeys::cannedHoleMode, CannedHoleMode::fiveBySeven),
                       Expect::record(RecordKeys::cannedHoleSize, "508")});
    }

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

    void combos()
    {
        const DialogFixture fixture;
        const auto list = [&](const char* name) {
            return itemTexts(fixture.find<QComboBox>(name));
        };
        QCOMPARE(list("m_pUPCCMB"),
                 (QStringList{"UPC39", "UPC39 ascii", "CODE128B", "CODE128C", "ECC-200"}));
        QCOMPARE(list("m_pPositionCMB"), (QStringList{"Top", "Bottom"}));
        QCOMPARE(list("m_pOrbotechTypeCMB"), (QStringList{"String", "Barcode"}));
        QCOMPARE(list("m_pOrbotechFontSizeCMB"), (QStringList{"1", "2", "3", "4"}));
        QCOMPARE(list("m_pOrbotechZoomCMB"), (QStringList{"1", "2", "3", "4", "5", "6", "7"}));
        QCOMPARE(list("m_pCannedHoleSizeCMB"), (QStringList{"5 X 7", "6 X 7"}));
    }

    void start()
    {
        DialogFixture fixture;
        Expect::holds(
            fixture,
            {Expect::disabled("m_pPositionCMB"), Expect::disabled("m_pAddMarkersCB"),
             Expect::disabled("m_pMatrixPB"), Expect::disabled("m_pMatrixLE"),
             Expect::enabled("m_pBackgroundCB"), Expect::enabled("m_pAddStringCB"),
             Expect::unchecked("m_pAddStringCB"), Expect::unchecked("m_pBackgroundCB"),
             Expect::unchecked("m_pAddMarkersCB"), Expect::text("m_pHeightLE", "250"),
             Expect::text("m_pMatrixLE", "Minimal"), Expect::text("m_pCannedHoleSizeLE", "20")});
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

    void refusals_data()
    {
        using PageCases::Refusal;
        PageCases::addRefusalRows(
            {Refusal("m_pHeightLE").reachedBy(barcode).above().leaves("0").beside("m_pMirrorCMB"),
             Refusal("m_pCannedHoleSizeLE")
                 .reachedBy(cannedText)
                 .above()
                 .leaves("0")
                 .beside("m_pMirrorCMB")});
    }
    void refusals() { PageCases::refuseOnce(); }

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
