// The page of texts: format, font, text, sizes of characters.

#include "DialogFixture.h"
#include "Main.h"
#include "PageCases.h"
#include "PageFixture.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <UiApiStandIn.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegExpValidator>

namespace Sent = MessageCodes::Sent;

using PageCases::Case;

namespace {

const QStringList page = {"m_pTextTB"};
const char* const subPages[] = {"m_pStringPage", "m_pBarcodePage", "m_pPlotStampPage",
                                "m_pCannedTextPage"};

QStringList only(int shown)
{
    QStringList states;
    for (int i = 0; i < 4; ++i) {
        states.append((i == shown ? "shown " : "hidden ") + QString(subPages[i]));
    }
    return states;
}

/// Nothing that a format does is sent.
QList<Case> formats()
{
    const QStringList fontOn = {"enabled m_pFontPB", "enabled m_pFontLE", "disabled m_pUPCCMB"};
    const QStringList fontOff = {"disabled m_pFontPB", "disabled m_pFontLE"};
    const QStringList codeOn = {"enabled m_pUPCCMB"};
    const QStringList codeOff = {"disabled m_pUPCCMB"};
    return {
        {"",
         page + QStringList("m_pTextFormatCMB=1"),
         "m_pTextFormatCMB=0",
         {{RecordKeys::textFormat, TextKind::string}},
         {},
         only(0) + fontOn},
        {"",
         page,
         "m_pTextFormatCMB=1",
         {{RecordKeys::textFormat, TextKind::barcode},
          {RecordKeys::barcodeMode, Symbology::upc39.toInt()}},
         {},
         only(1) + fontOff + codeOn},
        {"",
         page,
         "m_pTextFormatCMB=2",
         {{RecordKeys::textFormat, TextKind::plotStamp},
          {RecordKeys::barcodeMode, Symbology::upc39}},
         {},
         only(2) + fontOff + codeOff},
        {"",
         page,
         "m_pTextFormatCMB=3",
         {{RecordKeys::textFormat, TextKind::cannedText}},
         {},
         only(3) + fontOff + codeOff},
        {"no format",
         page + QStringList("m_pTextFormatCMB=1"),
         "m_pTextFormatCMB=-1",
         {{RecordKeys::textFormat, TextKind::barcode}},
         {},
         only(1) + fontOff + codeOff},
    };
}

QList<Case> textsAndFonts()
{
    return {
        {"typed size",
         page,
         "m_pXSizeLE:12.5",
         {{RecordKeys::stringXSize, QString("317.5")}},
         {Sent::Record}},
        {"typed height",
         page,
         "m_pYSizeLE:100",
         {{RecordKeys::stringYSize, QString("2540")}},
         {Sent::Record}},
        {"typed width",
         page,
         "m_pLineWidthLE:.5",
         {{RecordKeys::stringLineWidth, QString("12.7")}},
         {Sent::Record}},
        {"String again",
         page + QStringList{"m_pFontLE<simple", "m_pTextLE<Rev", "m_pXSizeLE<100",
                            "m_pTextFormatCMB=3"},
         "m_pTextFormatCMB=0",
         {{RecordKeys::textFormat, TextKind::string},
          {RecordKeys::stringTextFont, QString("simple")},
          {RecordKeys::textContains, QString("Rev")},
          {RecordKeys::stringXSize, QString("2540")}}},
        {"typed text",
         page,
         "m_pTextLE:Rev. A/2",
         {{RecordKeys::textContains, QString("Rev. A/2")}},
         {Sent::Record}},
        {"no text",
         page + QStringList("m_pTextLE<x"),
         "m_pTextLE<",
         {{RecordKeys::textContains, QString("")}},
         {Sent::Record}},
        {"font of the job",
         page,
         "m_pFontLE<simple",
         {{RecordKeys::stringTextFont, QString("simple")}},
         {Sent::Record},
         {},
         "simple"},
        {"font of no job",
         page,
         "m_pFontLE<fancy",
         {{RecordKeys::stringTextFont, QString("standard")}},
         {},
         {},
         ""},
        {"font in other letters",
         page,
         "m_pFontLE<Standard",
         {{RecordKeys::stringTextFont, QString("standard")}},
         {},
         {},
         ""},
    };
}

}  // namespace

class TestTextPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void table_data() { PageCases::addRows(formats() + textsAndFonts()); }
    void table() { PageCases::run(); }

    void sizes_data()
    {
        PageCases::addRows(PageCases::lengthCases(
            {{"m_pXSizeLE", RecordKeys::stringXSize, page, 10000, {Sent::Record}, {Sent::Record}},
             {"m_pYSizeLE", RecordKeys::stringYSize, page, 10000, {Sent::Record}, {Sent::Record}},
             {"m_pLineWidthLE",
              RecordKeys::stringLineWidth,
              page,
              10000,
              {Sent::Record},
              {Sent::Record}}}));
    }
    void sizes() { PageCases::run(); }

    void defaults_data()
    {
        QTest::addColumn<bool>("metric");
        QTest::newRow("mil") << false;
        QTest::newRow("metric") << true;
    }
    void defaults()
    {
        QFETCH(bool, metric);
        PageCases::compareStart({{RecordKeys::textFormat, TextKind::string},
                                 {RecordKeys::stringTextFont, QString("standard")},
                                 {RecordKeys::textContains, QString("")},
                                 {RecordKeys::stringXSize, QString("5080")},
                                 {RecordKeys::stringYSize, QString("5080")},
                                 {RecordKeys::stringLineWidth, QString("609.6")}},
                                metric);
    }

    void connections()
    {
        const char* const clicked = SIGNAL(clicked());
        const char* const edited = SIGNAL(editingFinished());
        PageCases::compareConnections(
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
        PageFixture fixture;
        QCOMPARE(fixture.find<QPushButton>("m_pFontPB").text(), QString("Font\t\t:"));
        QCOMPARE(fixture.find<QPushButton>("m_pTextPB").text(), QString("Text\t\t:"));
        QCOMPARE(fixture.text("m_pFontLE"), QString("standard"));
        QVERIFY(fixture.find<QLineEdit>("m_pFontLE").isReadOnly());
        QCOMPARE(fixture.text("m_pTextLE"), QString());
        QCOMPARE(fixture.index("m_pTextFormatCMB"), 0);
        QVERIFY(fixture.hasState("disabled m_pUPCCMB"));
        fixture.perform(page);
        for (const QString& state : only(0)) {
            QVERIFY2(fixture.hasState(state), qPrintable(state));
        }
        QCOMPARE(fixture.greyedItems("m_pTextPage"),
                 (QStringList{"m_pTextFormatCMB 1", "m_pTextFormatCMB 2", "m_pTextFormatCMB 3"}));
        const auto& format = fixture.find<QComboBox>("m_pTextFormatCMB");
        QCOMPARE(format.itemText(0), QString("String"));
        QCOMPARE(format.itemText(1), QString("Barcode"));
        QCOMPARE(format.itemText(2), QString("Orbotech Plot Stamp"));
        QCOMPARE(format.itemText(3), QString("Canned Text"));
        const char* const labels[][2] = {{"m_pXSizeLB", "X Size  : "},
                                         {"m_pYSizeLB", "Y Size  : "},
                                         {"m_pLineWidthLB", "Line Width : "}};
        for (const auto& [name, text] : labels) {
            QCOMPARE(fixture.labelText(name), QString(text));
        }
    }

    void rows()
    {
        PageFixture fixture;
        fixture.perform(page);
        int y = -1;
        for (const char* const name :
             {"m_pTextFormatCMB", "m_pStringPage", "m_pFontLE", "m_pTextLE"}) {
            QVERIFY2(fixture.find<QWidget>(name).y() > y, name);
            y = fixture.find<QWidget>(name).y();
        }
    }

    void sizesAtBuild_data()
    {
        QTest::addColumn<bool>("metric");
        QTest::newRow("mil") << false;
        QTest::newRow("metric") << true;
    }

    void sizesAtBuild()
    {
        QFETCH(bool, metric);
        PageFixture fixture(metric);
        QCOMPARE(fixture.text("m_pXSizeLE"), QString(metric ? "5080" : "200"));
        QCOMPARE(fixture.text("m_pYSizeLE"), QString(metric ? "5080" : "200"));
        QCOMPARE(fixture.text("m_pLineWidthLE"), QString(metric ? "609.6" : "24"));
        for (const char* const label : {"m_pXSizeUnitLB", "m_pYSizeUnitLB", "m_pLineWidthUnitLB"}) {
            QCOMPARE(fixture.labelText(label), QString(metric ? "my" : "mil"));
        }
        for (const char* const field : {"m_pXSizeLE", "m_pYSizeLE", "m_pLineWidthLE"}) {
            const auto* const validator =
                qobject_cast<const QRegExpValidator*>(fixture.find<QLineEdit>(field).validator());
            const QString own("^[0-9]*(\\.[0-9]+)?$");
            QCOMPARE(validator && validator->regExp().pattern() == own, !metric);
        }
    }

    /// The validators are those of the unit that the sizes were built in.
    void sizesAfterAnotherUnit_data()
    {
        QTest::addColumn<bool>("metric");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("isRefused");
        QTest::newRow("metric, bound") << true << "254000"
                                       << "254000" << false;
        QTest::newRow("metric, beyond") << true << "254001"
                                        << "0" << true;
        QTest::newRow("mil, bound") << false << "10000"
                                    << "254000" << false;
        QTest::newRow("mil, beyond") << false << "10000.5"
                                     << "0" << true;
    }
    void sizesAfterAnotherUnit()
    {
        QFETCH(bool, metric);
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        QFETCH(bool, isRefused);
        PageFixture fixture(!metric);
        fixture.perform(page);
        const QValidator* const validator = fixture.find<QLineEdit>("m_pXSizeLE").validator();
        fixture.changeUnit(metric);
        QCOMPARE(fixture.find<QLineEdit>("m_pXSizeLE").validator(), validator);
        fixture.forget();
        fixture.perform("m_pXSizeLE:" + typed);
        QCOMPARE(fixture.codes(), QList<int>{Sent::Record});
        QCOMPARE(fixture.record().value(RecordKeys::stringXSize).toString(), stored);
        QCOMPARE(fixture.boxes(), isRefused
                                      ? QStringList(PageCases::lengthBox(metric ? 254000 : 10000))
                                      : QStringList());
    }

    /// The host's unit decides how the sizes are built, the one told later what is typed.
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
        fixture.choose("m_pTextTB");
        fixture.find<QLineEdit>("m_pXSizeLE").setText("10001");
        fixture.dialog->on_m_pXSizeLE_editingFinished();
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
        QTest::newRow("text") << "m_pTextLE"
                              << "aZ09`~!@#$%^&*()-_=+<>,./ |?'"
                              << "aZ09`~!@#$%^&*()-_=+<>,./ ";
        QTest::newRow("size") << "m_pXSizeLE"
                              << "-1.5x"
                              << "1.5";
        QTest::newRow("width") << "m_pLineWidthLE"
                               << ".5"
                               << ".5";
    }
    void typing()
    {
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        PageFixture fixture;
        fixture.perform(page);
        fixture.type(field, typed);
        QCOMPARE(fixture.text(field), shown);
    }

    void greyedItems_data() { PageCases::addGreyedRows({{"m_pTextFormatCMB", page, 0, 4}}); }
    void greyedItems() { PageCases::tryToReachGreyedItem(); }

    void refusals_data()
    {
        PageCases::addRefusalRows({{"m_pXSizeLE", page, "10000.5", "0", "m_pMirrorCMB"},
                                   {"m_pYSizeLE", page, "99999", "0", "m_pMirrorCMB"},
                                   {"m_pLineWidthLE", page, "10001", "0", "m_pMirrorCMB"}});
    }
    void refusals() { PageCases::refuseOnce(); }

    void units()
    {
        PageCases::switchUnitTenTimes(
            page, {"m_pXSizeLE~100", "m_pYSizeLE~0.5", "m_pLineWidthLE~12.25"},
            {"m_pXSizeUnitLB=mil|my", "m_pYSizeUnitLB=mil|my", "m_pLineWidthUnitLB=mil|my"});
    }

    void language_data()
    {
        QTest::addColumn<QStringList>("before");
        QTest::newRow("start") << page;
        QTest::newRow("barcode") << page + QStringList{"m_pTextFormatCMB=1", "m_pUPCCMB=4",
                                                       "m_pPositionCMB=1"};
        QTest::newRow("plot stamp")
            << page + QStringList{"m_pTextFormatCMB=2", "m_pOrbotechTypeCMB=1",
                                  "m_pOrbotechFontSizeCMB=3", "m_pOrbotechZoomCMB=6"};
        QTest::newRow("canned text")
            << page + QStringList{"m_pTextFormatCMB=3", "m_pCannedHoleSizeCMB=1"};
    }
    void language()
    {
        QFETCH(QStringList, before);
        PageCases::retranslate("m_pTextPage", before);
    }
};

CTS_TEST(TestTextPage);
#include "test_text_page.moc"
