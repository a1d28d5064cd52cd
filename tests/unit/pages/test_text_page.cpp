// The page of texts: format, font, text, sizes of characters.

#include "DialogFixture.h"
#include "Main.h"
#include "PageCases.h"
#include "PageFixture.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>
#include <common_widgets.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegExpValidator>

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
         {{"TextFormat", QString("1")}},
         {},
         only(0) + fontOn},
        {"",
         page,
         "m_pTextFormatCMB=1",
         {{"TextFormat", QString("BarcodeMode")}, {"BarcodeMode", 1}},
         {},
         only(1) + fontOff + codeOn},
        {"",
         page,
         "m_pTextFormatCMB=2",
         {{"TextFormat", QString("3")}, {"BarcodeMode", QString("1")}},
         {},
         only(2) + fontOff + codeOff},
        {"",
         page,
         "m_pTextFormatCMB=3",
         {{"TextFormat", QString("4")}},
         {},
         only(3) + fontOff + codeOff},
        {"no format",
         page + QStringList("m_pTextFormatCMB=1"),
         "m_pTextFormatCMB=-1",
         {{"TextFormat", QString("BarcodeMode")}},
         {},
         only(1) + fontOff + codeOff},
    };
}

QList<Case> textsAndFonts()
{
    return {
        {"typed text", page, "m_pTextLE:Rev. A/2", {{"TextContains", QString("Rev. A/2")}}, {50}},
        {"no text",
         page + QStringList("m_pTextLE<x"),
         "m_pTextLE<",
         {{"TextContains", QString("")}},
         {50}},
        {"font of the job",
         page,
         "m_pFontLE<simple",
         {{"StringTextFont", QString("simple")}},
         {50},
         {},
         "simple"},
        {"font of no job",
         page,
         "m_pFontLE<fancy",
         {{"StringTextFont", QString("standard")}},
         {},
         {},
         ""},
        {"font in other letters",
         page,
         "m_pFontLE<Standard",
         {{"StringTextFont", QString("standard")}},
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
            {{"m_pXSizeLE", "StringXSize", page, 10000, {50}, {50}},
             {"m_pYSizeLE", "StringYSize", page, 10000, {50}, {50}},
             {"m_pLineWidthLE", "StringLineWidth", page, 10000, {50}, {50}}}));
    }
    void sizes() { PageCases::run(); }

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
        QCOMPARE(fixture.labelText("m_pXSizeUnitLB"), QString(metric ? "my" : "mil"));
        QCOMPARE(fixture.record().value("StringXSize"), QVariant(QString("5080")));
        QCOMPARE(fixture.record().value("StringYSize"), QVariant(QString("5080")));
        QCOMPARE(fixture.record().value("StringLineWidth"), QVariant(QString("609.6")));
        for (const char* const field : {"m_pXSizeLE", "m_pYSizeLE", "m_pLineWidthLE"}) {
            const auto* const validator =
                qobject_cast<const QRegExpValidator*>(fixture.find<QLineEdit>(field).validator());
            const QString own("^[0-9]*(\\.[0-9]+)?$");
            QCOMPARE(validator && validator->regExp().pattern() == own, !metric);
        }
    }

    void withoutAStandardFont()
    {
        CanvasHost::clearJobs();
        CanvasHost::Job job;
        job.name = "job";
        job.fonts = {"simple"};
        CanvasHost::addJob(job);
        QWidget window;
        Recorder recorder;
        AddFeature dialog(&window, "job", "step", &window);
        dialog.getChangeCurrentTool();
        QCOMPARE(findNamed<QLineEdit>(dialog, "m_pFontLE").text(), QString());
        QCOMPARE(recorder.last(50).message.payload.value("StringTextFont"), QVariant(QString("")));
    }

    void fontsAreFetchedAnew()
    {
        DialogFixture fixture;
        int fetched = 0;
        CanvasHost::camApiOverrides().get_fonts = [&](const std::string& job,
                                                      std::vector<std::string>& names) {
            ++fetched;
            names = {job};
        };
        auto& font = fixture.find<QLineEdit>("m_pFontLE");
        font.setText("job");
        fixture.dialog->on_m_pFontLE_editingFinished();
        QCOMPARE(fetched, 1);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{50});
        fixture.dialog->set_job_info("other", "step");
        fixture.dialog->on_m_pFontLE_editingFinished();
        QCOMPARE(fetched, 2);
        QCOMPARE(font.text(), QString());
        QCOMPARE(fixture.recorder.codes(), QVector<int>{50});
    }

    void fontPopup()
    {
        DialogFixture fixture;
        fixture.choose("m_pTextTB");
        fixture.click("m_pFontPB");
        QPointer<Widget_listpopup> first = fixture.window.findChild<Widget_listpopup*>();
        QVERIFY(first && first->isVisible());
        QCOMPARE(first->parent(), &fixture.window);
        fixture.click("m_pFontPB");
        QVERIFY(!first);
        const auto popups = fixture.window.findChildren<Widget_listpopup*>();
        QCOMPARE(popups.size(), 1);
        emit popups[0]->on_send_Font("simple");
        QCOMPARE(fixture.find<QLineEdit>("m_pFontLE").text(), QString("simple"));
        QCOMPARE(fixture.recorder.codes(), QVector<int>{50});
        QCOMPARE(fixture.recorder.last(50).message.payload.value("StringTextFont"),
                 QVariant(QString("simple")));
        fixture.dialog->close();
        QVERIFY(!popups[0]->isVisible());
    }

    void fontPopupThatSomeoneElseDeletes()
    {
        DialogFixture fixture;
        fixture.choose("m_pTextTB");
        fixture.click("m_pFontPB");
        delete fixture.window.findChild<Widget_listpopup*>();
        fixture.click("m_pFontPB");
        QCOMPARE(fixture.window.findChildren<Widget_listpopup*>().size(), 1);
    }

    void specialTextPopup()
    {
        QPointer<QWidget> popup;
        {
            DialogFixture fixture;
            fixture.choose("m_pTextTB");
            const auto popups = [] {
                QVector<QWidget*> found;
                for (QWidget* const widget : QApplication::topLevelWidgets()) {
                    if (qobject_cast<Widget_listpopup*>(widget)) {
                        found.append(widget);
                    }
                }
                return found;
            };
            fixture.click("m_pTextPB");
            QCOMPARE(popups().size(), 1);
            popup = popups()[0];
            QVERIFY(popup->isVisible());
            QVERIFY(!popup->parent());
            popup->hide();
            fixture.click("m_pTextPB");
            QCOMPARE(popups(), QVector<QWidget*>{popup});
            QVERIFY(popup->isVisible());

            fixture.find<QLineEdit>("m_pTextLE").setText("before");
            auto& list = findNamed<QListWidget>(*popup, "m_pTextLW");
            list.setCurrentRow(1);
            QTest::mouseClick(&findNamed(*popup, "m_pOkPB"), Qt::LeftButton);
            QCOMPARE(fixture.find<QLineEdit>("m_pTextLE").text(), QString("$$DATE"));
            QCOMPARE(fixture.recorder.codes(), QVector<int>{50});
            QCOMPARE(fixture.recorder.last(50).message.payload.value("TextContains"),
                     QVariant(QString("$$DATE")));
            fixture.dialog->close();
            QVERIFY(!popup->isVisible());
        }
        QVERIFY(!popup);  // goes with the dialog
    }

    void specialTextBeyondTheValidator()
    {
        DialogFixture fixture;
        fixture.dialog->get_Special_TEXT(QString::fromUtf8("日期|"));
        QCOMPARE(fixture.recorder.last(50).message.payload.value("TextContains"),
                 QVariant(QString::fromUtf8("$$日期|")));
    }

    void theOtherTextSlotDoesNothing()
    {
        DialogFixture fixture;
        fixture.choose("m_pTextTB");
        fixture.dialog->on_m_pTextPB_clicked();
        QVERIFY(fixture.recorder.messages().isEmpty());
        for (const QWidget* const widget : QApplication::topLevelWidgets()) {
            QVERIFY(!qobject_cast<const Widget_listpopup*>(widget));
        }
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
                                   {"m_pLineWidthLE", page, "10001", "0", "m_pMirrorCMB"}});
    }
    void refusals() { PageCases::refuseOnce(); }

    void units()
    {
        PageCases::switchUnitTenTimes(
            page, {"m_pXSizeLE~100", "m_pYSizeLE~0.5", "m_pLineWidthLE~12.25"},
            {"m_pXSizeUnitLB=mil|my", "m_pYSizeUnitLB=mil|my", "m_pLineWidthUnitLB=mil|my"});
    }

    void language() { PageCases::retranslate("m_pTextPage", page); }
};

CTS_MAIN(TestTextPage)
#include "test_text_page.moc"
