// The page of texts: format, font, text, sizes of characters.

#include "Main.h"
#include "PageCases.h"
#include "PageSteps.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <UiApiStandIn.h>

#include <QLabel>
#include <QPushButton>
#include <QRegExpValidator>

namespace Sent = MessageCodes::Sent;

using namespace PageSteps;

namespace {

/// The one of the four format pages that is shown.
Expect::Expectations onlyPage(const QString& shown)
{
    Expect::Expectations expected;
    for (const QString& page :
         QStringList{"m_pStringPage", "m_pBarcodePage", "m_pPlotStampPage", "m_pCannedTextPage"}) {
        expected.append(page == shown ? Expect::shown(page) : Expect::hidden(page));
    }
    return expected;
}

/// Nothing that a format does is sent.
Cases formats()
{
    const Expect::Expectations aFont = {Expect::enabled("m_pFontPB"), Expect::enabled("m_pFontLE")};
    const Expect::Expectations noFont = {Expect::disabled("m_pFontPB"),
                                         Expect::disabled("m_pFontLE")};
    const Expect::Expectation aCode = Expect::enabled("m_pUPCCMB");
    const Expect::Expectation noCode = Expect::disabled("m_pUPCCMB");
    return {
        Case()
            .given(barcode)
            .when(Choose("m_pTextFormatCMB", "String"))
            .then(Expect::record(RecordKeys::textFormat, TextKind::string),
                  onlyPage("m_pStringPage"), aFont, noCode),
        Case()
            .given(text)
            .when(Choose("m_pTextFormatCMB", "Barcode"))
            .then(Expect::record(RecordKeys::textFormat, TextKind::barcode),
                  Expect::record(RecordKeys::barcodeMode, Symbology::upc39.toInt()),
                  onlyPage("m_pBarcodePage"), noFont, aCode),
        Case()
            .given(text)
            .when(Choose("m_pTextFormatCMB", "Orbotech Plot Stamp"))
            .then(Expect::record(RecordKeys::textFormat, TextKind::plotStamp),
                  Expect::record(RecordKeys::barcodeMode, Symbology::upc39),
                  onlyPage("m_pPlotStampPage"), noFont, noCode),
        Case()
            .given(text)
            .when(Choose("m_pTextFormatCMB", "Canned Text"))
            .then(Expect::record(RecordKeys::textFormat, TextKind::cannedText),
                  onlyPage("m_pCannedTextPage"), noFont, noCode),
        Case("no format")
            .given(barcode)
            .when(ChooseNothing("m_pTextFormatCMB"))
            .then(Expect::record(RecordKeys::textFormat, TextKind::barcode),
                  onlyPage("m_pBarcodePage"), noFont, noCode),
    };
}

Cases textsAndFonts()
{
    return {
        Case("typed size")
            .given(text)
            .when(Type("m_pXSizeLE", "12.5"))
            .then(Expect::record(RecordKeys::stringXSize, "317.5"), Expect::sent(Sent::Record)),
        Case("typed height")
            .given(text)
            .when(Type("m_pYSizeLE", "100"))
            .then(Expect::record(RecordKeys::stringYSize, "2540"), Expect::sent(Sent::Record)),
        Case("typed width")
            .given(text)
            .when(Type("m_pLineWidthLE", ".5"))
            .then(Expect::record(RecordKeys::stringLineWidth, "12.7"), Expect::sent(Sent::Record)),
        Case("String again")
            .given(text + Enter("m_pFontLE", "simple") + Enter("m_pTextLE", "Rev") +
                   Enter("m_pXSizeLE", "100") + Choose("m_pTextFormatCMB", "Canned Text"))
            .when(Choose("m_pTextFormatCMB", "String"))
            .then(Expect::record(RecordKeys::textFormat, TextKind::string),
                  Expect::record(RecordKeys::stringTextFont, "simple"),
                  Expect::record(RecordKeys::textContains, "Rev"),
                  Expect::record(RecordKeys::stringXSize, "2540")),
        Case("typed text")
            .given(text)
            .when(Type("m_pTextLE", "Rev. A/2"))
            .then(Expect::record(RecordKeys::textContains, "Rev. A/2"), Expect::sent(Sent::Record)),
        Case("no text")
            .given(text + Enter("m_pTextLE", "x"))
            .when(Enter("m_pTextLE", ""))
            .then(Expect::record(RecordKeys::textContains, ""), Expect::sent(Sent::Record)),
        Case("font of the job")
            .given(text)
            .when(Enter("m_pFontLE", "simple"))
            .then(Expect::record(RecordKeys::stringTextFont, "simple"), Expect::sent(Sent::Record),
                  Expect::text("m_pFontLE", "simple")),
        Case("font of no job")
            .given(text)
            .when(Enter("m_pFontLE", "fancy"))
            .then(Expect::record(RecordKeys::stringTextFont, "standard"),
                  Expect::text("m_pFontLE", "")),
        Case("font in other letters")
            .given(text)
            .when(Enter("m_pFontLE", "Standard"))
            .then(Expect::record(RecordKeys::stringTextFont, "standard"),
                  Expect::text("m_pFontLE", "")),
    };
}

void addUnits()
{
    QTest::addColumn<Unit>("unit");
    QTest::newRow("mil") << Unit::Mil;
    QTest::newRow("metric") << Unit::Metric;
}

}  // namespace

class TestTextPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void table_data() { addCases(formats() + textsAndFonts()); }
    void table() { runCase(); }

    void sizes_data()
    {
        const auto size = [](const QString& field, const QString& key) {
            return PageCases::LengthField(field, key).reachedBy(text).sends(Sends::Always).cases();
        };
        addCases(size("m_pXSizeLE", RecordKeys::stringXSize) +
                 size("m_pYSizeLE", RecordKeys::stringYSize) +
                 size("m_pLineWidthLE", RecordKeys::stringLineWidth));
    }
    void sizes() { runCase(); }

    void defaults_data() { addUnits(); }
    void defaults()
    {
        QFETCH(Unit, unit);
        DialogFixture fixture(unit);
        QCOMPARE(fixture.recorder.codes(), QVector<int>());
        Expect::holds(fixture, {Expect::record(RecordKeys::textFormat, TextKind::string),
                                Expect::record(RecordKeys::stringTextFont, "standard"),
                                Expect::record(RecordKeys::textContains, ""),
                                Expect::record(RecordKeys::stringXSize, "5080"),
                                Expect::record(RecordKeys::stringYSize, "5080"),
                                Expect::record(RecordKeys::stringLineWidth, "609.6")});
    }

    void connections()
    {
        const char* const clicked = SIGNAL(clicked());
        const char* const edited = SIGNAL(editingFinished());
        PageCases::connected(
            {{"m_pTextFormatCMB", SIGNAL(currentIndexChanged(QString)),
              SLOT(on_Textformart_ComboBox_Changed())},
             {"m_pFontPB", clicked, SLOT(on_m_pFontPB_clicked())},
             {"m_pFontLE", edited, SLOT(on_m_pFontLE_editingFinished())},
             {"m_pTextPB", clicked, SLOT(on_Text_clicked())},
             {"m_pTextLE", edited, SLOT(on_m_pTextLE_editingFinished())},
             {"m_pXSizeLE", edited, SLOT(on_m_pXSizeLE_editingFinished())},
             {"m_pYSizeLE", edited, SLOT(on_m_pYSizeLE_editingFinished())},
             {"m_pLineWidthLE", edited, SLOT(on_m_pLineWidthLE_editingFinished())}});
    }

    void start()
    {
        DialogFixture fixture;
        QCOMPARE(fixture.find<QPushButton>("m_pFontPB").text(), QString("Font\t\t:"));
        QCOMPARE(fixture.find<QPushButton>("m_pTextPB").text(), QString("Text\t\t:"));
        QVERIFY(fixture.find<QLineEdit>("m_pFontLE").isReadOnly());
        Expect::holds(
            fixture, {Expect::text("m_pFontLE", "standard"), Expect::text("m_pTextLE", ""),
                      Expect::chosen("m_pTextFormatCMB", "String"), Expect::disabled("m_pUPCCMB")});
        fixture.perform(text);
        Expect::holds(fixture, onlyPage("m_pStringPage"));
        QCOMPARE(PageCases::greyedItems(fixture, "m_pTextPage"),
                 (QStringList{"m_pTextFormatCMB: Barcode", "m_pTextFormatCMB: Orbotech Plot Stamp",
                              "m_pTextFormatCMB: Canned Text"}));
        QCOMPARE(itemTexts(fixture.find<QComboBox>("m_pTextFormatCMB")),
                 (QStringList{"String", "Barcode", "Orbotech Plot Stamp", "Canned Text"}));
        QCOMPARE(fixture.find<QLabel>("m_pXSizeLB").text(), QString("X Size  : "));
        QCOMPARE(fixture.find<QLabel>("m_pYSizeLB").text(), QString("Y Size  : "));
        QCOMPARE(fixture.find<QLabel>("m_pLineWidthLB").text(), QString("Line Width : "));
    }

    void rows()
    {
        const DialogFixture fixture;
        fixture.perform(text);
        int y = -1;
        for (const char* const name :
             {"m_pTextFormatCMB", "m_pStringPage", "m_pFontLE", "m_pTextLE"}) {
            QVERIFY2(fixture.find(name).y() > y, name);
            y = fixture.find(name).y();
        }
    }

    void sizesAtBuild_data() { addUnits(); }
    void sizesAtBuild()
    {
        QFETCH(Unit, unit);
        const bool isMetric = unit == Unit::Metric;
        const DialogFixture fixture(unit);
        QCOMPARE(fixture.text("m_pXSizeLE"), QString(isMetric ? "5080" : "200"));
        QCOMPARE(fixture.text("m_pYSizeLE"), QString(isMetric ? "5080" : "200"));
        QCOMPARE(fixture.text("m_pLineWidthLE"), QString(isMetric ? "609.6" : "24"));
        for (const char* const label : {"m_pXSizeUnitLB", "m_pYSizeUnitLB", "m_pLineWidthUnitLB"}) {
            QCOMPARE(fixture.find<QLabel>(label).text(), QString(isMetric ? "my" : "mil"));
        }
        for (const char* const field : {"m_pXSizeLE", "m_pYSizeLE", "m_pLineWidthLE"}) {
            const auto* const validator =
                qobject_cast<const QRegExpValidator*>(fixture.find<QLineEdit>(field).validator());
            const QString own("^[0-9]*(\\.[0-9]+)?$");
            QCOMPARE(validator && validator->regExp().pattern() == own, !isMetric);
        }
    }

    /// The validators are those of the unit that the sizes were built in.
    void sizesAfterAnotherUnit_data()
    {
        QTest::addColumn<Unit>("builtIn");
        QTest::addColumn<Unit>("changedTo");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("refusedBeyond");  // 0: accepted
        QTest::newRow("metric, bound") << Unit::Mil << Unit::Metric << "254000"
                                       << "254000" << 0;
        QTest::newRow("metric, beyond") << Unit::Mil << Unit::Metric << "254001"
                                        << "0" << 254000;
        QTest::newRow("mil, bound") << Unit::Metric << Unit::Mil << "10000"
                                    << "254000" << 0;
        QTest::newRow("mil, beyond") << Unit::Metric << Unit::Mil << "10000.5"
                                     << "0" << 10000;
    }
    void sizesAfterAnotherUnit()
    {
        QFETCH(Unit, builtIn);
        QFETCH(Unit, changedTo);
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        QFETCH(int, refusedBeyond);
        DialogFixture fixture(builtIn);
        fixture.chooseType("m_pTextTB");
        const QValidator* const validator = fixture.find<QLineEdit>("m_pXSizeLE").validator();
        fixture.setUnit(changedTo);
        QCOMPARE(fixture.find<QLineEdit>("m_pXSizeLE").validator(), validator);
        fixture.recorder.clear();
        fixture.perform(Type("m_pXSizeLE", typed));
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::stringXSize, stored)});
        QCOMPARE(fixture.boxes.takeTexts(),
                 refusedBeyond > 0 ? BoxTextList{BoxTexts::length(refusedBeyond)} : BoxTextList());
    }

    /// The host's unit decides how the sizes are built; a later unit message decides what is typed.
    void builtInTheHostsUnit()
    {
        CanvasHost::uiApiOverrides().getShowPara = [](void*, ZENTRA::API::show_param& shown) {
            shown.metric = true;
        };
        QWidget window;
        Recorder recorder;
        AddFeature dialog(&window, "job", "step", &window);
        CanvasHost::uiApiOverrides() = {};
        auto& size = findNamed<QLineEdit>(dialog, "m_pXSizeLE");
        QCOMPARE(size.text(), QString("5080"));
        QCOMPARE(findNamed<QLabel>(dialog, "m_pXSizeUnitLB").text(), QString("my"));
        findNamed<QAbstractButton>(dialog, "m_pTextTB").click();
        size.setText("100");
        dialog.on_m_pXSizeLE_editingFinished();
        QCOMPARE(
            recorder.last(Sent::Record).message.payload.value(RecordKeys::stringXSize).toString(),
            QString("2540"));
        QCOMPARE(
            recorder.last(Sent::Record).message.payload.value(RecordKeys::stringYSize).toString(),
            QString("5080"));
    }

    void theRefusalIsAnInformation()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pTextTB");
        fixture.enter("m_pXSizeLE", FieldBounds::of("m_pXSizeLE").justAbove());
        const auto boxes = fixture.boxes.take();
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes[0].icon, QMessageBox::Information);
        QCOMPARE(boxes[0].title, QString("Information"));
    }

    void typing_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        // clang-format off
        QTest::newRow("text") << "m_pTextLE" << "aZ09`~!@#$%^&*()-_=+<>,./ |?'"
                              << "aZ09`~!@#$%^&*()-_=+<>,./ ";
        QTest::newRow("size") << "m_pXSizeLE" << "-1.5x" << "1.5";
        QTest::newRow("width") << "m_pLineWidthLE" << ".5" << ".5";
        // clang-format on
    }
    void typing()
    {
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        const DialogFixture fixture;
        fixture.perform(text);
        fixture.type(field, typed);
        QCOMPARE(fixture.text(field), shown);
    }

    void greyedItems_data()
    {
        PageCases::addGreyedRows({PageCases::GreyedItems("m_pTextFormatCMB")
                                      .reachedBy(text)
                                      .free({"String"})
                                      .greyed({"Barcode", "Orbotech Plot Stamp", "Canned Text"})});
    }
    void greyedItems() { PageCases::tryToReachGreyedItem(); }

    void refusals_data()
    {
        QList<PageCases::Refusal> rows;
        for (const char* const field : {"m_pXSizeLE", "m_pYSizeLE", "m_pLineWidthLE"}) {
            rows.append(PageCases::Refusal(field).reachedBy(text).above().leaves("0").beside(
                "m_pMirrorCMB"));
        }
        PageCases::addRefusalRows(rows);
    }
    void refusals() { PageCases::refuseOnce(); }

    void units()
    {
        PageCases::switchUnitTenTimes(
            text, {{"m_pXSizeLE", "100"}, {"m_pYSizeLE", "0.5"}, {"m_pLineWidthLE", "12.25"}},
            {{"m_pXSizeUnitLB", "mil", "my"},
             {"m_pYSizeUnitLB", "mil", "my"},
             {"m_pLineWidthUnitLB", "mil", "my"}});
    }

    void language_data()
    {
        QTest::addColumn<Steps>("before");
        QTest::newRow("start") << text;
        QTest::newRow("barcode") << barcode + Choose("m_pUPCCMB", "ECC-200") +
                                        Choose("m_pPositionCMB", "Bottom");
        QTest::newRow("plot stamp") << plotStamp + Choose("m_pOrbotechTypeCMB", "Barcode") +
                                           Choose("m_pOrbotechFontSizeCMB", "4") +
                                           Choose("m_pOrbotechZoomCMB", "7");
        QTest::newRow("canned text") << cannedText + Choose("m_pCannedHoleSizeCMB", "6 X 7");
    }
    void language()
    {
        QFETCH(Steps, before);
        PageCases::retranslate("m_pTextPage", before);
    }
};

CTS_TEST(TestTextPage);
#include "test_text_page.moc"
