// The page of texts: format, font, text, sizes of characters.

#include "Main.h"
#include "PageCases.h"
#include "PageSteps.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <UiApiStandIn.h>

#include <QLabel>
#include <QPushButton>

namespace Sent = MessageCodes::Sent;

using namespace PageSteps;

class TestTextPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Nothing that a format does is sent.
    void format_data()
    {
        addCases({Case()
                      .given(text)
                      .when(Choose("m_pTextFormatCMB", "Barcode"))
                      .then(Expect::record(RecordKeys::textFormat, TextKind::barcode),
                            Expect::record(RecordKeys::barcodeMode, Symbology::upc39.toInt()),
                            Expect::shown("m_pBarcodePage"), Expect::hidden("m_pStringPage"),
                            Expect::disabled("m_pFontLE"), Expect::enabled("m_pUPCCMB"))});
    }
    void format() { runCase(); }

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

    void texts()
    {
        const DialogFixture fixture;
        QCOMPARE(fixture.find<QPushButton>("m_pFontPB").text(), QString("Font\t\t:"));
        QCOMPARE(fixture.find<QPushButton>("m_pTextPB").text(), QString("Text\t\t:"));
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
