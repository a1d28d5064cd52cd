// Messages that no sibling should send: unknown codes, payloads that are missing, odd or huge.

#include "DialogFixture.h"
#include "Invariants.h"
#include "Main.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/PayloadKeys.h"
#include "plugin/RecordKeys.h"

#include <CamApiStandIn.h>
#include <common_widgets.h>

#include <QLoggingCategory>
#include <QToolButton>

#include <limits>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

namespace {

using Payload = QMap<QString, QVariant>;

const QVector<int> acceptedCodes = Accepted::all();
constexpr int many = 100000;

/// All that a stray message could change.
QStringList stateOf(const DialogFixture& fixture)
{
    QStringList state;
    for (const QToolButton* const tool : fixture.window.findChildren<QToolButton*>()) {
        state.append(tool->objectName() + tool->styleSheet() + tool->toolTip() +
                     QString::number(tool->isChecked()));
    }
    for (const QWidget* const child : fixture.dialog->findChildren<QWidget*>()) {
        state.append(child->objectName() + QString::number(child->isVisible()) +
                     QString::number(child->isEnabled()));
    }
    return state;
}

}  // namespace

class TestHostileMessages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Otherwise each record is logged.
    void initTestCase() { QLoggingCategory::setFilterRules("canvastoolstrip.*=false"); }

    void unknownCodes()
    {
        DialogFixture fixture;
        const QStringList state = stateOf(fixture);
        const QVariantMap record = fixture.record();
        int count = 0;
        const auto isIgnored = [&](qint64 number) {
            const int code = int(quint32(number));
            if (!acceptedCodes.contains(code)) {
                fixture.receive(
                    code, {{PayloadKeys::jobName, "job"}, {PayloadKeys::stepName, "step"}}, -1);
                ++count;
            }
        };
        // An even sample of all codes, everything near the known ones, and the corners.
        for (qint64 code = 0; code < (qint64(1) << 32); code += 4099) {
            isIgnored(code);
        }
        for (const int known : acceptedCodes) {
            for (int code = known - 300; code <= known + 300; ++code) {
                isIgnored(code);
            }
        }
        for (const int code : std::initializer_list<int>{
                 -1, 0, 1, Sent::Record, Sent::AttributeMap, Sent::DirectionRecord, Sent::Fill,
                 std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
            isIgnored(code);
        }
        QVERIFY(count > 1000000);
        QCOMPARE(fixture.recorder.codes(), QVector<int>());
        QCOMPARE(fixture.boxes.takeTexts(), BoxTextList());
        QCOMPARE(stateOf(fixture), state);
        QCOMPARE(fixture.record(), record);
    }

    void oddPayloads_data()
    {
        QTest::addColumn<Payload>("payload");
        const QVariant huge = QString(10 * 1024 * 1024, 'x');
        QTest::newRow("missing") << Payload();
        QTest::newRow("empty") << Payload{
            {PayloadKeys::jobName, ""}, {PayloadKeys::step, ""}, {PayloadKeys::stepName, ""}};
        QTest::newRow("invalid") << Payload{{PayloadKeys::jobName, QVariant()},
                                            {PayloadKeys::step, QVariant()},
                                            {PayloadKeys::stepName, QVariant()}};
        QTest::newRow("numbers") << Payload{
            {PayloadKeys::jobName, 7}, {PayloadKeys::step, 2.5}, {PayloadKeys::stepName, true}};
        QTest::newRow("lists") << Payload{{PayloadKeys::jobName, QStringList("job")},
                                          {PayloadKeys::step, QVariantMap{{"a", 1}}},
                                          {PayloadKeys::stepName, QVariantList{1}}};
        QTest::newRow("huge") << Payload{
            {PayloadKeys::jobName, huge}, {PayloadKeys::step, huge}, {PayloadKeys::stepName, huge}};
        QTest::newRow("not text") << Payload{{PayloadKeys::jobName, QString(QChar(0xD800))},
                                             {PayloadKeys::stepName, QString(3, QChar(0))}};
        Payload wide;
        for (int i = 0; i < many; ++i) {
            wide[QString::number(i)] = i;
        }
        QTest::newRow("many entries") << wide;
    }
    void oddPayloads()
    {
        QFETCH(Payload, payload);
        DialogFixture fixture;
        for (const int code : acceptedCodes) {
            fixture.receive(code, payload);
            fixture.receive(code, payload);
        }
        fixture.boxes.take();
        QCOMPARE(Invariants::faultOf(fixture.record()), QString());
        for (const Recorder::Entry& entry : fixture.recorder.messages()) {
            QCOMPARE(Invariants::faultOf(entry), QString());
        }
        fixture.receive(Accepted::AreaZoom);
        QVERIFY(fixture.strip->isToolButtonChecked(int(Tool::AreaZoom)));
    }

    void manyAttributes()
    {
        DialogFixture fixture;
        connect(fixture.strip,
                SIGNAL(send_Attribute_Info(std::vector<std::pair<std::string, std::string>>)),
                fixture.dialog,
                SLOT(forward_Attribute_Info(std::vector<std::pair<std::string, std::string>>)));
        fixture.click("m_pAttributesCB");
        std::map<std::string, std::string> attributes;
        std::vector<std::pair<std::string, std::string>> list;
        for (int i = 0; i < many; ++i) {
            attributes["." + std::to_string(i)] = std::to_string(-i);
            list.emplace_back("." + std::to_string(i), std::to_string(-i));
        }
        fixture.recorder.clear();
        fixture.receive(Accepted::AttributesPicked, {}, ExtraWord::pointingAt(attributes));
        QCOMPARE(fixture.recorder.codes(), QVector<int>());  // nothing to fill in yet
        fixture.dialog->get_attribute_list(list);
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::AttributeMap});
        QVERIFY(fixture.recorder.last(Sent::AttributeMap).attributes == attributes);
    }

    void manySymbols_data()
    {
        QTest::addColumn<QString>("type");
        QTest::newRow("pad") << "m_pPadTB";
        QTest::newRow("surface") << "m_pSurfaceTB";
    }
    void manySymbols()
    {
        QFETCH(QString, type);
        DialogFixture fixture;
        connect(fixture.strip, SIGNAL(send_Symbol_Info(std::map<int, std::string>)), fixture.dialog,
                SLOT(get_ChangeSymbol_Info(std::map<int, std::string>)));
        fixture.chooseType(type);
        int sent = 0;
        fixture.recorder.setOnMessage([&](const Recorder::Entry& entry) {
            sent += entry.message.code == Sent::Record;
            fixture.recorder.clear();
        });
        const int count = TestProgram::isFull() ? many : 2000;
        std::map<int, std::string> symbols;
        for (int i = 1; i <= count; ++i) {
            symbols[i - 2] = "r" + std::to_string(i % 1000 + 1);
        }
        fixture.receive(Accepted::SymbolsPicked, {}, ExtraWord::pointingAt(symbols));
        fixture.recorder.setOnMessage({});
        QCOMPARE(sent, count);
        QCOMPARE(fixture.symbol().text(), QString("r1"));
        QCOMPARE(fixture.record().value(RecordKeys::symbolText), QVariant("r1"));
    }
};

CTS_TEST(TestHostileMessages);
#include "test_hostile_messages.moc"
