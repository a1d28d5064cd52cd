// The attributes of a feature: the check box, the window of values, the request to the editor.

#include "DialogFixture.h"
#include "Expect.h"
#include "Main.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/RecordKeys.h"

#include <CommonWidgetsStandIn.h>
#include <common_widgets.h>

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

namespace Sent = MessageCodes::Sent;

namespace {

using List = std::vector<std::pair<std::string, std::string>>;
using Map = std::map<std::string, std::string>;

}  // namespace

class TestAttributes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void checkBox()
    {
        DialogFixture fixture;
        fixture.click("m_pAttributesCB");
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::AttributeMap});
        Expect::holds(fixture, {Expect::record(RecordKeys::attributes, HasAttributes::yes)});
        QVERIFY(fixture.isShown("m_pValuesPB"));
        fixture.click("m_pAttributesCB");
        QCOMPARE(fixture.recorder.codes(), (QVector<int>{Sent::AttributeMap, Sent::AttributeMap}));
        Expect::holds(fixture, {Expect::record(RecordKeys::attributes, HasAttributes::no)});
        QVERIFY(!fixture.isShown("m_pValuesPB"));
    }

    /// A slot hides the row; if ticked meanwhile, the box shows only the values' button.
    void valuesAreShownAlone()
    {
        DialogFixture fixture;
        fixture.choose("m_pLineCMB", "Slot");
        QVERIFY(!fixture.isShown("m_pAttributesCB"));
        QVERIFY(!fixture.isShown("m_pFillPB"));
        fixture.find<QCheckBox>("m_pAttributesCB").setChecked(true);
        QVERIFY(fixture.isShown("m_pValuesPB"));
        QVERIFY(!fixture.isShown("m_pAttributesCB"));
    }

    void envelope()
    {
        DialogFixture fixture;
        QVariant attributesAtSend;
        fixture.recorder.setOnMessage([&](const Recorder::Entry& sent) {
            if (sent.message.code == Sent::AttributeMap) {
                attributesAtSend = fixture.value(RecordKeys::attributes);
            }
        });
        fixture.click("m_pAttributesCB");
        const Recorder::Entry sent = fixture.recorder.last(Sent::AttributeMap);
        QCOMPARE(sent.message.sender, ModuleNames::toolStrip);
        QCOMPARE(sent.message.receiver, ModuleNames::viewer);
        QVERIFY(sent.message.payload.isEmpty());
        QVERIFY(sent.message.extra != 0);
        QCOMPARE(sent.sender, static_cast<void*>(&fixture.window));
        QCOMPARE(attributesAtSend, QVariant(HasAttributes::yes));
        fixture.click("m_pPadTB");
        fixture.dialog->get_attribute_list({{"a", "b"}});
        for (const Recorder::Entry& entry : fixture.recorder.messages()) {
            if (entry.message.code == Sent::AttributeMap) {
                QCOMPARE(entry.message.extra, sent.message.extra);
            }
        }
    }

    void theSlotReadsTheBoxItself()
    {
        DialogFixture fixture;
        fixture.dialog->on_Attribute_CheckState_Changed(Qt::Checked);
        Expect::holds(fixture, {Expect::record(RecordKeys::attributes, HasAttributes::no)});
    }

    void list()
    {
        DialogFixture fixture;
        fixture.dialog->get_attribute_list({{".net", "gnd"}});  // not checked: nothing
        QVERIFY(fixture.recorder.messages().isEmpty());
        fixture.click("m_pAttributesCB");
        fixture.dialog->get_attribute_list({{".net", "gnd"}, {".smd", ""}});
        QCOMPARE(fixture.recorder.last(Sent::AttributeMap).attributes,
                 (Map{{".net", "gnd"}, {".smd", ""}}));
        fixture.dialog->get_attribute_list({{".drill", "via"}});
        QCOMPARE(fixture.recorder.last(Sent::AttributeMap).attributes, (Map{{".drill", "via"}}));
        fixture.click("m_pLineTB");  // sends the attributes again
        QCOMPARE(fixture.recorder.last(Sent::AttributeMap).attributes, (Map{{".drill", "via"}}));
        fixture.click("m_pAttributesCB");
        QVERIFY(fixture.recorder.last(Sent::AttributeMap).attributes.empty());
    }

    void valuesWindow()
    {
        DialogFixture fixture;
        fixture.click("m_pAttributesCB");
        fixture.click("m_pValuesPB");
        auto* const values = fixture.dialog->findChild<Widget_Attributes*>();
        QVERIFY(values && values->isVisible() && values->isWindow());
        QCOMPARE(values->parent(), fixture.dialog.data());
        fixture.click("m_pValuesPB");
        QCOMPARE(fixture.dialog->findChildren<Widget_Attributes*>().size(), 1);
        fixture.dialog->close();
        QVERIFY(!values->isVisible());
    }

    void valuesAreSentWithTheBox()
    {
        DialogFixture fixture;
        fixture.click("m_pAttributesCB");
        fixture.click("m_pValuesPB");
        fixture.dialog->forward_Attribute_Info({{".net", "vcc"}});
        fixture.recorder.clear();
        fixture.click("m_pAttributesCB");
        QVERIFY(fixture.recorder.last(Sent::AttributeMap).attributes.empty());
        fixture.click("m_pAttributesCB");
        QCOMPARE(fixture.recorder.last(Sent::AttributeMap).attributes, (Map{{".net", "vcc"}}));
    }

    void color()
    {
        DialogFixture fixture;
        fixture.click("m_pAttributesCB");
        fixture.click("m_pValuesPB");
        const QWidget& button = fixture.find("m_pValuesPB");
        fixture.dialog->forward_Attribute_Info({{".net", "vcc"}});
        QCOMPARE(button.styleSheet(), QString("background-color:rgb(255, 0, 0)"));
        fixture.dialog->forward_Attribute_Info({});
        QCOMPARE(button.styleSheet(), QString("background-color:none"));
    }

    void fromTheWindow()
    {
        DialogFixture fixture;
        fixture.click("m_pAttributesCB");
        fixture.click("m_pValuesPB");
        auto* const values = fixture.dialog->findChild<Widget_Attributes*>();
        fixture.recorder.clear();
        Q_EMIT values->send_attribute_list(List{{".net", "gnd"}});
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::AttributeMap});
        QCOMPARE(fixture.recorder.last(Sent::AttributeMap).attributes, (Map{{".net", "gnd"}}));
        Q_EMIT values->send_attribute_signal();
        QCOMPARE(fixture.recorder.codes(),
                 (QVector<int>{Sent::AttributeMap, Sent::SelectFromEditor}));
        const Recorder::Entry sent = fixture.recorder.last(Sent::SelectFromEditor);
        QCOMPARE(sent.message.sender, ModuleNames::ruleMenu);
        QCOMPARE(sent.message.receiver, ModuleNames::viewer);
        QVERIFY(sent.message.payload.isEmpty());
        QCOMPARE(sent.message.extra, qint64(0));
        QCOMPARE(sent.sender, static_cast<void*>(&fixture.window));
    }
};

CTS_TEST(TestAttributes);
#include "test_attributes.moc"
