// What each message of a sibling does.

#include "BoxCatcher.h"
#include "GlogCatcher.h"
#include "Main.h"
#include "StripFixture.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QSignalSpy>

using Attributes = std::vector<std::pair<std::string, std::string>>;
using Symbols = std::map<int, std::string>;

namespace {

/// A message and all that it may do.
struct Expected {
    const char* name;
    int code;
    QList<int> checkedBefore;
    QList<int> checkedAfter;
    QVector<int> sent;
};

const Expected messages[] = {
    {"release all", 10000205, {0, 3, 25}, {}, {}},
    {"area zoom", 20000201, {7}, {0}, {20000201}},
    {"feature selection", 20000202, {7}, {20}, {20000202}},
    {"rectangle selection", 20000203, {7}, {21}, {20000203}},
    {"polygon selection", 20000223, {7}, {22}, {20000223}},
    {"add feature is active", 20000241, {7}, {4}, {}},
    {"add feature was active", 20000241, {4, 7}, {4, 7}, {}},
    {"polyline", 20000242, {7}, {23}, {20000242}},
    {"layer net", 20000244, {7}, {23}, {20000244}},
    {"board net", 20000245, {7}, {23}, {20000245}},
    {"check and measure", 20000247, {7}, {2}, {}},
    {"job and step", 20001637, {7}, {7}, {}},
    {"measure", 20001715, {7}, {2}, {}},
    {"attributes without address", 20001807, {7}, {7}, {}},
    {"symbols without address", 20001811, {7}, {7}, {}},
    {"user symbols", 20001824, {7}, {7}, {}},
    {"job name without address", 20002003, {7}, {7}, {}},
    {"unit", 20002200, {7}, {7}, {}},
    {"language", 20002201, {7}, {7}, {}},
    {"job opened", 20002400, {7}, {7}, {}},
    {"close dialogs", 20002403, {7}, {7}, {20003950}},
    {"add feature", 20004602, {7}, {4}, {20000246, 20000241}},
    {"delete feature", 20004603, {7}, {5}, {20000206}},
    {"move feature", 20004604, {7}, {6}, {20000207}},
};

/// Everything that the strip emits.
struct Spies {
    QSignalSpy ruler, attributes, unit, users, reselect, language, symbols, job;

    explicit Spies(QObject* strip)
        : ruler(strip, SIGNAL(GetRulerinfo())),
          attributes(strip,
                     SIGNAL(send_Attribute_Info(std::vector<std::pair<std::string, std::string>>))),
          unit(strip, SIGNAL(Current_Unit_Changed(bool))),
          users(strip, SIGNAL(refresh_user_list())),
          reselect(strip, SIGNAL(reselect_Add_feature())),
          language(strip, SIGNAL(language_changed())),
          symbols(strip, SIGNAL(send_Symbol_Info(std::map<int, std::string>))),
          job(strip, SIGNAL(send_job_info(const std::string&, const std::string&)))
    {
    }

    int count() const
    {
        return ruler.size() + attributes.size() + unit.size() + users.size() + reselect.size() +
               language.size() + symbols.size() + job.size();
    }
};

}  // namespace

Q_DECLARE_METATYPE(Attributes)
Q_DECLARE_METATYPE(Symbols)

class TestIncoming : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qRegisterMetaType<Attributes>("std::vector<std::pair<std::string,std::string> >");
        qRegisterMetaType<Symbols>("std::map<int,std::string>");
        qRegisterMetaType<std::string>("std::string");
    }

    void cleanup()
    {
        CanvasHost::uiApiOverrides() = {};
        CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Mil);
    }

    void message_data()
    {
        QTest::addColumn<int>("row");
        for (size_t row = 0; row < std::size(messages); ++row) {
            QTest::newRow(messages[row].name) << int(row);
        }
    }
    void message()
    {
        QFETCH(int, row);
        const Expected& expected = messages[row];
        StripFixture fixture;
        fixture.strip->SetAllButtonchecked(false, nullptr);
        for (const int index : expected.checkedBefore) {
            fixture.button(index)->setChecked(true);
        }
        fixture.receive(expected.code);
        QCOMPARE(fixture.checked(), expected.checkedAfter);
        QCOMPARE(fixture.recorder.codes(), expected.sent);
    }

    void emits_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("signal");
        for (const Expected& expected : messages) {
            const QMap<int, QString> signalOf = {{20000247, "ruler"},
                                                 {20001715, "ruler"},
                                                 {20001824, "users"},
                                                 {20002200, "unit"},
                                                 {20002201, "language"}};
            QTest::newRow(expected.name) << expected.code << signalOf.value(expected.code);
        }
    }
    void emits()
    {
        QFETCH(int, code);
        QFETCH(QString, signal);
        StripFixture fixture;
        const Spies spies(fixture.strip);
        fixture.receive(code);
        QCOMPARE(spies.count(), signal.isEmpty() ? 0 : 1);
        QCOMPARE(spies.ruler.size(), signal == "ruler" ? 1 : 0);
        QCOMPARE(spies.users.size(), signal == "users" ? 1 : 0);
        QCOMPARE(spies.unit.size(), signal == "unit" ? 1 : 0);
        QCOMPARE(spies.language.size(), signal == "language" ? 1 : 0);
    }

    void checksTheButtonBeforeItRunsTheHandler_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("tool");
        QTest::newRow("feature selection") << 20000202 << 20;
        QTest::newRow("rectangle selection") << 20000203 << 21;
        QTest::newRow("polygon selection") << 20000223 << 22;
        QTest::newRow("polyline") << 20000242 << 23;
        QTest::newRow("layer net") << 20000244 << 23;
        QTest::newRow("board net") << 20000245 << 23;
        QTest::newRow("measure") << 20000247 << 2;
    }
    void checksTheButtonBeforeItRunsTheHandler()
    {
        QFETCH(int, code);
        QFETCH(int, tool);
        StripFixture fixture;
        // The handler releases the other tools: at the first toggle Area Zoom is still checked.
        QList<int> checkedAtToggle;
        connect(fixture.button(tool), &QToolButton::toggled, fixture.strip, [&] {
            if (checkedAtToggle.isEmpty()) {
                checkedAtToggle = fixture.checked();
            }
        });
        fixture.receive(code);
        QCOMPARE(checkedAtToggle, (QList<int>{0, tool}));
    }

    void measureAloneDoesNotCheckFirst()
    {
        StripFixture fixture;
        QList<int> checkedAtToggle;
        connect(fixture.button(2), &QToolButton::toggled, fixture.strip, [&] {
            if (checkedAtToggle.isEmpty()) {
                checkedAtToggle = fixture.checked();
            }
        });
        fixture.receive(20001715);
        QCOMPARE(checkedAtToggle, QList<int>{2});  // released in list order before it is checked
    }

    void unknownCodes()
    {
        StripFixture fixture;
        const Spies spies(fixture.strip);
        for (int code = 20000195; code < 20000260; ++code) {
            static const QList<int> known = {20000201, 20000202, 20000203, 20000223, 20000241,
                                             20000242, 20000244, 20000245, 20000247};
            if (!known.contains(code)) {
                fixture.receive(code);
            }
        }
        for (const int code : {-1, 0, 50, 51, 52, 53, 10000204, 10000206, 20001405, 20001406,
                               20002838, 20003950, 20004601, 20004605, 20004801}) {
            fixture.receive(code);
        }
        QVERIFY(fixture.recorder.messages().isEmpty());
        QCOMPARE(spies.count(), 0);
        QCOMPARE(fixture.checked(), QList<int>{0});
    }

    void addFeatureActiveMakesNoDialog()
    {
        StripFixture fixture;
        fixture.receive(20000241);
        QVERIFY(!fixture.panel.findChild<QWidget*>("AddFeature"));
    }

    void netCodesTwice()
    {
        StripFixture fixture;
        fixture.receive(20000244);
        fixture.receive(20000244);
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{20000244, 20000244}));
    }

    void jobOpened_data()
    {
        using Payload = QMap<QString, QVariant>;
        QTest::addColumn<Payload>("payload");
        QTest::addColumn<QString>("job");  // empty: nothing is emitted
        QTest::addColumn<QString>("step");
        QTest::newRow("both") << Payload{{"JobName", "b7"}, {"StepName", "pcb"}} << "b7"
                              << "pcb";
        QTest::newRow("no step") << Payload{{"JobName", "b7"}} << ""
                                 << "";
        QTest::newRow("no job") << Payload{{"StepName", "pcb"}} << ""
                                << "";
        QTest::newRow("other key") << Payload{{"JobName", "b7"}, {"Step", "pcb"}} << ""
                                   << "";
        QTest::newRow("empty text") << Payload{{"JobName", ""}, {"StepName", "pcb"}} << ""
                                    << "";
        QTest::newRow("number") << Payload{{"JobName", 7}, {"StepName", 2.5}} << "7"
                                << "2.5";
        QTest::newRow("no text") << Payload{{"JobName", QVariant::fromValue(QByteArrayList{"a"})},
                                            {"StepName", "pcb"}}
                                 << ""
                                 << "";
        QTest::newRow("unicode") << Payload{{"JobName", QString::fromUtf8("板7")},
                                            {"StepName", "p c"}}
                                 << QString::fromUtf8("板7") << "p c";
    }
    void jobOpened()
    {
        using Payload = QMap<QString, QVariant>;
        QFETCH(Payload, payload);
        QFETCH(QString, job);
        QFETCH(QString, step);
        StripFixture fixture;
        std::string emittedJob, emittedStep;
        int emitted = 0;
        connect(fixture.strip, &Canvas_Tool_Strip::send_job_info, fixture.strip,
                [&](const std::string& j, const std::string& s) {
                    emittedJob = j;
                    emittedStep = s;
                    ++emitted;
                });
        fixture.receive(20002400, payload);
        QCOMPARE(emitted, job.isEmpty() ? 0 : 1);
        QCOMPARE(QString::fromUtf8(emittedJob.c_str()), job);
        QCOMPARE(QString::fromUtf8(emittedStep.c_str()), step);
    }

    void jobAndStepIsStoredSilently()
    {
        StripFixture fixture;
        const Spies spies(fixture.strip);
        fixture.receive(20001637, {{"JobName", "b7"}, {"Step", "pcb"}, {"StepName", "no"}});
        QCOMPARE(spies.count(), 0);
        // Seen in what the dialog is made with: its font list is asked for that job.
        QCOMPARE(jobOfDialog(fixture), QString("b7"));
    }

    void jobNameChangesTheJobOnly()
    {
        StripFixture fixture;
        const Spies spies(fixture.strip);
        const std::string job = "b8";
        fixture.receive(20002003, {}, addressOf(job));
        QCOMPARE(spies.count(), 0);
        fixture.receive(20002003, {}, 0);
        QCOMPARE(jobOfDialog(fixture), QString("b8"));
    }

    void startsWithABlankJob()
    {
        StripFixture fixture;
        QCOMPARE(jobOfDialog(fixture), QString(" "));
    }

    void symbolsArePassedOn()
    {
        StripFixture fixture;
        Symbols emitted;
        connect(fixture.strip, &Canvas_Tool_Strip::send_Symbol_Info, fixture.strip,
                [&](Symbols symbols) { emitted = symbols; });
        const Symbols symbols = {{3, "r10"}, {1, "s5"}};
        fixture.receive(20001811, {}, addressOf(symbols));
        QVERIFY(emitted == symbols);
    }

    void attributesArePassedOnInKeyOrder()
    {
        StripFixture fixture;
        Attributes emitted;
        connect(fixture.strip, &Canvas_Tool_Strip::send_Attribute_Info, fixture.strip,
                [&](Attributes attributes) { emitted = attributes; });
        const std::map<std::string, std::string> attributes = {{"b", "2"}, {"a", ""}};
        fixture.receive(20001807, {}, addressOf(attributes));
        QVERIFY(emitted == (Attributes{{"a", ""}, {"b", "2"}}));
    }

    void unit_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("metric");
        QTest::newRow("MM") << "MM" << true;
        QTest::newRow("mm") << "mm" << false;
        QTest::newRow("INCH") << "INCH" << false;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("blank") << "MM " << false;
    }
    void unit()
    {
        QFETCH(QString, text);
        QFETCH(bool, metric);
        StripFixture fixture;
        void* context = nullptr;
        CanvasHost::uiApiOverrides().getUnitString = [&](void* given) {
            context = given;
            return text;
        };
        QSignalSpy changed(fixture.strip, SIGNAL(Current_Unit_Changed(bool)));
        fixture.receive(20002200);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed[0][0].toBool(), metric);
        QCOMPARE(context, static_cast<void*>(&fixture.panel));
    }

    void unitGuardAgainstAThrownText()
    {
        StripFixture fixture;
        BoxCatcher boxes;
        GlogCatcher log;
        CanvasHost::uiApiOverrides().getUnitString = [](void*) -> QString { throw "no unit"; };
        QSignalSpy changed(fixture.strip, SIGNAL(Current_Unit_Changed(bool)));
        fixture.receive(20002200);
        const auto shown = boxes.take();
        QCOMPARE(shown.size(), 1);
        QCOMPARE(shown[0].title, QString("Information"));
        QCOMPARE(shown[0].text, QString("no unit"));
        QCOMPARE(shown[0].icon, QMessageBox::Information);
        QCOMPARE(shown[0].buttons.size(), 1);
        QCOMPARE(changed.size(), 0);
        QCOMPARE(log.errors().size(), 2);
        const QByteArray position = log.errors()[0];
        QVERIFY2(position.startsWith("\xD2\xEC\xB3\xA3\xCE\xBB\xD6\xC3\xA3\xBA"
                                     "Canvas_Tool_Strip.cpp : "),
                 position.constData());
        bool isNumber = false;
        QVERIFY(position.mid(position.lastIndexOf(' ') + 1).toInt(&isNumber) > 0);
        QVERIFY(isNumber);
        QCOMPARE(log.errors()[1], QByteArray("\xD2\xEC\xB3\xA3\xC3\xE8\xCA\xF6\xA3\xBAno unit"));
    }

    void unitGuardAgainstAnException()
    {
        StripFixture fixture;
        BoxCatcher boxes;
        GlogCatcher log;
        CanvasHost::uiApiOverrides().getUnitString = [](void*) -> QString {
            throw std::runtime_error("broken unit");
        };
        QSignalSpy changed(fixture.strip, SIGNAL(Current_Unit_Changed(bool)));
        fixture.receive(20002200);
        const auto shown = boxes.take();
        QCOMPARE(shown.size(), 1);
        QCOMPARE(shown[0].title, QString("Information"));
        QCOMPARE(shown[0].text, QString("broken unit"));
        QCOMPARE(changed.size(), 0);
        QVERIFY(log.errors().isEmpty());
    }

    void unitGuardLetsAnythingElsePass()
    {
        StripFixture fixture;
        CanvasHost::uiApiOverrides().getUnitString = [](void*) -> QString { throw 42; };
        QVERIFY_EXCEPTION_THROWN(fixture.receive(20002200), int);
    }

    void dataBeforeTheDialogExists()
    {
        StripFixture fixture;
        const Symbols symbols = {{1, "r10"}};
        const std::map<std::string, std::string> attributes = {{"a", "1"}};
        fixture.receive(20001811, {}, addressOf(symbols));
        fixture.receive(20001807, {}, addressOf(attributes));
        fixture.receive(20002400, {{"JobName", "a"}, {"StepName", "b"}});
        fixture.receive(20001824);
        QVERIFY(fixture.recorder.messages().isEmpty());
    }

private:
    /// The job that a dialog made now is given, seen in whose fonts it asks for.
    static QString jobOfDialog(StripFixture& fixture)
    {
        QString asked;
        CanvasHost::camApiOverrides().get_fonts = [&](const std::string& job,
                                                      std::vector<std::string>&) {
            asked = QString::fromStdString(job);
        };
        fixture.strip->On_AddFeature_Clicked();
        CanvasHost::camApiOverrides() = {};
        return asked;
    }
};

CTS_MAIN(TestIncoming)
#include "test_incoming.moc"
