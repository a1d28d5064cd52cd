#include "Main.h"
#include "SampleBoard.h"
#include "board/BoardFile.h"

#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Pcb;

namespace {

const char* const oneLine =
    R"({"kind":"line","points":[[0,0],[1000,0.5]],"polarity":"positive","symbol":"r10"})";

QByteArray document(const QByteArray& feature)
{
    return "{\n\"format\": 1,\n\"job\": \"demo\",\n\"step\": \"pcb\",\n\"outline\": [],\n"
           "\"features\": [\n" +
           feature + "\n]\n}\n";
}

QString readingError(const QByteArray& text)
{
    return errorOf([&text] { fromJson(text); });
}

void write(const QString& file, const QByteArray& content)
{
    QFile device(file);
    QVERIFY(device.open(QIODevice::WriteOnly));
    device.write(content);
}

QByteArray contentOf(const QString& file)
{
    QFile device(file);
    return device.open(QIODevice::ReadOnly) ? device.readAll() : QByteArray("missing");
}

}  // namespace

class TestBoardFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void boardsComeBackAsTheyWere()
    {
        Board board = sampleBoard();
        board.job = QStringLiteral("\"quoted\"\n\u00fcn\u00efcode");
        const Board read = fromJson(toJson(board));
        QVERIFY(read == board);
        QCOMPARE(toJson(read), toJson(board));
        QVERIFY(fromJson(toJson(Board())) == Board());
    }

    void aFeatureIsALine()
    {
        Board board;
        board.features = {Feature(lineGeometry(QStringLiteral("r10"), {0, 0}, {1000, 0.5}))};
        const QByteArray text = toJson(board);
        QVERIFY(text.contains(QByteArray("\n    ") + oneLine + '\n'));
    }

    void everyTruncationIsAnErrorWithItsLine()
    {
        const QByteArray whole = toJson(sampleBoard());
        const QByteArray text = whole.left(whole.lastIndexOf('}') + 1);
        const QRegularExpression pattern(QStringLiteral("\\A[1-9][0-9]*: .+"));
        const int lines = text.count('\n') + 1;
        for (int size = 0; size < text.size(); ++size) {
            const QString error = readingError(text.left(size));
            QVERIFY2(pattern.match(error).hasMatch(), qPrintable(error));
            QVERIFY(error.section(QLatin1Char(':'), 0, 0).toInt() <= lines);
        }
    }

    void everyDamagedByteIsReadOrReported()
    {
        int reported = 0;
        const QByteArray text = document(oneLine);
        for (int place = 0; place < text.size(); ++place) {
            for (const char damage : {'\0', '"', '}', '9', '\xff', '-', '['}) {
                QByteArray damaged = text;
                damaged[place] = damage;
                reported += readingError(damaged) != QLatin1String("none") ? 1 : 0;
            }
        }
        QVERIFY(reported > text.size());
    }

    void mistakesAreNamed_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("error");
        const auto row = [](const char* name, const QByteArray& text, const char* error) {
            QTest::newRow(name) << text << QString::fromLatin1(error);
        };
        const auto replaced = [](const char* what, const char* by) {
            return document(QByteArray(oneLine).replace(what, by));
        };
        row("array", "[]", "1: the document must be an object");
        row("format", document(oneLine).replace("1,\n\"job", "2,\n\"job"),
            "2: \"format\" must be 1");
        row("format text", document(oneLine).replace("1,\n\"job", "\"1\",\n\"job"),
            "2: \"format\" must be a number");
        row("no job", document(oneLine).replace("\"job\": \"demo\",\n", ""),
            "1: \"job\" is missing");
        row("unknown", document(oneLine).replace("\"step\"", "\"steps\""),
            "4: \"steps\" does not belong to the document");
        row("twice", document(oneLine).replace("\"step\"", "\"job\""),
            "4: \"job\" appears twice in one object");
        row("kind", replaced("\"line\"", "\"blob\""),
            "7: \"kind\" is not one of line, pad, surface, arc, text");
        row("no object", document("7"), "7: an entry of \"features\" must be an object");
        row("foreign key", replaced("\"symbol\"", "\"clockwise\":true,\"symbol\""),
            "7: \"clockwise\" does not belong to an entry of \"features\"");
        row("no symbol", replaced("\"r10\"", "\"\""), "7: \"symbol\" must not be empty");
        row("points", replaced("[[0,0],[1000,0.5]]", "[[0,0]]"),
            "7: \"points\" must be 2 in number, not 1");
        row("pair", replaced("[1000,0.5]", "[1000]"),
            "7: an entry of \"points\" must be a pair of numbers");
        row("far", replaced("1000", "1e8"),
            "7: an entry of an entry of \"points\" must be from -1e+07 to 1e+07");
        row("null", replaced("1000", "null"),
            "7: an entry of an entry of \"points\" must be a number");
        row("polarity", replaced("\"positive\"", "\"up\""),
            "7: \"polarity\" is not one of negative, positive");
        row("attribute", replaced("\"symbol\"", "\"attributes\":{\".net\":3},\"symbol\""),
            "7: \".net\" must be a string");
        row("scale",
            document(R"({"kind":"pad","polarity":"positive","points":[[0,0]],"symbol":"r1",)"
                     R"("rotation":0,"mirror":false,"xScale":0,"yScale":1})"),
            "7: \"xScale\" must not be 0");
        row("text",
            document(R"({"kind":"text","polarity":"positive","points":[[0,0]],"rotation":0,)"
                     "\"mirror\":false,\n\"text\":{\"format\":\"string\",\"content\":\"a\","
                     "\"xSize\":0}}"),
            "8: \"xSize\" must be more than 0");
        row("deep", QByteArray(100000, '['), "1: too deeply nested document");
    }

    void mistakesAreNamed()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, error);
        QCOMPARE(readingError(text), error);
    }

    void filesAreReadAndWritten()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("board.json"));
        const Board board = sampleBoard();
        writeBoardFile(board, file);
        QVERIFY(readBoardFile(file) == board);
        write(file, document("7"));
        QCOMPARE(errorOf([&] { readBoardFile(file); }),
                 file + QStringLiteral(":7: an entry of \"features\" must be an object"));
        const QString missing = folder.filePath(QStringLiteral("missing.json"));
        QVERIFY(errorOf([&] { readBoardFile(missing); }).startsWith(missing + ": "));
        QVERIFY(errorOf([&] { readBoardFile(folder.path()); }).startsWith(folder.path() + ": "));
    }

    void aFailingSaveLeavesTheOldFile()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("board.json"));
        write(file, "old");
        // The temporary file used until all is written has a longer name: too long.
        const QString longName = folder.filePath(QString(250, QLatin1Char('n')));
        write(longName, "old");
        QVERIFY(errorOf([&] {
                    writeBoardFile(sampleBoard(), longName);
                }).startsWith(longName + QStringLiteral(": ")));
        QCOMPARE(contentOf(longName), QByteArray("old"));
        const QString homeless = folder.filePath(QStringLiteral("no/folder.json"));
        QVERIFY(errorOf([&] {
                    writeBoardFile(sampleBoard(), homeless);
                }).startsWith(homeless + QStringLiteral(": ")));
        QCOMPARE(contentOf(file), QByteArray("old"));
    }
};

CTS_TEST(TestBoardFile);
#include "test_board_file.moc"
