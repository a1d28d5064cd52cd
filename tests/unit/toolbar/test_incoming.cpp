// What each message from a sibling does.

#include "BoxCatcher.h"
#include "GlogCatcher.h"
#include "Main.h"
#include "StripFixture.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/PayloadKeys.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QSignalSpy>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

using Attributes = std::vector<std::pair<std::string, std::string>>;
using Symbols = std::map<int, std::string>;

namespace {

/// A message and all that it may do.
class Message {
public:
    Message(const char* name, Accepted::Code code) : m_name(name), m_code(code) {}
    Message& whileChecked(const QList<Tool>& tools) { return m_before = m_after = tools, *this; }
    Message& checksOnly(Tool tool) { return m_after = {tool}, *this; }
    Message& checksNothing() { return m_after.clear(), *this; }
    template <class... Codes>
    Message& sends(Codes... codes)
    {
        return m_sent = {int(codes)...}, *this;
    }

    const char* name() const { return m_name; }
    int code() const { return m_code; }
    QList<Tool> checkedBefore() const { return m_before; }
    QList<Tool> checkedAfter() const { return m_after; }
    QVector<int> sent() const { return m_sent; }

private:
    const char* m_name;
    int m_code;
    QList<Tool> m_before = {Tool::CopyFeature};
    QList<Tool> m_after = {Tool::CopyFeature};
    QVector<int> m_sent;
};

const QList<Message>& messages()
{
    static const QList<Message> all = {
        Message("release all", Accepted::ReleaseAll)
            .whileChecked({Tool::AreaZoom, Tool::FeatureHighLight, Tool::Eq})
            .checksNothing(),
        Message("area zoom", Accepted::AreaZoom).checksOnly(Tool::AreaZoom).sends(Sent::AreaZoom),
        Message("feature selection", Accepted::FeatureSelection)
            .checksOnly(Tool::FeatureSelection)
            .sends(Sent::FeatureSelection),
        Message("rectangle selection", Accepted::RectangleSelection)
            .checksOnly(Tool::RectangleSelection)
            .sends(Sent::RectangleSelection),
        Message("polygon selection", Accepted::PolygonSelection)
            .checksOnly(Tool::PolygonSelection)
            .sends(Sent::PolygonSelection),
        Message("add feature is active", Accepted::AddFeatureActive).checksOnly(Tool::AddFeature),
        Message("add feature was active", Accepted::AddFeatureActive)
            .whileChecked({Tool::AddFeature, Tool::CopyFeature}),
        Message("polyline", Accepted::SelectPolyline)
            .checksOnly(Tool::SelectByNet)
            .sends(Sent::SelectPolyline),
        Message("layer net", Accepted::SelectLayerNet)
            .checksOnly(Tool::SelectByNet)
            .sends(Sent::SelectLayerNet),
        Message("board net", Accepted::SelectBoardNet)
            .checksOnly(Tool::SelectByNet)
            .sends(Sent::SelectBoardNet),
        Message("check and measure", Accepted::CheckAndMeasure).checksOnly(Tool::Measure),
        Message("job and step", Accepted::JobAndStep),
        Message("measure", Accepted::Measure).checksOnly(Tool::Measure),
        Message("attributes without address", Accepted::AttributesPicked),
        Message("symbols without address", Accepted::SymbolsPicked),
        Message("user symbols", Accepted::UserSymbolsChanged),
        Message("job name without address", Accepted::JobName),
        Message("unit", Accepted::UnitChanged),
        Message("language", Accepted::LanguageChanged),
        Message("job opened", Accepted::JobOpened),
        Message("close dialogs", Accepted::CloseDialogs).sends(Sent::DialogsClosed),
        Message("add feature", Accepted::AddFeature)
            .checksOnly(Tool::AddFeature)
            .sends(Sent::AddFeatureStarted, Sent::AddFeature),
        Message("delete feature", Accepted::DeleteFeature)
            .checksOnly(Tool::DeleteFeature)
            .sends(Sent::DeleteFeature),
        Message("move feature", Accepted::MoveFeature)
            .checksOnly(Tool::MoveFeature)
            .sends(Sent::MoveFeature),
    };
    return all;
}

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
        for (int row = 0; row < messages().size(); ++row) {
            QTest::newRow(messages()[row].name()) << row;
        }
    }
    void message()
    {
        QFETCH(int, row);
        const Message& message = messages()[row];
        StripFixture fixture;
        fixture.strip->SetAllButtonchecked(false, nullptr);
        for (const Tool tool : message.checkedBefore()) {
            fixture.button(tool)->setChecked(true);
        }
        fixture.receive(message.code());
        QCOMPARE(fixture.checked(), message.checkedAfter());
        QCOMPARE(fixture.recorder.codes(), message.sent());
    }

    void emits_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("signal");
        const QMap<int, QString> signalOf = {{Accepted::CheckAndMeasure, "ruler"},
                                             {Accepted::Measure, "ruler"},
                                             {Accepted::UserSymbolsChanged, "users"},
                                             {Accepted::UnitChanged, "unit"},
                                             {Accepted::LanguageChanged, "language"}};
        for (const Message& message : messages()) {
            QTest::newRow(message.name()) << message.code() << signalOf.value(message.code());
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
        QTest::addColumn<Tool>("tool");
        QTest::newRow("feature selection")
            << int(Accepted::FeatureSelection) << Tool::FeatureSelection;
        QTest::newRow("rectangle selection")
            << int(Accepted::RectangleSelection) << Tool::RectangleSelection;
        QTest::newRow("polygon selection")
            << int(Accepted::PolygonSelection) << Tool::PolygonSelection;
        QTest::newRow("polyline") << int(Accepted::SelectPolyline) << Tool::SelectByNet;
        QTest::newRow("layer net") << int(Accepted::SelectLayerNet) << Tool::SelectByNet;
        QTest::newRow("board net") << int(Accepted::SelectBoardNet) << Tool::SelectByNet;
        QTest::newRow("measure") << int(Accepted::CheckAndMeasure) << Tool::Measure;
    }
    void checksTheButtonBeforeItRunsTheHandler()
    {
        QFETCH(int, code);
        QFETCH(Tool, tool);
        StripFixture fixture;
        // The handler releases the other tools: at the first toggle Area Zoom is still checked.
        QList<Tool> checkedAtToggle;
        connect(fixture.button(tool), &QToolButton::toggled, fixture.strip, [&] {
            if (checkedAtToggle.isEmpty()) {
                checkedAtToggle = fixture.checked();
            }
        });
        fixture.receive(code);
        QCOMPARE(checkedAtToggle, (QList<Tool>{Tool::AreaZoom, tool}));
    }

    void measureAloneDoesNotCheckFirst()
    {
        StripFixture fixture;
        QList<Tool> checkedAtToggle;
        connect(fixture.button(Tool::Measure), &QToolButton::toggled, fixture.strip, [&] {
            if (checkedAtToggle.isEmpty()) {
                checkedAtToggle = fixture.checked();
            }
        });
        fixture.receive(Accepted::Measure);
        QCOMPARE(checkedAtToggle,
                 QList<Tool>{Tool::Measure});  // released in list order before it is checked
    }

    void unknownCodes()
    {
        StripFixture fixture;
        const Spies spies(fixture.strip);
        for (int code = Accepted::AreaZoom - 6; code < Accepted::CheckAndMeasure + 13; ++code) {
            static const QList<int> known = {
                Accepted::AreaZoom,           Accepted::FeatureSelection,
                Accepted::RectangleSelection, Accepted::PolygonSelection,
                Accepted::AddFeatureActive,   Accepted::SelectPolyline,
                Accepted::SelectLayerNet,     Accepted::SelectBoardNet,
                Accepted::CheckAndMeasure};
            if (!known.contains(code)) {
                fixture.receive(code);
            }
        }
        for (const int code : std::initializer_list<int>{
                 -1, 0, Sent::Record, Sent::AttributeMap, Sent::DirectionRecord, Sent::Fill,
                 Accepted::ReleaseAll - 1, Accepted::ReleaseAll + 1, Sent::SelectSymbol,
                 Sent::SelectSymbol + 1, Sent::SelectFromEditor, Sent::DialogsClosed,
                 Accepted::AddFeature - 1, Accepted::MoveFeature + 1, Sent::Eq}) {
            fixture.receive(code);
        }
        QVERIFY(fixture.recorder.messages().isEmpty());
        QCOMPARE(spies.count(), 0);
        QCOMPARE(fixture.checked(), QList<Tool>{Tool::AreaZoom});
    }

    void addFeatureActiveMakesNoDialog()
    {
        StripFixture fixture;
        fixture.receive(Accepted::AddFeatureActive);
        QVERIFY(!fixture.window.findChild<QWidget*>("AddFeature"));
    }

    void netCodesTwice()
    {
        StripFixture fixture;
        fixture.receive(Accepted::SelectLayerNet);
        fixture.receive(Accepted::SelectLayerNet);
        QCOMPARE(fixture.recorder.codes(),
                 (QVector<int>{Sent::SelectLayerNet, Sent::SelectLayerNet}));
    }

    void jobOpened_data()
    {
        using Payload = QMap<QString, QVariant>;
        QTest::addColumn<Payload>("payload");
        QTest::addColumn<QString>("job");  // empty: nothing is emitted
        QTest::addColumn<QString>("step");
        QTest::newRow("both") << Payload{{PayloadKeys::jobName, "b7"},
                                         {PayloadKeys::stepName, "pcb"}}
                              << "b7"
                              << "pcb";
        QTest::newRow("no step") << Payload{{PayloadKeys::jobName, "b7"}} << ""
                                 << "";
        QTest::newRow("no job") << Payload{{PayloadKeys::stepName, "pcb"}} << ""
                                << "";
        QTest::newRow("other key")
            << Payload{{PayloadKeys::jobName, "b7"}, {PayloadKeys::step, "pcb"}} << ""
            << "";
        QTest::newRow("empty text")
            << Payload{{PayloadKeys::jobName, ""}, {PayloadKeys::stepName, "pcb"}} << ""
            << "";
        QTest::newRow("number") << Payload{{PayloadKeys::jobName, 7}, {PayloadKeys::stepName, 2.5}}
                                << "7"
                                << "2.5";
        QTest::newRow("no text") << Payload{{PayloadKeys::jobName,
                                             QVariant::fromValue(QByteArrayList{"a"})},
                                            {PayloadKeys::stepName, "pcb"}}
                                 << ""
                                 << "";
        QTest::newRow("unicode") << Payload{{PayloadKeys::jobName, QString::fromUtf8("\u677f7")},
                                            {PayloadKeys::stepName, "p c"}}
                                 << QString::fromUtf8("\u677f7") << "p c";
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
        fixture.receive(Accepted::JobOpened, payload);
        QCOMPARE(emitted, job.isEmpty() ? 0 : 1);
        QCOMPARE(QString::fromUtf8(emittedJob.c_str()), job);
        QCOMPARE(QString::fromUtf8(emittedStep.c_str()), step);
    }

    void jobAndStepIsStoredSilently()
    {
        StripFixture fixture;
        const Spies spies(fixture.strip);
        fixture.receive(Accepted::JobAndStep, {{PayloadKeys::jobName, "b7"},
                                               {PayloadKeys::step, "pcb"},
                                               {PayloadKeys::stepName, "no"}});
        QCOMPARE(spies.count(), 0);
        // Seen when the dialog is created: it asks for the fonts of that job.
        QCOMPARE(jobOfDialog(fixture), QString("b7"));
    }

    void jobNameChangesTheJobOnly()
    {
        StripFixture fixture;
        const Spies spies(fixture.strip);
        const std::string job = "b8";
        fixture.receive(Accepted::JobName, {}, ExtraWord::pointingAt(job));
        QCOMPARE(spies.count(), 0);
        fixture.receive(Accepted::JobName, {}, 0);
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
        fixture.receive(Accepted::SymbolsPicked, {}, ExtraWord::pointingAt(symbols));
        QVERIFY(emitted == symbols);
    }

    void attributesArePassedOnInKeyOrder()
    {
        StripFixture fixture;
        Attributes emitted;
        connect(fixture.strip, &Canvas_Tool_Strip::send_Attribute_Info, fixture.strip,
                [&](Attributes attributes) { emitted = attributes; });
        const std::map<std::string, std::string> attributes = {{"b", "2"}, {"a", ""}};
        fixture.receive(Accepted::AttributesPicked, {}, ExtraWord::pointingAt(attributes));
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
        fixture.receive(Accepted::UnitChanged);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed[0][0].toBool(), metric);
        QCOMPARE(context, static_cast<void*>(&fixture.window));
    }

    void unitGuardAgainstAThrownText()
    {
        StripFixture fixture;
        BoxCatcher boxes;
        GlogCatcher log;
        CanvasHost::uiApiOverrides().getUnitString = [](void*) -> QString { throw "no unit"; };
        QSignalSpy changed(fixture.strip, SIGNAL(Current_Unit_Changed(bool)));
        fixture.receive(Accepted::UnitChanged);
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
        fixture.receive(Accepted::UnitChanged);
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
        QVERIFY_EXCEPTION_THROWN(fixture.receive(Accepted::UnitChanged), int);
    }

    void dataBeforeTheDialogExists()
    {
        StripFixture fixture;
        const Symbols symbols = {{1, "r10"}};
        const std::map<std::string, std::string> attributes = {{"a", "1"}};
        fixture.receive(Accepted::SymbolsPicked, {}, ExtraWord::pointingAt(symbols));
        fixture.receive(Accepted::AttributesPicked, {}, ExtraWord::pointingAt(attributes));
        fixture.receive(Accepted::JobOpened,
                        {{PayloadKeys::jobName, "a"}, {PayloadKeys::stepName, "b"}});
        fixture.receive(Accepted::UserSymbolsChanged);
        QVERIFY(fixture.recorder.messages().isEmpty());
    }

private:
    /// The job that a dialog created now gets, seen from whose fonts it asks for.
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

CTS_TEST(TestIncoming);
#include "test_incoming.moc"
