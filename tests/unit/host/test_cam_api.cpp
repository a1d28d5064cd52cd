#include "ErrorOf.h"
#include "Main.h"

#include <CamApiStandIn.h>
#include <cam_api.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <stdexcept>

using namespace ZENTRA::API;
using CanvasHost::AttributeKind;
using CanvasHost::Job;

namespace {

struct Identified {
    bool accepted = false;
    symbol_type type = user;
    int a = -7;
    int b = -7;
};

Identified identify(const QString& name, bool arc = false)
{
    Identified result;
    result.accepted = identify_symbol(name.toStdString(), result.type, result.a, result.b, arc);
    return result;
}

std::vector<std::string> specialSymbols(const std::string& job)
{
    std::vector<std::string> names = {"left over"};
    get_special_symbol_names(job, names);
    return names;
}

std::vector<std::string> fonts(const std::string& job)
{
    std::vector<std::string> names = {"left over"};
    get_fonts(job, names);
    return names;
}

using Names = std::vector<std::string>;

Job exampleJob(const std::string& name)
{
    Job job;
    job.name = name;
    job.fonts = {"standard"};
    job.specialSymbols = {name + "_special"};
    job.userSymbols = {name + "_user"};
    return job;
}

/// A job file with one line per key; a test replaces one line with another.
QStringList validFile()
{
    return {
        R"({)",
        R"(  "format": 1,)",
        R"(  "jobs": [)",
        R"(    {)",
        R"(      "name": "demo",)",
        R"(      "steps": ["pcb", "panel"],)",
        R"(      "fonts": ["standard", "simplex"],)",
        R"(      "specialSymbols": ["fiducial"],)",
        R"(      "userSymbols": ["logo", "arrow"],)",
        R"(      "specialTexts": ["$$date", "$$job"],)",
        R"(      "attributes": [)",
        R"(        { "name": "via", "kind": "flag" },)",
        R"(        { "name": "count", "kind": "integer", "choices": [] },)",
        R"(        { "name": "ohm", "kind": "decimal" },)",
        R"(        { "name": "note", "kind": "text" },)",
        R"(        { "name": "side", "kind": "choice", "choices": ["top", "bottom"] })",
        R"(      ])",
        R"(    },)",
        R"(    { "name": "second", "steps": [], "fonts": [], "specialSymbols": [], "userSymbols": [],)",
        R"(      "specialTexts": [], "attributes": [] })",
        R"(  ])",
        R"(})",
    };
}

}  // namespace

class TestCamApi : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void sizesBeyondWhatFits();
    void oddlyWrittenSizes();
    void nonLatinNamesAreRejected();
    void userSymbolsOfTheCurrentJob();
    void overridesReplaceTheOperations();

    void firstJobAddedIsCurrent();
    void sameNameReplacesTheJob();

    void jobFile();
    void emptyJobList();
    void escapedTextsKeepTheirLines();
    void faultyJobFile_data();
    void faultyJobFile();
    void unreadableJobFile();

private:
    QString write(const QByteArray& text);
    QString errorOf(const QString& file);

    QTemporaryDir m_directory;
};

void TestCamApi::init()
{
    QVERIFY(m_directory.isValid());
    CanvasHost::clearJobs();
}

void TestCamApi::cleanup()
{
    CanvasHost::camApiOverrides() = CanvasHost::CamApiOverrides();
}

void TestCamApi::sizesBeyondWhatFits()
{
    const Identified largest = identify("r99999999999");
    QVERIFY(largest.accepted);
    QCOMPARE(largest.a, 2147483647);
    QCOMPARE(largest.b, 2147483647);
    QVERIFY(!identify('r' + QString(400, '9')).accepted);
    QVERIFY(!identify("r0." + QString(400, '0') + '1').accepted);
}

void TestCamApi::oddlyWrittenSizes()
{
    for (const char* const name : {"r10.", "r.5", "r+1", "rnan", "rinf", "r0x10", "r10r10"}) {
        QVERIFY2(!identify(name).accepted, name);
    }
}

void TestCamApi::nonLatinNamesAreRejected()
{
    QVERIFY(!identify(QStringLiteral("r\u0661\u0660")).accepted);
    QVERIFY(!identify(QString::fromUtf8("\u570610")).accepted);
    symbol_type type = unknown;
    int a = 0;
    int b = 0;
    QVERIFY(!identify_symbol(std::string("r10\0", 4), type, a, b, false));
    QVERIFY(!identify_symbol("r10\xff", type, a, b, false));
}

void TestCamApi::userSymbolsOfTheCurrentJob()
{
    CanvasHost::addJob(exampleJob("one"));
    CanvasHost::addJob(exampleJob("two"));

    const Identified own = identify("one_user");
    QVERIFY(own.accepted);
    QCOMPARE(int(own.type), int(user));
    QCOMPARE(own.a, 0);
    QCOMPARE(own.b, 0);
    QVERIFY(!identify("one_user", true).accepted);
    QVERIFY(!identify("two_user").accepted);
    QVERIFY(!identify("one_special").accepted);
    QVERIFY(!identify("ONE_user").accepted);

    QVERIFY(CanvasHost::setCurrentJob("two"));
    QVERIFY(identify("two_user").accepted);
    QVERIFY(!identify("one_user").accepted);
    QVERIFY(identify("r10").accepted);
}

void TestCamApi::overridesReplaceTheOperations()
{
    auto& overrides = CanvasHost::camApiOverrides();
    overrides.identify_symbol = [](const std::string& name, symbol_type& type, int& a, int& b,
                                   bool arc) {
        type = diamond;
        a = int(name.size());
        b = arc;
        return true;
    };
    overrides.get_fonts = [](const std::string&, std::vector<std::string>&) {
        throw std::runtime_error("fonts");
    };
    overrides.get_special_symbol_names = [](const std::string& job, Names& names) {
        names = {"of " + job};
    };

    const Identified found = identify("nonsense", true);
    QVERIFY(found.accepted);
    QCOMPARE(int(found.type), int(diamond));
    QCOMPARE(found.a, 8);
    QCOMPARE(found.b, 1);
    QVERIFY_EXCEPTION_THROWN(fonts("job"), std::runtime_error);
    QCOMPARE(specialSymbols("job"), Names{"of job"});

    overrides = CanvasHost::CamApiOverrides();
    QVERIFY(!identify("nonsense", true).accepted);
    QCOMPARE(fonts("job"), Names());
}

void TestCamApi::firstJobAddedIsCurrent()
{
    QVERIFY(!CanvasHost::currentJob());
    CanvasHost::addJob(exampleJob("one"));
    CanvasHost::addJob(exampleJob("two"));
    QVERIFY(CanvasHost::currentJob());
    QCOMPARE(CanvasHost::currentJob()->name, std::string("one"));

    QVERIFY(CanvasHost::setCurrentJob("two"));
    QVERIFY(!CanvasHost::setCurrentJob("three"));
    QCOMPARE(CanvasHost::currentJob()->name, std::string("two"));

    CanvasHost::clearJobs();
    QVERIFY(!CanvasHost::currentJob());
    QVERIFY(CanvasHost::jobs().empty());
    QVERIFY(!CanvasHost::setCurrentJob("one"));
}

void TestCamApi::sameNameReplacesTheJob()
{
    CanvasHost::addJob(exampleJob("one"));
    CanvasHost::addJob(exampleJob("two"));
    Job changed = exampleJob("one");
    changed.fonts = {"simplex", "duplex"};
    CanvasHost::addJob(changed);

    QCOMPARE(CanvasHost::jobs().size(), size_t(2));
    QCOMPARE(CanvasHost::jobs().front().name, std::string("one"));
    QCOMPARE(CanvasHost::currentJob()->name, std::string("one"));
    QCOMPARE(fonts("one"), (Names{"simplex", "duplex"}));
    QCOMPARE(fonts("two"), Names{"standard"});
    QCOMPARE(specialSymbols("two"), Names{"two_special"});
    QVERIFY(!CanvasHost::findJob("three"));
    QCOMPARE(fonts("three"), Names());
    QCOMPARE(specialSymbols(""), Names());
}

QString TestCamApi::write(const QByteArray& text)
{
    const QString name = m_directory.filePath("jobs.json");
    QFile file(name);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    return isWritten ? name : QString();
}

void TestCamApi::jobFile()
{
    CanvasHost::addJob(exampleJob("old"));
    QVERIFY(CanvasHost::jobFile().isEmpty());
    const QString file = write(validFile().join('\n').toUtf8());
    CanvasHost::loadJobs(file);

    QCOMPARE(CanvasHost::jobFile(), QFileInfo(file).canonicalFilePath());
    QCOMPARE(CanvasHost::jobs().size(), size_t(2));
    const Job* const job = CanvasHost::currentJob();
    QVERIFY(job);
    QCOMPARE(job->name, std::string("demo"));
    QCOMPARE(job->steps, (Names{"pcb", "panel"}));
    QCOMPARE(fonts("demo"), (Names{"standard", "simplex"}));
    QCOMPARE(specialSymbols("demo"), Names{"fiducial"});
    QCOMPARE(job->userSymbols, (Names{"logo", "arrow"}));
    QCOMPARE(job->specialTexts, (Names{"$$date", "$$job"}));
    QVERIFY(identify("logo").accepted);

    const std::vector<std::pair<std::string, AttributeKind>> expected = {
        {"via", AttributeKind::Flag},    {"count", AttributeKind::Integer},
        {"ohm", AttributeKind::Decimal}, {"note", AttributeKind::Text},
        {"side", AttributeKind::Choice},
    };
    QCOMPARE(job->attributes.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i) {
        QCOMPARE(job->attributes[i].name, expected[i].first);
        QVERIFY(job->attributes[i].kind == expected[i].second);
    }
    QCOMPARE(job->attributes.back().choices, (Names{"top", "bottom"}));
    QCOMPARE(job->attributes.front().choices, Names());

    QVERIFY(CanvasHost::findJob("second"));
    QVERIFY(CanvasHost::findJob("second")->attributes.empty());
    QVERIFY(!CanvasHost::findJob("old"));
}

void TestCamApi::emptyJobList()
{
    CanvasHost::addJob(exampleJob("old"));
    CanvasHost::loadJobs(write(R"({"format":1,"jobs":[]})"));
    QVERIFY(CanvasHost::jobs().empty());
    QVERIFY(!CanvasHost::currentJob());
}

void TestCamApi::escapedTextsKeepTheirLines()
{
    QStringList lines = validFile();
    lines[8] = R"(      "userSymbols": ["br]ack}et", "quo\"te\\", "\u5706", "a,b:c"],)";
    lines[9] = R"(      "special\u0054exts": [1.5e+3],)";
    QVERIFY(errorOf(write(lines.join('\n').toUtf8())) != "accepted");
    QVERIFY(errorOf(write(lines.join("\r\n").toUtf8())).contains(":10: an entry of"));

    lines[9] = R"(      "special\u0054exts": ["$$x"],)";
    CanvasHost::loadJobs(write(lines.join("\r\n").toUtf8()));
    QCOMPARE(CanvasHost::currentJob()->userSymbols,
             (Names{"br]ack}et", "quo\"te\\", "\u5706", "a,b:c"}));
    QCOMPARE(CanvasHost::currentJob()->specialTexts, Names{"$$x"});
}

void TestCamApi::faultyJobFile_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<QString>("reason");

    const struct {
        const char* name;
        int line;
        const char* replacement;
        const char* reason;
    } rows[] = {
        {"malformed", 7, R"("fonts": ["standard" "simplex"],)", ""},
        {"format missing", 2, "", R"("format" is missing)"},
        {"format too new", 2, R"("format": 2,)", R"("format" must be 1)"},
        {"format no number", 2, R"("format": "1",)", R"("format" must be a number)"},
        {"key repeated", 6, R"("name": "pcb", "steps": [],)",
         R"("name" appears twice in one object)"},
        {"name empty", 5, R"("name": "",)", R"("name" must not be empty)"},
        {"name no string", 5, R"("name": 5,)", R"("name" must be a string)"},
        {"job name repeated", 5, R"("name": "second",)", R"("second" appears twice)"},
        {"steps no array", 6, R"("steps": "pcb",)", R"("steps" must be an array)"},
        {"step empty", 6, R"("steps": ["pcb", ""],)", R"(an entry of "steps" must not be empty)"},
        {"step repeated", 6, R"("steps": ["pcb", "pcb"],)", R"("pcb" appears twice)"},
        {"font null", 7, R"("fonts": [null],)", R"(an entry of "fonts" must be a string)"},
        {"special symbol repeated", 8, R"("specialSymbols": ["a", "b", "a"],)",
         R"("a" appears twice)"},
        {"user symbol is an object", 9, R"("userSymbols": [{"name": "logo"}],)",
         R"(an entry of "userSymbols" must be a string)"},
        {"special text is true", 10, R"("specialTexts": [true],)",
         R"(an entry of "specialTexts" must be a string)"},
        {"attribute no object", 12, R"("via",)", R"(an entry of "attributes" must be an object)"},
        {"attribute name missing", 12, R"({ "kind": "flag" },)", R"("name" is missing)"},
        {"attribute name empty", 12, R"({ "name": "", "kind": "flag" },)",
         R"("name" must not be empty)"},
        {"attribute name repeated", 13, R"({ "name": "via", "kind": "integer" },)",
         R"("via" appears twice)"},
        {"attribute kind missing", 14, R"({ "name": "ohm" },)", R"("kind" is missing)"},
        {"attribute kind unknown", 14, R"({ "name": "ohm", "kind": "Decimal" },)",
         R"("kind" is not one of flag, integer, decimal, text, choice)"},
        {"choices missing", 16, R"({ "name": "side", "kind": "choice" })",
         R"("choices" is missing)"},
        {"choices empty", 16, R"({ "name": "side", "kind": "choice", "choices": [] })",
         R"("choices" must not be empty)"},
        {"choices of a text", 15, R"({ "name": "note", "kind": "text", "choices": ["a"] },)",
         R"("choices" belongs to the kind "choice" only)"},
        {"choice repeated", 16, R"({ "name": "side", "kind": "choice", "choices": ["a", "a"] })",
         R"("a" appears twice)"},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.name) << row.line << row.replacement << row.reason;
    }
    for (int line : {5, 6, 7, 8, 9, 10}) {
        const QString key = validFile().at(line - 1).section('"', 1, 1);
        QTest::newRow(qPrintable("missing " + key))
            << line << QString() << QStringLiteral("\"%1\" is missing").arg(key);
    }
}

void TestCamApi::faultyJobFile()
{
    QFETCH(int, line);
    QFETCH(QString, replacement);
    QFETCH(QString, reason);

    CanvasHost::addJob(exampleJob("old"));
    QStringList lines = validFile();
    lines[line - 1] = replacement;
    const QString file = write(lines.join('\n').toUtf8());

    // A missing key is reported where its object starts, a repeated job name where it is repeated.
    int expectedLine = line;
    if (replacement.isEmpty()) {
        expectedLine = line == 2 ? 1 : 4;
    } else if (replacement.contains("second")) {
        expectedLine = 19;
    }
    const QString error = ::errorOf([&] { CanvasHost::loadJobs(file); });
    const QString place = QStringLiteral("%1:%2: ").arg(file).arg(expectedLine);
    QVERIFY2(error.startsWith(place) && error.size() > place.size(), qPrintable(error));
    if (!reason.isEmpty()) {
        QCOMPARE(error, place + reason);
    }
    QCOMPARE(CanvasHost::jobs().size(), size_t(1));
    QCOMPARE(CanvasHost::currentJob()->name, std::string("old"));
}

QString TestCamApi::errorOf(const QString& file)
{
    const QString error = ::errorOf([&] { CanvasHost::loadJobs(file); });
    return error.isEmpty() ? "accepted" : error.mid(file.size());
}

void TestCamApi::unreadableJobFile()
{
    CanvasHost::addJob(exampleJob("old"));
    QVERIFY(errorOf(m_directory.filePath("absent.json")).startsWith(": "));
    QVERIFY(errorOf(m_directory.path()).startsWith(": "));
    QVERIFY(errorOf(write("")).startsWith(":1: "));
    QVERIFY(errorOf(write("{\n\"format\": 1,\n\n")).startsWith(":4: "));
    QCOMPARE(errorOf(write("\n\n[]")), QString(":3: the document must be an object"));
    QCOMPARE(errorOf(write("\n{}")), QString(":2: \"format\" is missing"));
    QCOMPARE(errorOf(write("{\"format\": 1}")), QString(":1: \"jobs\" is missing"));
    QCOMPARE(errorOf(write("{\"format\": 1,\n\"jobs\": {}}")),
             QString(":2: \"jobs\" must be an array"));
    QCOMPARE(errorOf(write("{\"format\": 1,\n\"jobs\": [\n3]}")),
             QString(":3: an entry of \"jobs\" must be an object"));
    QCOMPARE(CanvasHost::currentJob()->name, std::string("old"));
}

CTS_TEST(TestCamApi);
#include "test_cam_api.moc"
