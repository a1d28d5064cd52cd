// What the workbench reads from its command line, and writes: message records and pictures.

#include "ErrorOf.h"
#include "Main.h"
#include "messages/MessageNames.h"
#include "messages/MessageRecord.h"
#include "messages/WindowPicture.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/RecordKeys.h"
#include "session/Reach.h"
#include "window/Options.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QWidget>

#include <memory>
#include <vector>

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

/// By the names that the monitor shows for messages to `receiver`.
QMap<QString, int> namedCodes(const QVector<int>& all, const QString& receiver)
{
    QMap<QString, int> codes;
    for (const int code : all) {
        codes.insert(MessageNames::name(receiver, code), code);
    }
    return codes;
}

Options parsed(const QStringList& arguments)
{
    return Options::parse(QStringList("workbench") + arguments);
}

}  // namespace

class TestWorkbench : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyCodeHasItsName()
    {
        QCOMPARE(namedCodes(MessageCodes::Sent::all(), ModuleNames::viewer), codesOf("Sent"));
        QVector<int> accepted;
        for (const QVector<int>& group : MessageNames::accepted()) {
            accepted += group;
        }
        QCOMPARE(accepted.size(), 23);
        QCOMPARE(namedCodes(accepted, ModuleNames::toolStrip), codesOf("Accepted"));
        QVERIFY(codesOf("Sent").size() > 40);
        QCOMPARE(codesOf("Accepted").size(), 23);
    }

    void everyCodeHasATextInEachLanguage()
    {
        using namespace MessageCodes;
        const auto texts = [] {
            QMap<QString, QString> all;
            for (const int code : Sent::all()) {
                all.insert(Sent::nameOf(code), MessageNames::text(ModuleNames::viewer, code));
            }
            for (const int code : Accepted::all()) {
                all.insert(QString("accepted ") + Accepted::nameOf(code),
                           MessageNames::text(ModuleNames::toolStrip, code));
            }
            return all;
        };
        const QMap<QString, QString> english = texts();
        QCOMPARE(english["AddFeatureStarted"], QString("Add Feature Started"));
        QCOMPARE(english["DirectionRecord"], QString("Feature Record (Direction)"));
        QCOMPARE(english["accepted AddFeatureActive"], QString("Add Feature Is Active"));
        QTranslator translator;
        QVERIFY(translator.load("workbench_zh_CN", TRANSLATION_DIR));
        QCoreApplication::installTranslator(&translator);
        const QMap<QString, QString> chinese = texts();
        QCoreApplication::removeTranslator(&translator);
        for (auto text = english.begin(); text != english.end(); ++text) {
            QVERIFY2(!text->isEmpty(), qPrintable(text.key()));
            QVERIFY2(chinese[text.key()] != *text || *text == "EQ", qPrintable(text.key()));
        }
    }

    void record()
    {
        const std::map<std::string, std::string> attributes{{".net", "gnd"}};
        PluginMetaData message(ModuleNames::toolStrip, ModuleNames::viewer);
        message.code = Sent::AttributeMap;
        message.payload = {{RecordKeys::features, FeatureKind::pad.toInt()},
                           {RecordKeys::line, LineKind::single}};
        message.extra = ExtraWord::pointingAt(attributes);
        const MessageRecord record = MessageRecord::of({nullptr, message, true, {}});
        const QJsonObject json = QJsonDocument::fromJson(record.toJson()).object();
        QCOMPARE(json["code"].toInt(), int(Sent::AttributeMap));
        QCOMPARE(json["name"].toString(), QString("AttributeMap"));
        QCOMPARE(json["sender"].toString(), ModuleNames::toolStrip);
        QCOMPARE(json["delivered"].toBool(), true);
        QCOMPARE(json["attributes"].toObject()[".net"].toString(), QString("gnd"));
        const QJsonObject payload = json["payload"].toObject();
        QCOMPARE(payload[RecordKeys::features].toObject()["type"].toString(), QString("integer"));
        QCOMPARE(payload[RecordKeys::features].toObject()["value"],
                 QJsonValue(FeatureKind::pad.toInt()));
        QCOMPARE(payload[RecordKeys::line].toObject()["type"].toString(), QString("text"));
        QCOMPARE(payload[RecordKeys::line].toObject()["value"], QJsonValue(LineKind::single));
        QVERIFY(!record.toJson().contains('\n'));
    }

    void timeOfARecordCanBeGiven()
    {
        const auto time = [](const char* seconds) {
            qputenv("SOURCE_DATE_EPOCH", seconds);
            const MessageRecord record = MessageRecord::of(
                {nullptr, PluginMetaData(ModuleNames::toolStrip, ModuleNames::viewer), true, {}});
            qunsetenv("SOURCE_DATE_EPOCH");
            return QJsonDocument::fromJson(record.toJson()).object()["time"].toString();
        };
        QCOMPARE(time("86400"), QString("1970-01-02T00:00:00.000Z"));
        QVERIFY(time("today") > "2000");
    }

    void activeWindowIsOnTopInAPicture()
    {
        QWidget below;
        below.setGeometry(0, 0, 40, 40);
        below.show();
        std::vector<std::unique_ptr<QWidget>> windows;
        for (const char* const name : {"a", "b", "c", "d", "e", "f", "g", "h"}) {
            windows.push_back(std::make_unique<QWidget>());
            windows.back()->setObjectName(name);
            windows.back()->setGeometry(10, 10, 20, 20);
            windows.back()->setPalette(QColor(int(windows.size()) * 20, 0, 0));
            windows.back()->show();
            QVERIFY(QTest::qWaitForWindowActive(windows.back().get()));
            const QImage picture = pictureOf(&below).toImage();
            QCOMPARE(qRed(picture.pixel(20, 20)), int(windows.size()) * 20);
        }
        // Of the others the last by name.
        below.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&below));
        QCOMPARE(qRed(pictureOf(&below).toImage().pixel(20, 20)), 160);
    }

    void aPictureOfNoFormatLeavesTheFileAlone()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("notes.txt");
        QFile notes(file);
        QVERIFY(notes.open(QIODevice::ReadWrite));
        QVERIFY(notes.write("words") > 0 && notes.flush());
        QPixmap picture(8, 8);
        picture.fill(Qt::white);
        QCOMPARE(errorOf([&] { savePicture(picture, file); }),
                 file + ": the picture cannot be written");
        QVERIFY(notes.seek(0));
        QCOMPARE(notes.readAll(), QByteArray("words"));
        QCOMPARE(errorOf([&] { savePicture(picture, folder.filePath("a.png")); }), QString());
        QCOMPARE(QImage(folder.filePath("a.png")).size(), picture.size());
    }

    void options()
    {
        const Options options =
            parsed({"--modules", "m", "--job", "j", "--trace", "t", "--screenshot", "s.png",
                    "--play", "p", "--exit", "--unit", "mm", "--language", "zh_CN"});
        QCOMPARE(options.answer, QString());
        QVERIFY(!options.log);
        QCOMPARE(options.moduleDirectory, QString("m"));
        QCOMPARE(options.jobFile, QString("j"));
        QCOMPARE(options.traceFile, QString("t"));
        QCOMPARE(options.screenshotFile, QString("s.png"));
        QCOMPARE(options.sessionFile, QString("p"));
        QVERIFY(options.exit);
        QCOMPARE(options.file, QString());
        QCOMPARE(parsed({"--exit", "a.json"}).file, QString("a.json"));
        QCOMPARE(options.unit, CanvasHost::DisplayUnit::Millimetre);
        QCOMPARE(options.language, QString("zh_CN"));
        const QString help = parsed({"--help"}).answer;
        for (const char* const option : {"--modules", "--job", "--trace", "--screenshot", "--play",
                                         "--exit", "--unit", "--language"}) {
            QVERIFY2(help.contains(option), option);
        }
    }

    void aLengthReadsTheSameEverywhere()
    {
        for (const CanvasHost::LengthUnit& unit : CanvasHost::lengthUnits()) {
            const QString name = unit.name;
            QCOMPARE(parsed({"--unit", name}).unit, unit.unit);
            const double micrometres = Reach::length("2.5" + name);
            QCOMPARE(micrometres, 2.5 * unit.micrometres);
            CanvasHost::setDisplayUnit(unit.unit);
            const QString read = CanvasHost::lengthText(micrometres);
            QCOMPARE(read, QString::number(2.5, 'f', unit.decimals) + " " + name);
            QCOMPARE(Reach::length(QString(read).remove(' ')), 2.5 * unit.micrometres);
        }
        CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Mil);
    }

    void optionsOfQtArePassedOver()
    {
        const Options options =
            parsed({"-platform", "offscreen", "-style=fusion", "-reverse", "--play", "p"});
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
        QTest::newRow("extra") << QStringList{"board.json", "extra"} << "extra";
    }

    void wrongOptions()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, names);
        const QString error = errorOf([&] { parsed(arguments); });
        QVERIFY2(error.startsWith("workbench: ") && error.contains(names), qPrintable(error));
        QVERIFY2(error.endsWith("; see --help"), qPrintable(error));
        QVERIFY(!error.contains('\n'));
    }

    void version()
    {
        QVERIFY(QRegularExpression("^workbench \\d+\\.\\d+\\.\\d+\n$")
                    .match(parsed({"--version"}).answer)
                    .hasMatch());
    }
};

CTS_TEST(TestWorkbench);
#include "test_workbench.moc"
