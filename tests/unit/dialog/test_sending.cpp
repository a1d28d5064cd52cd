// What the frame's controls write and send, what is checked before the record goes, and closing.

#include "Case.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/RecordKeys.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QLoggingCategory>
#include <QSignalSpy>
#include <QSpinBox>

namespace Sent = MessageCodes::Sent;

namespace {

QStringList debugLines;

void keepDebugLine(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtDebugMsg && qstrcmp(context.category, "canvastoolstrip.record") == 0) {
        debugLines.append(text);
    }
}

QStringList debugLinesOf(const std::function<void()>& action)
{
    debugLines.clear();
    const QtMessageHandler previous = qInstallMessageHandler(keepDebugLine);
    action();
    qInstallMessageHandler(previous);
    return debugLines;
}

}  // namespace

class TestSending : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QLoggingCategory::setFilterRules("canvastoolstrip.record.debug=true"); }

    void combo_data()
    {
        const auto polarity = [](const QString& name, const Step& step, const QString& value) {
            return Case(name).when(step).then(Expect::record(RecordKeys::polarity, value),
                                              Expect::sent(Sent::Record));
        };
        const auto mirror = [](const QString& name, const Step& step, const QString& value) {
            return Case(name).when(step).then(Expect::record(RecordKeys::mirror, value),
                                              Expect::sent(Sent::Record));
        };
        const Steps negative = {Choose("m_pPolarityCMB", "Negative")};
        const Steps mirrored = {Choose("m_pMirrorCMB", "Mir")};
        addCases(
            {polarity("negative", Choose("m_pPolarityCMB", "Negative"), Polarity::negative),
             polarity("positive", Choose("m_pPolarityCMB", "Positive"), Polarity::positive)
                 .given(negative),
             polarity("no polarity", ChooseNothing("m_pPolarityCMB"), Polarity::negative)
                 .given(negative),
             mirror("mirrored", Choose("m_pMirrorCMB", "Mir"), Mirror::yes),
             mirror("not mirrored", Choose("m_pMirrorCMB", "No Mir"), Mirror::no).given(mirrored),
             mirror("no mirror", ChooseNothing("m_pMirrorCMB"), Mirror::yes).given(mirrored)});
    }
    void combo() { runCase(); }

    void rotation()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pPadTB");
        fixture.type("m_pAngleValueSB", "30");
        QVERIFY(fixture.recorder.messages().isEmpty());
        fixture.leave(By::Enter);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::mirrorRotate, "30")});
        auto& rotation = fixture.find<QSpinBox>("m_pAngleValueSB");
        QTest::keyClicks(&rotation, "999");
        QVERIFY(rotation.value() <= 360);
    }

    void envelope()
    {
        DialogFixture fixture;
        fixture.dialog->getChangeCurrentTool();
        QCOMPARE(fixture.recorder.messages().size(), 1);
        const Recorder::Entry& sent = fixture.recorder.messages().first();
        QCOMPARE(sent.sender, static_cast<void*>(&fixture.window));
        QCOMPARE(sent.message.sender, ModuleNames::toolStrip);
        QCOMPARE(sent.message.receiver, ModuleNames::viewer);
        QCOMPARE(sent.message.code, Sent::Record);
        QCOMPARE(sent.message.extra, qint64(0));
        QCOMPARE(sent.message.payload.size(), 45);
        QCOMPARE(sent.message.payload.value(RecordKeys::symbolText), QVariant(QString("")));
        QCOMPARE(sent.message.payload.value(RecordKeys::angle), QVariant(QString("")));
    }

    void oneLogLinePerKeyInKeyOrder()
    {
        DialogFixture fixture;
        const QStringList lines = debugLinesOf([&] { fixture.dialog->getChangeCurrentTool(); });
        QStringList expected;
        const QVariantMap payload = fixture.recorder.last(Sent::Record).message.payload;
        for (auto entry = payload.begin(); entry != payload.end(); ++entry) {
            expected.append("name: " + entry.key() + " value " + entry.value().toString());
        }
        QCOMPARE(lines, expected);
        QCOMPARE(lines.size(), 45);
        QCOMPARE(lines.first(), QString("name: AddBackground value 2"));
    }

    void directionAndSilencedRecordLogNothing()
    {
        DialogFixture fixture;
        QVERIFY(debugLinesOf([&] { fixture.dialog->on_m_pAngleLE_editingFinished(); }).isEmpty());
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::DirectionRecord});
        QLoggingCategory::setFilterRules("canvastoolstrip.record.debug=false");
        const QStringList lines = debugLinesOf([&] { fixture.dialog->getChangeCurrentTool(); });
        QVERIFY(lines.isEmpty());
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::DirectionRecord, Sent::Record}));
    }

    void symbolIsChecked_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("symbol");
        QTest::addColumn<bool>("isSent");
        for (const char* const checked : {"m_pLineTB", "m_pPadTB", "m_pArcTB"}) {
            QTest::addRow("%s too large", checked) << checked << "r50000.5" << false;
            QTest::addRow("%s maximum", checked) << checked << "r50000" << true;
            QTest::addRow("%s special", checked) << checked << "fiducial_cross" << true;
            QTest::addRow("%s empty", checked) << checked << "" << true;
        }
        QTest::newRow("surface") << "m_pSurfaceTB"
                                 << "r60000" << true;
        QTest::newRow("text") << "m_pTextTB"
                              << "r60000" << true;
    }

    void symbolIsChecked()
    {
        QFETCH(QString, button);
        QFETCH(QString, symbol);
        QFETCH(bool, isSent);
        DialogFixture fixture;
        fixture.symbol().setText(symbol);
        fixture.click(button);
        QCOMPARE(fixture.recorder.codes(), isSent ? (QVector<int>{Sent::AttributeMap, Sent::Record})
                                                  : QVector<int>{Sent::AttributeMap});
        QCOMPARE(fixture.symbol().text(), isSent ? symbol : QString());
        QCOMPARE(fixture.boxes.take().size(), isSent ? 0 : 1);
        QVERIFY(fixture.value(RecordKeys::features).toInt() > 0);
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "")});
    }

    void refusedSymbolStaysInTheRecord()
    {
        DialogFixture fixture;
        fixture.type("m_pSymbolTextLE", "r10");
        fixture.leave(By::Tab);
        fixture.symbol().setText("r60000");
        fixture.recorder.clear();
        fixture.click("m_pPadTB");
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::AttributeMap});
        QCOMPARE(fixture.boxes.take().size(), 1);
        QCOMPARE(fixture.symbol().text(), QString());
        Expect::holds(fixture, {Expect::record(RecordKeys::features, FeatureKind::pad.toInt())});
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r10")});
        QVERIFY(fixture.isShown("m_pPadPage"));
    }

    void checkOfTheSymbol()
    {
        DialogFixture fixture;
        QString name;
        double low = -1;
        double high = -1;
        void* context = nullptr;
        CanvasHost::uiApiOverrides().isSymbolValueLegal = [&](const QString& given, double minimum,
                                                              double maximum, void* owner) {
            name = given;
            low = minimum;
            high = maximum;
            context = owner;
            return true;
        };
        fixture.symbol().setText("r10");
        fixture.dialog->getChangeCurrentTool();
        QCOMPARE(name, QString("r10"));
        QCOMPARE(low, 0.0);
        QCOMPARE(high, 50000.0);
        QCOMPARE(context, static_cast<void*>(&fixture.window));
    }

    void specialSymbolsAreAskedAnew()
    {
        DialogFixture fixture;
        QVector<std::string> jobs;
        std::vector<std::string> known;
        CanvasHost::camApiOverrides().get_special_symbol_names =
            [&](const std::string& job, std::vector<std::string>& names) {
                jobs.append(job);
                names = known;
            };
        CanvasHost::uiApiOverrides().isSymbolValueLegal = [](const QString&, double, double,
                                                             void*) { return false; };
        fixture.symbol().setText("Odd");
        known = {"Odd"};
        fixture.dialog->getChangeCurrentTool();
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        fixture.dialog->set_job_info("other", "step");
        known = {"odd"};
        fixture.dialog->getChangeCurrentTool();
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        QCOMPARE(jobs, (QVector<std::string>{"job", "other"}));
    }

    void fill()
    {
        DialogFixture fixture;
        fixture.click("m_pFillPB");  // disabled except for a surface
        QVERIFY(fixture.recorder.messages().isEmpty());
        fixture.chooseType("m_pSurfaceTB");
        fixture.click("m_pFillPB");
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Fill});
        const Recorder::Entry sent = fixture.recorder.last(Sent::Fill);
        QCOMPARE(sent.message.sender, ModuleNames::toolStrip);
        QCOMPARE(sent.message.receiver, ModuleNames::viewer);
        QVERIFY(sent.message.payload.isEmpty());
        QCOMPARE(sent.message.extra, qint64(0));
        QCOMPARE(sent.sender, static_cast<void*>(&fixture.window));
    }

    void closing()
    {
        DialogFixture fixture;
        QSignalSpy viewTool(fixture.dialog, SIGNAL(change_viewtool()));
        fixture.type("m_pSymbolTextLE", "r10");
        fixture.dialog->close();
        QCOMPARE(viewTool.size(), 1);
        QVERIFY(fixture.dialog);
        QVERIFY(!fixture.dialog->isVisible());
        QVERIFY(fixture.recorder.messages().isEmpty());

        // What closing makes the field report is not a user's entry, until the next send.
        fixture.dialog->on_m_pSymbolTextLE_editingFinished();
        QVERIFY(fixture.recorder.messages().isEmpty());
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "")});
        fixture.dialog->getChangeCurrentTool();
        fixture.dialog->on_m_pSymbolTextLE_editingFinished();
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::Record, Sent::Record}));
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r10")});
    }

    void aRefusedSendEnablesTheSymbolAgain()
    {
        DialogFixture fixture;
        fixture.dialog->close();
        fixture.symbol().setText("r60000");
        fixture.dialog->getChangeCurrentTool();
        QCOMPARE(fixture.boxes.take().size(), 1);
        QVERIFY(fixture.recorder.messages().isEmpty());
        fixture.enter("m_pSymbolTextLE", "r20");
        Expect::holds(fixture, {Expect::record(RecordKeys::symbolText, "r20")});
    }
};

CTS_TEST(TestSending);
#include "test_sending.moc"
