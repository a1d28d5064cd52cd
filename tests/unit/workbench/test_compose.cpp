// The dialog that composes a message: what it sends, and how it names what is wrong.

#include "FindChild.h"
#include "Main.h"
#include "compose/ComposeDialog.h"
#include "messages/HostState.h"
#include "messages/MessageLog.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"

#include <PluginManagerStandIn.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>

namespace Accepted = MessageCodes::Accepted;

class TestCompose : public QObject {
    Q_OBJECT

    std::unique_ptr<QWidget> m_window;
    HostState* m_host = nullptr;  // the window owns it
    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<ComposeDialog> m_dialog;
    char m_strip = 0;  // registered with the manager as the tool strip

    static void receive(void*, PluginMetaData) {}

    void code(const QString& text)
    {
        findNamed<QComboBox>(*m_dialog, "m_pComposeCodeCMB").setEditText(text);
    }
    void code(Accepted::Code number) { code(QString::number(number)); }
    void extra(const QString& text)
    {
        findNamed<QLineEdit>(*m_dialog, "m_pComposeExtraLE").setText(text);
    }
    void entry(const QString& key, const QString& type, const QString& value)
    {
        QTest::mouseClick(&findNamed(*m_dialog, "m_pComposeAddPB"), Qt::LeftButton);
        const QString row =
            QString::number(findNamed<QTableWidget>(*m_dialog, "m_pComposePayloadTW").rowCount());
        findNamed<QLineEdit>(*m_dialog, "m_pComposeKeyLE" + row).setText(key);
        chooseItem(findNamed<QComboBox>(*m_dialog, "m_pComposeTypeCMB" + row), type);
        findNamed<QLineEdit>(*m_dialog, "m_pComposeValueLE" + row).setText(value);
    }
    /// Presses Send; returns the errors that are then shown.
    QStringList send()
    {
        QTest::mouseClick(&findNamed(*m_dialog, "m_pComposeSendPB"), Qt::LeftButton);
        QStringList errors;
        for (const char* const name :
             {"m_pComposeCodeErrorLB", "m_pComposePayloadErrorLB", "m_pComposeExtraErrorLB"}) {
            const auto& label = findNamed<QLabel>(*m_dialog, name);
            if (label.isVisible()) {
                errors.append(label.text());
            }
        }
        return errors;
    }
    const MessageRecord& last() { return m_log->messages().back(); }

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_host = new HostState(m_window.get());
        m_log = std::make_unique<MessageLog>();
        m_dialog = std::make_unique<ComposeDialog>(m_host);
        m_dialog->show();
        CanvasHost::addInstance(ModuleNames::toolStrip, &m_strip, &receive);
    }

    void cleanup()
    {
        CanvasHost::removeInstance(&m_strip);
        m_dialog.reset();
        m_log.reset();
        m_window.reset();
    }

    void payloadOfEveryType()
    {
        code(Accepted::JobOpened);
        findNamed<QLineEdit>(*m_dialog, "m_pComposeSenderLE").setText(ModuleNames::jobTree);
        entry("Text", "text", "a b=c");
        entry("Whole", "integer", "-7");
        entry("Decimal", "decimal", "0.5");
        entry("Truth", "truth", "true");
        extra("12");
        QCOMPARE(send(), QStringList());
        QCOMPARE(m_log->messages().size(), size_t(1));
        QCOMPARE(last().sender, ModuleNames::jobTree);
        QCOMPARE(last().receiver, ModuleNames::toolStrip);
        QCOMPARE(last().code, Accepted::JobOpened);
        QCOMPARE(last().extra, qint64(12));
        const QMap<QString, QVariant> expected{
            {"Text", QString("a b=c")}, {"Whole", -7}, {"Decimal", 0.5}, {"Truth", true}};
        QCOMPARE(last().payload, expected);
        for (auto value = expected.begin(); value != expected.end(); ++value) {
            QCOMPARE(last().payload[value.key()].userType(), value->userType());
        }
    }

    void objectsInTheExtraWord()
    {
        code("20002003 JobName");
        extra("demo");
        QCOMPARE(send(), QStringList());
        QCOMPARE(last().pointedAt[""], QString("demo"));
        code(Accepted::SymbolsPicked);
        extra("1=r10,2=s20");
        QCOMPARE(send(), QStringList());
        QCOMPARE(last().pointedAt, (QMap<QString, QString>{{"1", "r10"}, {"2", "s20"}}));
        code(Accepted::AttributesPicked);
        extra(".net=gnd,.smd=");
        QCOMPARE(send(), QStringList());
        QCOMPARE(last().pointedAt, (QMap<QString, QString>{{".net", "gnd"}, {".smd", ""}}));
    }

    void mistakesAreNamedInPlace()
    {
        code("move");
        entry("", "text", "x");
        entry("N", "integer", "1.5");
        QCOMPARE(send(),
                 (QStringList{"\"move\" is not a message code", "Row 1: the key is missing"}));
        QVERIFY(!findNamed(*m_dialog, "m_pComposeKeyLE1").toolTip().isEmpty());
        QCOMPARE(findNamed(*m_dialog, "m_pComposeValueLE2").toolTip(),
                 QString("\"1.5\" is not a whole number"));
        code(Accepted::AreaZoom);
        findNamed<QLineEdit>(*m_dialog, "m_pComposeKeyLE1").setText("T");
        chooseItem(findNamed<QComboBox>(*m_dialog, "m_pComposeTypeCMB1"), "truth");
        extra("much");
        QCOMPARE(send(), (QStringList{"Row 1: \"x\" is neither true nor false",
                                      "\"much\" is not a whole number"}));
        QVERIFY(m_log->messages().empty());
    }

    void aWrongAddressIsNeverSent()
    {
        auto& kind = findNamed<QComboBox>(*m_dialog, "m_pComposeExtraCMB");
        code(Accepted::SymbolsPicked);
        QCOMPARE(kind.currentText(), QString("Symbols"));
        chooseItem(kind, "Number");
        extra("77");
        QCOMPARE(send(), QStringList("message 20001811 takes: Symbols"));
        chooseItem(kind, "Symbols");
        extra("a=r10");
        QCOMPARE(send(), QStringList("\"a=r10\" is not a list NUMBER=SYMBOL,..."));
        code(Accepted::AttributesPicked);
        extra("gnd");
        QCOMPARE(send(), QStringList("\"gnd\" is not a list NAME=VALUE,..."));
        QVERIFY(m_log->messages().empty());
    }

    void entriesAreRemoved()
    {
        code(Accepted::JobOpened);
        entry("A", "text", "1");
        entry("B", "text", "2");
        entry("C", "text", "3");
        m_dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
        findNamed(*m_dialog, "m_pComposeValueLE2").setFocus();
        QTest::mouseClick(&findNamed(*m_dialog, "m_pComposeRemovePB"), Qt::LeftButton);
        QCOMPARE(send(), QStringList());
        QCOMPARE(last().payload.keys(), (QStringList{"A", "C"}));
    }
};

CTS_TEST(TestCompose);
#include "test_compose.moc"
