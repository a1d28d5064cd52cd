// Session files that are wrong, or cut anywhere.

#include "ErrorOf.h"
#include "Main.h"
#include "session/SessionParser.h"
#include "session/Steps.h"

#include <QRegularExpression>

namespace {

/// One of each step, with quotes, comments and multi-byte characters.
const char* const full =
    "# Ein St\u00fcck Arbeit\n"
    "click m_pA 1 2\n"
    "doubleclick m_pA\n"
    "rightclick m_pA 3 4 \"Save \\\"all\\\"\"   # a comment\n"
    "press m_pA 1 2 middle\n"
    "move m_pA 3 4\n"
    "release m_pA 3 4 middle\n"
    "wheel m_pA -1.5 3 4\n"
    "canvas click 1.5mm -20\n"
    "canvas wheel 1 2 3\n"
    "type m_pA 'gr\u00f6\u00dfer # als'\n"
    "key m_pA Shift+Tab\n"
    "choose m_pLanguage \u7b80\u4f53\u4e2d\u6587\n"
    "set m_pA b\\ c\n"
    "menu m_pA b\n"
    "close m_pA\n"
    "send 20001811 extra:symbols=1=r10,2=s20\n"
    "picture a.png\n"
    "wait 10\n"
    "box accept \"title=Illegal Input\" text=x\n"
    "expect message 50 to=Canvas_Viewer.dll Features:int=2 extra=0 total=45\n"
    "expect state m_pA checked=true \"text=a b\"\n"
    "expect nothing";

/// The lines of the steps, and how many actions each consists of.
QStringList outline(const Session& session)
{
    QStringList steps;
    for (const SessionStep& step : session.steps) {
        steps.append(QString("%1: %2").arg(step.line).arg(step.actions.size()));
    }
    return steps;
}

}  // namespace

class TestSessionParser : public QObject {
    Q_OBJECT

    static QString read(const QByteArray& bytes, Session* session)
    {
        return errorOf([&] { *session = SessionParser::read(bytes, "demo"); });
    }

private Q_SLOTS:
    void holdsEachStep()
    {
        Session session;
        QCOMPARE(read(full, &session), QString());
        QList<QStringList> lines;
        for (const QString& line : QString::fromUtf8(full).split('\n')) {
            lines.append(SessionParser::split(line));
        }
        QCOMPARE(lines.takeFirst(), QStringList());  // a comment
        QCOMPARE(int(session.steps.size()), lines.size());
        QStringList commands;
        for (const QStringList& words : lines) {
            commands.append(words.first());
        }
        for (const QString& name : Steps::names()) {
            QVERIFY2(commands.contains(name), qPrintable(name));
        }
        QCOMPARE(lines[2], (QStringList{"rightclick", "m_pA", "3", "4", "Save \"all\""}));
        QCOMPARE(lines[9], (QStringList{"type", "m_pA", "gr\u00f6\u00dfer # als"}));
    }

    void eachStepIsDescribed()
    {
        QFile page(SOURCE_DIR "/workbench/docs/sessions.md");
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(page.readAll());
        for (const QString& name : Steps::names()) {
            const bool hasRow = text.contains("\n| `" + name + " ");
            QVERIFY2(hasRow, qPrintable(name));
        }
    }

    void anAbsentFileIsToldByItsName()
    {
        const QString error = errorOf([] { SessionParser::readFile("/nowhere/at.all"); });
        QVERIFY2(error.startsWith("/nowhere/at.all: "), qPrintable(error));
    }

    void cutAtEveryByte()
    {
        Session whole;
        QCOMPARE(read(full, &whole), QString());
        const QByteArray bytes = full;
        for (int size = 0; size < bytes.size(); ++size) {
            const QByteArray cut = bytes.left(size);
            const int lastLine = cut.count('\n') + 1;
            Session session;
            const QString error = read(cut, &session);
            const QString place = QString("demo:%1: ").arg(lastLine);
            QVERIFY2(error.isEmpty() || (error.startsWith(place) && error.size() > place.size()),
                     qPrintable(QString("%1: %2").arg(size).arg(error)));
            // Everything before the line that is cut is unchanged.
            Session before;
            QCOMPARE(read(cut.left(cut.lastIndexOf('\n') + 1), &before), QString());
            QCOMPARE(outline(before), outline(whole).mid(0, int(before.steps.size())));
            QVERIFY(!error.isEmpty() || session.steps.size() - before.steps.size() <= 1);
        }
    }

    void anyByteInAnyPlace()
    {
        // Whatever is there, the file is read or the mistake has a line.
        const QByteArray bytes = full;
        const QRegularExpression place("^demo:[0-9]+: .");
        for (const char other : {'\0', '"', '\'', '\\', '\n', '\xff', '='}) {
            for (int at = 0; at < bytes.size(); ++at) {
                QByteArray changed = bytes;
                changed[at] = other;
                Session session;
                const QString error = read(changed, &session);
                QVERIFY2(error.isEmpty() || error.contains(place), qPrintable(error));
            }
        }
    }

    void wrongSteps_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("reason");
        QTest::newRow("jump") << "jump"
                              << "unknown step \"jump\"; choose from " + Steps::names().join(", ");
        const auto row = [](const char* text, const char* reason) {
            QTest::newRow(text) << QString(text) << QString(reason);
        };
        row("click", "wrong number of words; usage: click NAME [x y]");
        row("click m_pA 1 2 3", "wrong number of words; usage: click NAME [x y]");
        row("click m_pA 1", "a position is two whole numbers: x y");
        row("click m_pA 1 b", "a position is two whole numbers: x y");
        row("rightclick m_pA b c", "a position is two whole numbers: x y");
        row("press m_pA 1 2 thumb", "\"thumb\" is not a button; choose from left, middle, right");
        row("wheel m_pA far", "\"far\" is not a number of notches");
        row("wheel m_pA nan", "\"nan\" is not a number of notches");
        row("wheel m_pA 1 2", "a position is two whole numbers: x y");
        row("canvas jump 1 2",
            "unknown step \"jump\" of the canvas; choose from click, doubleclick, rightclick, "
            "move, press, release, wheel");
        row("canvas click 1 2cm", "\"2cm\" is not a length (a number, and um, mm, mil or inch)");
        row("canvas click inf 2", "\"inf\" is not a length (a number, and um, mm, mil or inch)");
        row("canvas click 1 2 3", "wrong number of words; usage: canvas click X Y");
        row("canvas wheel 1 2", "wrong number of words; usage: canvas wheel X Y NOTCHES");
        row("type m_pA \"b", "the quote \" is not closed");
        row("key m_pA NoSuchKey", "\"NoSuchKey\" is not a key");
        row("send twelve", "\"twelve\" is not a message code");
        row("picture a.xyz", "\"a.xyz\" is not a picture file (.png)");
        row("wait -1", "\"-1\" is not a time in milliseconds");
        row("box open", "\"open\" is not an answer; choose from accept, reject, discard");
        row("box accept colour=red", "\"colour=red\" is neither title=... nor text=...");
        row("expect rain", "\"rain\" cannot be expected; choose from message, nothing, state");
        row("expect message", "\"\" is not a message code");
        row("expect message fifty", "\"fifty\" is not a message code");
        row("expect message 50 N:int=x", "\"N:int=x\" cannot be expected of a message");
        row("expect message 50 total=x", "\"total=x\" cannot be expected of a message");
        row("expect message 50 extra:list=x", "\"extra:list=x\" cannot be expected of a message");
        row("expect message 50 Features", "\"Features\" cannot be expected of a message");
        row("expect nothing more", "nothing follows \"nothing\"");
        row("expect state m_pA", "usage: expect state NAME PROPERTY=VALUE ...");
        row("expect state m_pA checked", "\"checked\" is not a state PROPERTY=VALUE");
    }

    void wrongSteps()
    {
        QFETCH(QString, text);
        QFETCH(QString, reason);
        Session session;
        QCOMPARE(read("wait 1\n" + text.toUtf8() + "\n", &session), "demo:2: " + reason);
    }
};

CTS_TEST(TestSessionParser);
#include "test_session_parser.moc"
