// Barcode, plot stamp and canned text: what their controls write. None of them sends.

#include "FindChild.h"
#include "Main.h"
#include "PageCases.h"
#include "PageFixture.h"
#include "addfeature/AddFeature.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

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
                     {{"BarcodeMode", index + 1}},
                     {},
                     index == 4 ? on : off});
    }
    rows.append({"matrix values are kept",
                 matrixCode + QStringList{"m_pAddMarkersCB", "m_pMatrixLE<12x12"},
                 "m_pUPCCMB=3",
                 {{"AddMarkers", text("1")}, {"BarcodeMatrix", text("12x12")}, {"BarcodeMode", 4}},
                 {},
                 off});
    return rows;
}

QList<Case> barcodeOptions()
{
    return {
        {"", barcode, "m_pAddStringCB", {{"AddString", text("1")}}, {}, {"enabled m_pPositionCMB"}},
        {"string off",
         barcode + QStringList("m_pAddStringCB"),
         "m_pAddStringCB",
         {{"AddString", text("2")}},
         {},
         {"disabled m_pPositionCMB"}},
        {"bottom",
         barcode + QStringList("m_pAddStringCB"),
         "m_pPositionCMB=1",
         {{"StringPosition", text("1")}}},
        {"top",
         barcode + QStringList{"m_pAddStringCB", "m_pPositionCMB=1"},
         "m_pPositionCMB=0",
         {{"StringPosition", text("2")}}},
        {"no position",
         barcode + QStringList("m_pPositionCMB=1"),
         "m_pPositionCMB=-1",
         {{"StringPosition", text("1")}}},
        // The markers decide what the background is stored as.
        {"background alone",
         matrixCode,
         "m_pBackgroundCB",
         {{"AddBackground", text("2")}, {"AddMarkers", text("2")}}},
        {"background with markers",
         matrixCode + QStringList("m_pAddMarkersCB"),
         "m_pBackgroundCB",
         {{"AddBackground", text("1")}}},
        {"background off with markers",
         matrixCode + QStringList{"m_pBackgroundCB", "m_pAddMarkersCB"},
         "m_pBackgroundCB",
         {{"AddBackground", text("1")}}},
        {"markers",
         matrixCode,
         "m_pAddMarkersCB",
         {{"AddMarkers", text("1")}, {"AddBackground", text("2")}}},
        {"markers off",
         matrixCode + QStringList("m_pAddMarkersCB"),
         "m_pAddMarkersCB",
         {{"AddMarkers", text("2")}}},
        {"", matrixCode, "m_pMatrixLE<anything", {{"BarcodeMatrix", text("anything")}}},
        {"", matrixCode, "m_pMatrixPB", {}},
        {"typed matrix", matrixCode, "m_pMatrixLE:8 x 18?", {{"BarcodeMatrix", text("8 x 18?")}}},
        {"no matrix", matrixCode, "m_pMatrixLE<", {{"BarcodeMatrix", text("")}}},
        {"typed height", barcode, "m_pHeightLE:12.5", {{"BarcodeHeight", text("317.5")}}},
    };
}

QList<Case> plotStamps()
{
    QList<Case> rows = {
        {"stamp barcode", plotStamp, "m_pOrbotechTypeCMB=1", {{"OrbotechType", text("2")}}},
        {"stamp string",
         plotStamp + QStringList("m_pOrbotechTypeCMB=1"),
         "m_pOrbotechTypeCMB=0",
         {{"OrbotechType", text("1")}}},
        {"no stamp", plotStamp, "m_pOrbotechTypeCMB=-1", {{"OrbotechType", 0}}},
    };
    for (int index = 1; index < 4; ++index) {
        rows.append({QString(),
                     plotStamp,
                     QStringLiteral("m_pOrbotechFontSizeCMB=%1").arg(index),
                     {{"OrbotechFontSize", index + 1}}});
    }
    for (int index = 1; index < 7; ++index) {
        rows.append({QString(),
                     plotStamp,
                     QStringLiteral("m_pOrbotechZoomCMB=%1").arg(index),
                     {{"OrbotechZoom", index + 1}}});
    }
    return rows;
}

QList<Case> cannedTexts()
{
    return {
        {"typed hole size",
         canned,
         "m_pCannedHoleSizeLE:20.5",
         {{"CannedHoleSize", text("520.7")}}},
        {"6 by 7",
         canned + QStringList("m_pOrbotechZoomCMB=6"),
         "m_pCannedHoleSizeCMB=1",
         {{"CannedHoleMode", text("2")}, {"OrbotechZoom", 7}}},
        {"5 by 7",
         canned + QStringList("m_pCannedHoleSizeCMB=1"),
         "m_pCannedHoleSizeCMB=0",
         {{"CannedHoleMode", text("1")}, {"OrbotechZoom", 1}}},
        {"no mode",
         canned + QStringList("m_pCannedHoleSizeCMB=1"),
         "m_pCannedHoleSizeCMB=-1",
         {{"CannedHoleMode", text("2")}, {"OrbotechZoom", 1}}},
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
            {{"m_pHeightLE", "BarcodeHeight", barcode, 50000, {}, {}},
             {"m_pCannedHoleSizeLE", "CannedHoleSize", canned, 50000, {}, {}}}));
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
        PageCases::compareStart({{"BarcodeMode", text("1")},
                                 {"AddString", text("2")},
                                 {"AddBackground", text("2")},
                                 {"StringPosition", text("2")},
                                 {"AddMarkers", text("2")},
                                 {"BarcodeMatrix", text("Minimal")},
                                 {"BarcodeHeight", text("6350")},
                                 {"OrbotechType", text("1")},
                                 {"OrbotechFontSize", 1},
                                 {"OrbotechZoom", 1},
                                 {"CannedHoleMode", text("1")},
                                 {"CannedHoleSize", text("508")}},
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
        QCOMPARE(fixture.record().value("AddString"), QVariant(QString("2")));
        QCOMPARE(fixture.record().value("AddMarkers"), QVariant(QString("2")));
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
        QCOMPARE(fixture.record().value("OrbotechZoom"), QVariant(1));
        fixture.perform("m_pCannedHoleSizeCMB=1");
        QCOMPARE(fixture.record().value("OrbotechZoom"), QVariant(5));
    }

    void valuesTravelWithTheNextSend()
    {
        PageFixture fixture;
        fixture.perform(barcode);
        fixture.forget();
        fixture.perform("m_pHeightLE<100");
        QCOMPARE(fixture.codes(), QList<int>());
        fixture.perform("m_pPolarityCMB=1");
        QCOMPARE(fixture.codes(), QList<int>{50});
        QCOMPARE(fixture.record().value("BarcodeHeight"), QVariant(QString("2540")));
        QCOMPARE(fixture.record().value("TextFormat"), QVariant(QString("BarcodeMode")));
    }
};

CTS_MAIN(TestTextFormatsPage)
#include "test_text_formats_page.moc"
