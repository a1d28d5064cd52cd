// Each operation of the host throws, or answers nonsense. Guarded slots report it; elsewhere the
// exception reaches the caller of Qt. Strip and dialog stay usable in both cases.

#include "DialogFixture.h"
#include "GlogCatcher.h"
#include "Invariants.h"
#include "Main.h"
#include "plugin/MessageCodes.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QMap>

#include <limits>
#include <stdexcept>

namespace Accepted = MessageCodes::Accepted;

namespace {

using CanvasHost::camApiOverrides;
using CanvasHost::uiApiOverrides;
using Names = std::vector<std::string>;

enum class Thrown { Nothing, Text, Exception, Other };

[[noreturn]] void throwAs(Thrown kind)
{
    if (kind == Thrown::Text) {
        throw "the host gave up";
    }
    if (kind == Thrown::Exception) {
        throw std::runtime_error("the host gave up");
    }
    throw 7;
}

/// Runs `action`; returns what it threw.
Thrown thrownBy(const std::function<void()>& action)
{
    try {
        action();
    } catch (const char* text) {
        return qstrcmp(text, "the host gave up") == 0 ? Thrown::Text : Thrown::Nothing;
    } catch (const std::exception&) {
        return Thrown::Exception;
    } catch (int) {
        return Thrown::Other;
    }
    return Thrown::Nothing;
}

void typeSymbol(DialogFixture& fixture)
{
    fixture.chooseType("m_pPadTB");
    fixture.type("m_pSymbolTextLE", "r33");
    fixture.leave(By::Enter);
}

/// Whether the slot that calls the host reports what it throws, or lets it reach the caller of Qt.
enum class Exceptions { AreReported, PassThrough };

/// An operation of the host, and what a user does that makes the module call it.
struct Operation {
    const char* name;
    void (*fail)(Thrown kind);
    void (*use)(DialogFixture& fixture);
    Exceptions exceptions = Exceptions::PassThrough;
    Unit unit = Unit::Mil;
};

const Operation operations[] = {
    {"identify_symbol",
     [](Thrown kind) {
         camApiOverrides().identify_symbol = [=](const std::string&, ZENTRA::API::symbol_type&,
                                                 int&, int&, bool) -> bool { throwAs(kind); };
     },
     typeSymbol},
    {"get_special_symbol_names",
     [](Thrown kind) {
         camApiOverrides().get_special_symbol_names = [=](const std::string&, Names&) {
             throwAs(kind);
         };
     },
     [](DialogFixture& fixture) { fixture.click("m_pPadTB"); }},
    {"get_fonts",
     [](Thrown kind) {
         camApiOverrides().get_fonts = [=](const std::string&, Names&) { throwAs(kind); };
     },
     [](DialogFixture& fixture) {
         fixture.click("m_pTextTB");
         auto& font = fixture.find<QLineEdit>("m_pFontLE");
         font.selectAll();
         QTest::keyClicks(&font, "simple");
         QTest::keyClick(&font, Qt::Key_Return);
     }},
    {"getUnitString",
     [](Thrown kind) { uiApiOverrides().getUnitString = [=](void*) -> QString { throwAs(kind); }; },
     [](DialogFixture& fixture) { fixture.receive(Accepted::UnitChanged); },
     Exceptions::AreReported},
    {"getUnit",
     [](Thrown kind) { uiApiOverrides().getUnit = [=](void*) -> int { throwAs(kind); }; },
     [](DialogFixture& fixture) { fixture.symbol().insert("s20"); }, Exceptions::AreReported},
    {"getUnit for a picked symbol",
     [](Thrown kind) { uiApiOverrides().getUnit = [=](void*) -> int { throwAs(kind); }; },
     [](DialogFixture& fixture) {
         QMetaObject::invokeMethod(fixture.dialog, "receive_text", Q_ARG(QString, QString()));
         fixture.dialog->get_ChangeSymbol_Info({{1, "r5"}});
     }},
    {"getUnitJudgeDouble",
     [](Thrown kind) {
         uiApiOverrides().getUnitJudgeDouble = [=](void*, double) -> double { throwAs(kind); };
     },
     [](DialogFixture& fixture) {
         fixture.click("m_pTextTB");
         auto& size = fixture.find<QLineEdit>("m_pXSizeLE");
         size.setText("99999");
         QTest::keyClick(&size, Qt::Key_Return);
     }},
    {"isNumValueLegal",
     [](Thrown kind) {
         uiApiOverrides().isNumValueLegal = [=](double, double, double, void*) -> bool {
             throwAs(kind);
         };
     },
     [](DialogFixture& fixture) {
         fixture.click("m_pPadTB");
         QTest::keyClick(&fixture.find("m_pDrilNxLE"), Qt::Key_3);
     }},
    {"isSymbolValueLegal",
     [](Thrown kind) {
         uiApiOverrides().isSymbolValueLegal = [=](const QString&, double, double, void*) -> bool {
             throwAs(kind);
         };
     },
     [](DialogFixture& fixture) { fixture.click("m_pPadTB"); }},
    {"setSymbolUIData",
     [](Thrown kind) {
         uiApiOverrides().setSymbolUIData = [=](const QString&, int) -> QString { throwAs(kind); };
     },
     typeSymbol, Exceptions::PassThrough, Unit::Metric},
    {"the canvas", [](Thrown) {},  // its message handler throws; see throwing()
     [](DialogFixture& fixture) { fixture.click("m_pPadTB"); }},
};

/// An answer of the host that makes no sense.
struct Answer {
    const char* name;
    void (*install)();
};

const Answer answers[] = {
    {"no unit text", [] { uiApiOverrides().getUnitString = [](void*) { return QString(); }; }},
    {"odd unit text",
     [] { uiApiOverrides().getUnitString = [](void*) { return QString(9999, 'M'); }; }},
    {"odd unit", [] { uiApiOverrides().getUnit = [](void*) { return -7; }; }},
    {"a bound that is no number",
     [] {
         uiApiOverrides().getUnitJudgeDouble = [](void*, double) {
             return std::numeric_limits<double>::quiet_NaN();
         };
     }},
    {"every number is legal",
     [] { uiApiOverrides().isNumValueLegal = [](double, double, double, void*) { return true; }; }},
    {"no number is legal",
     [] {
         // The fixture reads the record by editing the angle.
         uiApiOverrides().isNumValueLegal = [](double, double, double maximum, void*) {
             return maximum == 360.0;
         };
     }},
    {"every symbol is legal",
     [] {
         uiApiOverrides().isSymbolValueLegal = [](const QString&, double, double, void*) {
             return true;
         };
     }},
    {"no symbol is legal",
     [] {
         uiApiOverrides().isSymbolValueLegal = [](const QString&, double, double, void*) {
             return false;
         };
     }},
    {"symbols become nothing",
     [] { uiApiOverrides().setSymbolUIData = [](const QString&, int) { return QString(); }; }},
    {"symbols become long",
     [] {
         uiApiOverrides().setSymbolUIData = [](const QString&, int) { return QString(99999, 'r'); };
     }},
    {"every name is a standard symbol",
     [] {
         camApiOverrides().identify_symbol = [](const std::string&, ZENTRA::API::symbol_type& type,
                                                int& a, int& b, bool) {
             type = static_cast<ZENTRA::API::symbol_type>(12345);
             a = std::numeric_limits<int>::min();
             b = std::numeric_limits<int>::max();
             return true;
         };
     }},
    {"no name is a standard symbol",
     [] {
         camApiOverrides().identify_symbol = [](const std::string&, ZENTRA::API::symbol_type&, int&,
                                                int&, bool) { return false; };
     }},
    {"many special names",
     [] {
         camApiOverrides().get_special_symbol_names = [](const std::string&, Names& names) {
             names.assign(100000, "\xFF\xFE not UTF-8");
         };
     }},
    {"no fonts", [] { camApiOverrides().get_fonts = [](const std::string&, Names&) {}; }},
    {"odd fonts",
     [] {
         camApiOverrides().get_fonts = [](const std::string&, Names& names) {
             names.assign(1000, std::string(1000, '\0'));
         };
     }},
    {"odd display",
     [] {
         uiApiOverrides().getShowPara = [](void*, ZENTRA::API::show_param& shown) {
             static bool other = false;
             other = shown.metric = !other;  // a different one at each call
         };
     }},
};

QStringList described(const QVariantMap& record)
{
    QStringList lines;
    for (auto entry = record.begin(); entry != record.end(); ++entry) {
        lines.append(entry.key() + ' ' + entry->typeName() + ' ' + entry->toString());
    }
    return lines;
}

/// Sets everything that the operations above touch, as a user does; the record after that.
QStringList recordAfterUse(DialogFixture& fixture)
{
    fixture.open();  // the windowless platform does not go back to it after a box
    fixture.click("m_pTextTB");
    for (const auto& [field, text] :
         {std::pair("m_pFontLE", "standard"), std::pair("m_pXSizeLE", "100")}) {
        fixture.find<QLineEdit>(field).setText(text);
        QTest::keyClick(&fixture.find(field), Qt::Key_Return);
    }
    fixture.click("m_pPadTB");
    fixture.find<QLineEdit>("m_pDrilNxLE").setText("4");
    fixture.type("m_pSymbolTextLE", "r20");
    fixture.leave(By::Enter);
    return described(fixture.record());
}

/// The same in a host without a fault.
QStringList undisturbedRecord(Unit unit)
{
    static QMap<Unit, QStringList> records;
    QStringList& record = records[unit];
    if (record.isEmpty()) {
        DialogFixture fixture(unit);
        record = recordAfterUse(fixture);
    }
    return record;
}

}  // namespace

Q_DECLARE_METATYPE(Thrown)

class TestFailingHost : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void throwing_data()
    {
        QTest::addColumn<int>("operation");
        QTest::addColumn<Thrown>("kind");
        for (int i = 0; i < int(std::size(operations)); ++i) {
            for (const auto& [name, kind] :
                 {std::pair("text", Thrown::Text), std::pair("exception", Thrown::Exception),
                  std::pair("other", Thrown::Other)}) {
                QTest::addRow("%s, %s", operations[i].name, name) << i << kind;
            }
        }
    }
    void throwing()
    {
        QFETCH(int, operation);
        QFETCH(Thrown, kind);
        const Operation& row = operations[operation];
        const QStringList undisturbed = undisturbedRecord(row.unit);
        DialogFixture fixture(row.unit);
        const GlogCatcher log;
        row.fail(kind);
        if (row.name == QByteArray("the canvas")) {
            fixture.recorder.setOnMessage([=](const Recorder::Entry&) { throwAs(kind); });
        }
        const Thrown reached = thrownBy([&] { row.use(fixture); });
        fixture.recorder.setOnMessage({});
        camApiOverrides() = {};
        uiApiOverrides() = {};

        const bool isReported = row.exceptions == Exceptions::AreReported && kind != Thrown::Other;
        QVERIFY(reached == (isReported ? Thrown::Nothing : kind));
        const BoxTextList boxes{{"Information", "the host gave up"}};
        QCOMPARE(fixture.boxes.takeTexts(), isReported ? boxes : BoxTextList());
        QCOMPARE(log.errors().size(), isReported && kind == Thrown::Text ? 2 : 0);
        QCOMPARE(Invariants::faultOf(fixture.record()), QString());
        QCOMPARE(fixture.checked(), QList<Tool>{Tool::AddFeature});
        // From here on it is a dialog like any other.
        QCOMPARE(recordAfterUse(fixture), undisturbed);
        QCOMPARE(fixture.boxes.takeTexts(), BoxTextList());
    }

    void nonsense_data()
    {
        QTest::addColumn<int>("answer");
        for (int i = 0; i < int(std::size(answers)); ++i) {
            QTest::newRow(answers[i].name) << i;
        }
    }
    void nonsense()
    {
        QFETCH(int, answer);
        for (const Unit unit : {Unit::Mil, Unit::Metric}) {
            const QStringList undisturbed = undisturbedRecord(unit);
            DialogFixture fixture(unit);
            answers[answer].install();
            recordAfterUse(fixture);
            fixture.receive(Accepted::UnitChanged);
            fixture.dialog->change_current_units(unit == Unit::Mil);
            fixture.dialog->change_current_units(unit == Unit::Metric);
            fixture.dialog->get_ChangeSymbol_Info({{1, "r5"}});
            fixture.boxes.take();
            QCOMPARE(Invariants::faultOf(fixture.record()), QString());
            camApiOverrides() = {};
            uiApiOverrides() = {};
            fixture.setUnit(unit);
            fixture.symbol().clear();
            QCOMPARE(recordAfterUse(fixture), undisturbed);
            QCOMPARE(fixture.boxes.takeTexts(), BoxTextList());
        }
    }
};

CTS_TEST(TestFailingHost);
#include "test_failing_host.moc"
