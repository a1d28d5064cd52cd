// Barcode, plot stamp and canned text: what their controls write. None of them sends.

#include "FindChild.h"
#include "Main.h"
#include "PageCases.h"
#include "PageFixture.h"
#include "addfeature/AddFeature.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

namespace Sent = MessageCodes::Sent;

using PageCases::Case;

namespace {

const QStringList barcode = {"m_pTextTB", "m_pTextFormatCMB=1"};
const QStringList matrixCode = {"m_pTextTB", "m_pTextFormatCMB=1", "m_pUPCCMB=4"};
const QStringList plotStamp = {"m_pTextTB", "m_pTextFormatCMB=2"};
const QStringList canned = {"m_pTextTB", "m_pTextFormatCMB=3"};

QString text(const char* value)
{
    return QString::fromLatin1(value);
}

QList<Case> barcodeTypes()
{
    const QStringList on = {"enabled m_pAddMarkersCB", "enabled m_pMatrixPB",
                            "enabled m_pMatrixLE"};
    const QStringList off = {"disabled m_pAddMarkersCB", "disabled m_pMatrixPB",
                             "disabled m_pMatrixLE"};
    QList<Case> rows;
    for (int index = 0; index < 5; ++index) {
        rows.append({QStringLiteral("barcode type %1").arg(index),
                     barcode + QStringList(index == 4 ? "m_pUPCCMB=0" : "m_pUPCCMB=4"),
                     QStringLiteral("m_pUPCCMB=%1").arg(index),
                     {{RecordKeys::barcodeMode, index + 1}},
                     {},
                     index == 4 ? on : off});
    }
    rows.append({"matrix values are kept",
                 matrixCode + QStringList{"m_pAddMarkersCB", "m_pMatrixLE<12x12"},
                 "m_pUPCCMB=3",
                 {{RecordKeys::addMarkers, Added::yes},
                  {RecordKeys::barcodeMatrix, text("12x12")},
                  {RecordKeys::barcodeMode, Symbology::code128C.toInt()}},
                 {},
                 off});
    return rows;
}

QList<Case> barcodeOptions()
{
    return {
        {"",
         barcode,
         "m_pAddStringCB",
         {{RecordKeys::addString, Added::yes}},
         {},
         {"enabled m_pPositionCMB"}},
        {"string off",
         barcode + QStringList("m_pAddStringCB"),
         "m_pAddStringCB",
         {{RecordKeys::addString, Added::no}},
         {},
         {"disabled m_pPositionCMB"}},
        {"bottom",
         barcode + QStringList("m_pAddStringCB"),
         "m_pPositionCMB=1",
         {{RecordKeys::stringPosition, StringPosition::bottom}}},
        {"top",
         barcode + QStringList{"m_pAddStringCB", "m_pPositionCMB=1"},
         "m_pPositionCMB=0",
         {{RecordKeys::stringPosition, StringPosition::top}}},
        {"no position",
         barcode + QStringList("m_pPositionCMB=1"),
         "m_pPositionCMB=-1",
         {{RecordKeys::stringPosition, StringPosition::bottom}}},
        // The markers decide what the background is stored as.
        {"background alone",
         matrixCode,
         "m_pBackgroundCB",
         {{RecordKeys::addBackground, Added::no}, {RecordKeys::addMarkers, Added::no}}},
        {"background with markers",
         matrixCode + QStringList("m_pAddMarkersCB"),
         "m_pBackgroundCB",
         {{RecordKeys::addBackground, Added::yes}}},
        {"background off with markers",
         matrixCode + QStringList{"m_pBackgroundCB", "m_pAddMarkersCB"},
         "m_pBackgroundCB",
         {{RecordKeys::addBackground, Added::yes}}},
        {"markers",
         matrixCode,
         "m_pAddMarkersCB",
         {{RecordKeys::addMarkers, Added::yes}, {RecordKeys::addBackground, Added::no}}},
        {"markers off",
         matrixCode + QStringList("m_pAddMarkersCB"),
         "m_pAddMarkersCB",
         {{RecordKeys::addMarkers, Added::no}}},
        {"", matrixCode, "m_pMatrixLE<anything", {{RecordKeys::barcodeMatrix, text("anything")}}},
        {"", matrixCode, "m_pMatrixPB", {}},
        {"typed matrix",
         matrixCode,
         "m_pMatrixLE:8 x 18?",
         {{RecordKeys::barcodeMatrix, text("8 x 18?")}}},
        {"no matrix", matrixCode, "m_pMatrixLE<", {{RecordKeys::barcodeMatrix, text("")}}},
        {"typed height", barcode, "m_pHeightLE:12.5", {{RecordKeys::barcodeHeight, text("317.5")}}},
    };
}

QList<Case> plotStamps()
{
    QList<Case> rows = {
        {"stamp barcode",
         plotStamp,
         "m_pOrbotechTypeCMB=1",
         {{RecordKeys::orbotechType, PlotStampType::barcode}}},
        {"stamp string",
         plotStamp + QStringList("m_pOrbotechTypeCMB=1"),
         "m_pOrbotechTypeCMB=0",
         {{RecordKeys::orbotechType, PlotStampType::string}}},
        {"no stamp", plotStamp, "m_pOrbotechTypeCMB=-1", {{RecordKeys::orbotechType, 0}}},
    };
    for (int index = 1; index < 4; ++index) {
        rows.append({QString(),
                     plotStamp,
                     QStringLiteral("m_pOrbotechFontSizeCMB=%1").arg(index),
                     {{RecordKeys::orbotechFontSize, index + 1}}});
    }
    for (int index = 1; index < 7; ++index) {
        rows.append({QString(),
                     plotStamp,
                     QStringLiteral("m_pOrbotechZoomCMB=%1").arg(index),
                     {{RecordKeys::orbotechZoom, index + 1}}});
    }
    return rows;
}

QList<Case> cannedTexts()
{
    return {
        {"typed hole size",
         canned,
         "m_pCannedHoleSizeLE:20.5",
         {{RecordKeys::cannedHoleSize, text("520.7")}}},
        {"6 by 7",
         canned + QStringList("m_pOrbotechZoomCMB=6"),
         "m_pCannedHoleSizeCMB=1",
         {{RecordKeys::cannedHoleMode, CannedHoleMode::sixBySeven}, {RecordKeys::orbotechZoom, 7}}},
        {"5 by 7",
         canned + QStringList("m_pCannedHoleSizeCMB=1"),
         "m_pCannedHoleSizeCMB=0",
         {{RecordKeys::cannedHoleMode, CannedHoleMode::fiveBySeven},
          {RecordKeys::orbotechZoom, 1}}},
        {"no mode",
         canned + QStringList("m_pCannedHoleSizeCMB=1"),
         "m_pCannedHoleSizeCMB=-1",
         {{RecordKeys::cannedHoleMode, CannedHoleMode::sixBySeven}, {RecordKeys::orbotechZoom, 1}}},
    };
}

}  // namespace

class TestTextFormatsPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void table_data()
    {
        PageCases::addRows(barcodeTypes() + barcodeOptions() + plotStamps() + cannedTexts());
    }
    void table() { PageCases::run(); }

    void lengths_data()
    {
        PageCases::addRows(PageCases::lengthCases(
            {{"m_pHeightLE", RecordKeys::barcodeHeight, barcode, 50000, {}, {}},
             {"m_pCannedHoleSizeLE", RecordKeys::cannedHoleSize, canned, 50000, {}, {}}}));
    }
    void lengths() { PageCases::run(); }

    void defaults_data()
    {
        QTest::addColumn<bool>("metric");
        QTest::newRow("mil") << false;
        QTest::newRow("metric") << true;
    }
    void defaults()
    {
        QFETCH(bool, metric);
        PageCases::compareStart({{RecordKeys::barcodeMode, Symbology::upc39},
                                 {RecordKeys::addString, Added::no},
                                 {RecordKeys::addBackground, Added::no},
                                 {RecordKeys::stringPosition, StringPosition::top},
                                 {RecordKeys::addMarkers, Added::no},
                                 {RecordKeys::barcodeMatrix, text("Minimal")},
                                 {RecordKeys::barcodeHeight, text("6350")},
                                 {RecordKeys::orbotechType, PlotStampType::string},
                                 {RecordKeys::orbotechFontSize, 1},
                                 {RecordKeys::orbotechZoom, 1},
                                 {RecordKeys::cannedHoleMode, CannedHoleMode::fiveBySeven},
                                 {RecordKeys::cannedHoleSize, text("508")}},
                                metric);
    }

    void connections()
    {
        const char* const index = SIGNAL(currentIndexChanged(QString));
        const char* const state = SIGNAL(stateChanged(int));
        const char* const edited = SIGNAL(editingFinished());
        PageCases::compareConnections(
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
        PageFixture fixture;
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
        PageFixture fixture;
        for (const char* const state :
             {"disabled m_pPositionCMB", "disabled m_pAddMarkersCB", "disabled m_pMatrixPB",
              "disabled m_pMatrixLE", "enabled m_pBackgroundCB", "enabled m_pAddStringCB"}) {
            QVERIFY2(fixture.hasState(state), state);
        }
        for (const char* const box : {"m_pAddStringCB", "m_pBackgroundCB", "m_pAddMarkersCB"}) {
            QVERIFY(!fixture.find<QCheckBox>(box).isChecked());
        }
        QCOMPARE(fixture.text("m_pHeightLE"), QString("250"));
        QCOMPARE(fixture.text("m_pMatrixLE"), QString("Minimal"));
        QCOMPARE(fixture.text("m_pCannedHoleSizeLE"), QString("20"));
    }

    void labels()
    {
        PageFixture fixture;
        const char* const labels[][2] = {
            {"m_pHeightLB", "Height\t:"},       {"m_pHeightUnitLB", "mil"},
            {"m_pOrbotechTypeLB", "Type\t\t:"}, {"m_pOrbotechFontSizeLB", "Font Size\t:"},
            {"m_pCannedTypeLB", "Type\t\t:"},   {"m_pOrbotechZoomLB", "Zoom Factor\t:"},
            {"m_pCannedHoleSizeUnitLB", "mil"}};
        for (const auto& [name, label] : labels) {
            QCOMPARE(fixture.labelText(name), QString(label));
        }
        QCOMPARE(fixture.find<QPushButton>("m_pMatrixPB").text(), QString("Matrix\t:"));
        QCOMPARE(fixture.find<QCheckBox>("m_pAddStringCB").text(), QString("Add String"));
        QCOMPARE(fixture.find<QCheckBox>("m_pBackgroundCB").text(), QString("Background"));
        QCOMPARE(fixture.find<QCheckBox>("m_pAddMarkersCB").text(), QString("Add Markers"));
    }

    /// The labels say "mil" in every unit and language, whatever the fields show.
    void lengthLabels()
    {
        PageFixture fixture(true);
        for (const char* const label : {"m_pHeightUnitLB", "m_pCannedHoleSizeUnitLB"}) {
            QCOMPARE(fixture.labelText(label), QString("mil"));
            fixture.changeUnit(false);
            fixture.changeUnit(true);
            QCOMPARE(fixture.labelText(label), QString("mil"));
            fixture.dialog().change_language();
            QCOMPARE(fixture.labelText(label), QString("mil"));
        }
    }

    void units_data()
    {
        QTest::addColumn<QStringList>("before");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("label");
        QTest::newRow("height") << barcode << "m_pHeightLE~100"
                                << "m_pHeightUnitLB=mil|mil";
        QTest::newRow("hole") << canned << "m_pCannedHoleSizeLE~12.5"
                              << "m_pCannedHoleSizeUnitLB=mil|mil";
    }
    void units()
    {
        QFETCH(QStringList, before);
        QFETCH(QString, field);
        QFETCH(QString, label);
        PageCases::switchUnitTenTimes(before, {field}, {label});
    }

    void refusals_data()
    {
        PageCases::addRefusalRows({{"m_pHeightLE", barcode, "50001", "0", "m_pMirrorCMB"},
                                   {"m_pCannedHoleSizeLE", canned, "50001", "0", "m_pMirrorCMB"}});
    }
    void refusals() { PageCases::refuseOnce(); }

    void theBoxesThemselvesDecide()
    {
        PageFixture fixture;
        fixture.dialog().on_AddString_CheckState_Changed(Qt::Checked);
        fixture.dialog().on_m_pAddMarkersCB_CheckState_Changed(Qt::Checked);
        QCOMPARE(fixture.record().value(RecordKeys::addString), QVariant(Added::no));
        QCOMPARE(fixture.record().value(RecordKeys::addMarkers), QVariant(Added::no));
    }

    void theHoleModeWritesTheZoomToo()
    {
        PageFixture fixture;
        fixture.perform(canned);
        fixture.forget();
        {
            // A zoom that the record does not know yet.
            const QSignalBlocker blocker(&fixture.find<QComboBox>("m_pOrbotechZoomCMB"));
            fixture.perform("m_pOrbotechZoomCMB=4");
        }
        QCOMPARE(fixture.record().value(RecordKeys::orbotechZoom), QVariant(1));
        fixture.perform("m_pCannedHoleSizeCMB=1");
        QCOMPARE(fixture.record().value(RecordKeys::orbotechZoom), QVariant(5));
    }

    void valuesTravelWithTheNextSend()
    {
        PageFixture fixture;
        fixture.perform(barcode);
        fixture.forget();
        fixture.perform("m_pHeightLE<100");
        QCOMPARE(fixture.codes(), QList<int>());
        fixture.perform("m_pPolarityCMB=1");
        QCOMPARE(fixture.codes(), QList<int>{Sent::Record});
        QCOMPARE(fixture.record().value(RecordKeys::barcodeHeight), QVariant(QString("2540")));
        QCOMPARE(fixture.record().value(RecordKeys::textFormat), QVariant(TextKind::barcode));
    }
};

CTS_TEST(TestTextFormatsPage);
#include "test_text_formats_page.moc"
