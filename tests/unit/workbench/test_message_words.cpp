// The words of a session's "send" step.

#include "Main.h"
#include "messages/MessageWords.h"
#include "plugin/MessageCodes.h"
#include "plugin/PayloadKeys.h"

namespace Accepted = MessageCodes::Accepted;

class TestMessageWords : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void payload()
    {
        const HostMessage message =
            MessageWords::read({"20002400", "JobName=a=b", "Empty=", "A:B:text=c", "N:int=-7",
                                "D:decimal=0.5", "T:bool=true", "F:bool=false"});
        QCOMPARE(message.code, Accepted::JobOpened);
        const QMap<QString, QVariant> expected{{PayloadKeys::jobName, QString("a=b")},
                                               {"Empty", QString("")},
                                               {"A:B", QString("c")},
                                               {"N", -7},
                                               {"D", 0.5},
                                               {"T", true},
                                               {"F", false}};
        QCOMPARE(message.payload, expected);
        for (auto entry = expected.begin(); entry != expected.end(); ++entry) {
            QCOMPARE(message.payload[entry.key()].userType(), entry->userType());
        }
        QCOMPARE(std::get<qint64>(message.extra), qint64(0));
    }

    void objectsInTheExtraWord()
    {
        HostMessage message = MessageWords::read({"20000201", "extra=-3"});
        QCOMPARE(std::get<qint64>(message.extra), qint64(-3));
        message = MessageWords::read({"20002003", "extra:string=demo"});
        QCOMPARE(std::get<std::string>(message.extra), std::string("demo"));
        message = MessageWords::read({"20001811", "extra:symbols=1=r10,2=s20"});
        QVERIFY(std::get<HostMessage::Symbols>(message.extra) ==
                (HostMessage::Symbols{{1, "r10"}, {2, "s20"}}));
        message = MessageWords::read({"20001807", "extra:attributes=.net=gnd,.smd="});
        QVERIFY(std::get<HostMessage::Attributes>(message.extra) ==
                (HostMessage::Attributes{{".net", "gnd"}, {".smd", ""}}));
    }

    void wrong_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("expected");
        const auto entry = [](const char* word) {
            return QString("\"%1\" is not an entry of a message").arg(word);
        };
        QTest::newRow("nothing") << QStringList() << "\"\" is not a message code";
        QTest::newRow("no number") << QStringList("twelve") << "\"twelve\" is not a message code";
        QTest::newRow("too large")
            << QStringList("99999999999") << "\"99999999999\" is not a message code";
        QTest::newRow("no value") << QStringList{"1", "Key"} << entry("Key");
        QTest::newRow("no key") << QStringList{"1", "=v"} << entry("=v");
        QTest::newRow("only a type") << QStringList{"1", ":int=1"} << entry(":int=1");
        QTest::newRow("type") << QStringList{"1", "K:colour=1"} << entry("K:colour=1");
        QTest::newRow("int") << QStringList{"1", "K:int=1.5"} << entry("K:int=1.5");
        QTest::newRow("decimal") << QStringList{"1", "K:decimal=x"} << entry("K:decimal=x");
        QTest::newRow("bool") << QStringList{"1", "K:bool=1"} << entry("K:bool=1");
        QTest::newRow("extra") << QStringList{"1", "extra=x"} << entry("extra=x");
        QTest::newRow("extra type") << QStringList{"1", "extra:list=x"} << entry("extra:list=x");
        QTest::newRow("symbols") << QStringList{"20001811", "extra:symbols=a=r10"}
                                 << entry("extra:symbols=a=r10");
        // An invalid address would crash the program.
        QTest::newRow("number for address")
            << QStringList{"20001811", "extra=77"} << "message 20001811 takes extra:symbols=...";
        QTest::newRow("another object") << QStringList{"20001807", "extra:string=x"}
                                        << "message 20001807 takes extra:attributes=...";
        QTest::newRow("no address")
            << QStringList{"20002003"} << "message 20002003 takes extra:string=...";
        QTest::newRow("object for number") << QStringList{"20000201", "extra:string=x"}
                                           << "message 20000201 takes a number as extra, or none";
    }

    void wrong()
    {
        QFETCH(QStringList, words);
        QFETCH(QString, expected);
        QString error;
        try {
            MessageWords::read(words);
        } catch (const WordError& thrown) {
            error = thrown.text();
        }
        QCOMPARE(error, expected);
    }
};

CTS_TEST(TestMessageWords);
#include "test_message_words.moc"
