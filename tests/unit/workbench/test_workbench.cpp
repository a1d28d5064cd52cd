// What the workbench reads (options, sessions) and writes (message records).

#include "Main.h"
#include "messages/MessageNames.h"
#include "messages/MessageRecord.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/RecordKeys.h"
#include "session/SessionParser.h"
#include "window/Options.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace Sent = MessageCodes::Sent;

namespace {

/// The constants of one namespace of the header, by name.
QMap<QString, int> codesOf(const QString& space)
{
    QFile file(QStringLiteral(SOURCE_DIR "/plugin/MessageCodes.h"));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s", qPrintable(file.errorString()));
    }
    const QString text = QString::fromUtf8(file.readAll());
    const QString begin = "namespace " + space + " {";
    const QString body = text.section(begin, 1).section("}  // namespace", 0, 0);
    QMap<QString, int> codes;
    auto match = QRegularExpression("^    (\\w+) = (-?\\d+)", QRegularExpression::MultilineOption)
                     .globalMatch(body);
    while (match.hasNext()) {
        const auto one = match.next();
        codes.insert(one.captured(1), one.captured(2).toInt());
    }
    return codes;
}

QMap<QString, int> codesOf(const std::vector<MessageNames::Row>& rows)
{
    QMap<QString, int> codes;
    for (const MessageNames::Row& row : rows) {
        codes.insert(row.name, row.code);
    }
    return codes;
}

Options parsed(const QStringList& arguments, QString* error, QString* help)
{
    return Options::parse(QStringList("workbench") + arguments, error, help);
}

}  // namespace

class TestWorkbench : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyCodeHasItsName()
    {
        QCOMPARE(codesOf(MessageNames::sent()), codesOf("Sent"));
        QCOMPARE(codesOf(MessageNames::accepted()), codesOf("Accepted"));
        QVERIFY(codesOf("Sent").size() > 40);
        QCOMPARE(codesOf("Accepted").size(), 23);
    }

    void record()
    {
        const std::map<std::string, std::string> attributes{{".net", "gnd"}};
        PluginMetaData message("Canvas_Tool_Strip.dll", "Canvas_Viewer.dll");
        message.code = Sent::AttributeMap;
        message.payload = {{RecordKeys::features, FeatureKind::pad.toInt()},
                           {RecordKeys::line, LineKind::single}};
        message.extra = ExtraWord::pointingAt(attributes);
        const MessageRecord record = MessageRecord::of({nullptr, message, true});
        const QJsonObject json = QJsonDocument::fromJson(record.toJson()).object();
        QCOMPARE(json["code"].toInt(), 51);
        QCOMPARE(json["name"].toString(), QString("AttributeMap"));
        QCOMPARE(json["sender"].toString(), QString("Canvas_Tool_Strip.dll"));
        QCOMPARE(json["delivered"].toBool(), true);
        QCOMPARE(json["attributes"].toObject()[".net"].toString(), QString("gnd"));
        const QJsonObject payload = json["payload"].toObject();
        QCOMPARE(payload[RecordKeys::features].toObject()["type"].toString(), QString("integer"));
        QCOMPARE(payload[RecordKeys::features].toObject()["value"], QJsonValue(2));
        QCOMPARE(payload[RecordKeys::line].toObject()["type"].toString(), QString("text"));
        QCOMPARE(payload[RecordKeys::line].toObject()["value"], QJsonValue("1"));
        QVERIFY(!record.toJson().contains('\n'));
    }

    void options()
    {
        QString error;
        QString help;
        const Options options =
            parsed({"--modules", "m", "--job", "j", "--trace", "t", "--screenshot", "s.png",
                    "--play", "p", "--exit", "--unit", "mm", "--language", "zh_CN"},
                   &error, &help);
        QCOMPARE(error, QString());
        QCOMPARE(options.moduleDirectory, QString("m"));
        QCOMPARE(options.jobFile, QString("j"));
        QCOMPARE(options.traceFile, QString("t"));
        QCOMPARE(options.screenshotFile, QString("s.png"));
        QCOMPARE(options.sessionFile, QString("p"));
        QVERIFY(options.exit);
        QCOMPARE(options.unit, CanvasHost::DisplayUnit::Millimetre);
        QCOMPARE(options.language, QString("zh_CN"));
        parsed({"--help"}, &error, &help);
        for (const char* const option : {"--modules", "--job", "--trace", "--screenshot", "--play",
                                         "--exit", "--unit", "--language"}) {
            QVERIFY2(help.contains(option), option);
        }
    }

    void optionsOfQtArePassedOver()
    {
        QString error;
        QString help;
        const Options options = parsed(
            {"-platform", "offscreen", "-style=fusion", "-reverse", "--play", "p"}, &error, &help);
        QCOMPARE(error, QString());
        QCOMPARE(options.sessionFile, QString("p"));
    }

    void wrongOptions_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("names");
        QTest::newRow("unknown") << QStringList("--bogus") << "bogus";
        QTest::newRow("single dash") << QStringList("-bogus") << "bogus";
        QTest::newRow("Qt's help") << QStringList("--help-all") << "help-all";
        QTest::newRow("text for a font size") << QStringList{"--font-size", "big"} << "big";
        QTest::newRow("value for a flag") << QStringList("--exit=3") << "exit";
        QTest::newRow("no value") << QStringList("--job") << "job";
        QTest::newRow("unit") << QStringList{"--unit", "foot"} << "foot";
        QTest::newRow("language") << QStringList{"--language", "fr"} << "fr";
        QTest::newRow("font size") << QStringList{"--font-size", "3"} << "3";
        QTest::newRow("extra") << QStringList("extra") << "extra";
    }

    void wrongOptions()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, names);
        QString error;
        QString help;
        parsed(arguments, &error, &help);
        QVERIFY2(error.contains(names), qPrintable(error));
        QVERIFY(help.isEmpty());
        QVERIFY(!error.contains('\n'));
    }

    void sessions()
    {
        Session session;
        session.file = "demo";
        QString error;
        QVERIFY2(SessionParser::read("# comment\n\nclick m_pLineTB  # the first\n"
                                     "type m_pTextLE \"two words # no comment\"\n"
                                     "rightclick m_pMarkTB 'Mark Orthogonal'\n"
                                     "send 20002400 JobName=demo StepName=pcb\n",
                                     &session, &error),
                 qPrintable(error));
        QCOMPARE(int(session.steps.size()), 4);
        QCOMPARE(session.steps[0].line, 3);
        QCOMPARE(session.steps[0].command, QString("click"));
        QCOMPARE(session.steps[0].arguments, QStringList("m_pLineTB"));
        QCOMPARE(session.steps[1].arguments, (QStringList{"m_pTextLE", "two words # no comment"}));
        QCOMPARE(session.steps[2].arguments, (QStringList{"m_pMarkTB", "Mark Orthogonal"}));
    }

    void wrongSessions_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("error");
        QTest::newRow("unknown step") << "click a\njump b\n"
                                      << "demo:2: unknown step \"jump\"";
        QTest::newRow("too few words") << "click\n"
                                       << "demo:1: ";
        QTest::newRow("too many words") << "click a 1 2 3\n"
                                        << "demo:1: ";
        QTest::newRow("position") << "click a x y\n"
                                  << "demo:1: a position is";
        QTest::newRow("open quote") << "\ntype a \"b\n"
                                    << "demo:2: ";
        QTest::newRow("key") << "key a NoSuchKey\n"
                             << "demo:1: \"NoSuchKey\" is no key";
        QTest::newRow("code") << "send twelve\n"
                              << "demo:1: ";
        QTest::newRow("time") << "wait -1\n"
                              << "demo:1: \"-1\" is no time";
        QTest::newRow("picture") << "picture a.xyz\n"
                                 << "demo:1: \"a.xyz\" does not end";
        QTest::newRow("box") << "box refuse\n"
                             << "demo:1: \"refuse\" is no answer";
    }

    void wrongSessions()
    {
        QFETCH(QString, text);
        QFETCH(QString, error);
        Session session;
        session.file = "demo";
        QString actual;
        QVERIFY(!SessionParser::read(text, &session, &actual));
        QVERIFY2(actual.startsWith(error), qPrintable(actual));
        QVERIFY(!actual.contains('\n'));
    }

    void absentSession()
    {
        Session session;
        QString error;
        QVERIFY(!SessionParser::readFile("/nowhere/at.all", &session, &error));
        QVERIFY2(error.startsWith("/nowhere/at.all: "), qPrintable(error));
    }
};

CTS_MAIN(TestWorkbench)
#include "test_workbench.moc"
