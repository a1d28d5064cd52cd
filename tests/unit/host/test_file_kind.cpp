// What a file is, going by its content.

#include "Main.h"

#include <FileKind.h>
#include <Files.h>

#include <QDir>

using CanvasHost::FileKind;

Q_DECLARE_METATYPE(FileKind)

class TestFileKind : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void kindsAreToldApart_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<FileKind>("kind");
        QTest::newRow("board") << QByteArray("\n{\"format\": 1, \"features\" :\n[]}")
                               << FileKind::Board;
        QTest::newRow("net of that name")
            << QByteArray("{\"features\":[{\"attributes\":{\".net\":\"jobs\",\"jobs\":\"x: [\"}}]}")
            << FileKind::Board;
        QTest::newRow("job") << QByteArray("{\"jobs\":[{\"name\":\"features\"}]}") << FileKind::Job;
        QTest::newRow("job that is cut off") << QByteArray("{\"jobs\":[{") << FileKind::Job;
        QTest::newRow("trace") << QByteArray("{\"sender\":\"a\",\"receiver\":\"b\"}\n{}\n")
                               << FileKind::Trace;
        QTest::newRow("session") << QByteArray("# words\r\n\r\nclick m_pMarkTB\r\n")
                                 << FileKind::Session;
        QTest::newRow("Gerber") << QByteArray("%FSLAX46Y46*%\n") << FileKind::Gerber;
        QTest::newRow("Gerber with words") << QByteArray("G04 words*\n") << FileKind::Gerber;
        QTest::newRow("PNG") << QByteArray("\x89PNG\r\n") << FileKind::Picture;
        QTest::newRow("SVG") << QByteArray("<?xml version=\"1.0\"?>\n<svg>") << FileKind::Picture;
        QTest::newRow("words") << QByteArray("these are words\n") << FileKind::Other;
        QTest::newRow("comments only") << QByteArray("# words\n# words\n") << FileKind::Other;
        QTest::newRow("other JSON") << QByteArray("{\"a\":[]}") << FileKind::Other;
        QTest::newRow("list") << QByteArray("[1]") << FileKind::Other;
        QTest::newRow("empty") << QByteArray() << FileKind::Other;
    }

    void kindsAreToldApart()
    {
        QFETCH(QByteArray, content);
        QFETCH(FileKind, kind);
        QCOMPARE(CanvasHost::kindOf(content), kind);
    }

    void everySampleSessionIsOne()
    {
        const QDir folder(SESSION_FOLDER);
        const QStringList names = folder.entryList({"*.session"});
        QVERIFY(names.size() > 10);
        for (const QString& name : names) {
            const QByteArray content = CanvasHost::readWhole(folder.filePath(name));
            QVERIFY2(CanvasHost::kindOf(content) == FileKind::Session, qPrintable(name));
        }
    }

    void onlyAnotherKindIsTold()
    {
        const CanvasHost::FileError error{"a.json", 3, "reason"};
        const auto told = [&](const char* content, FileKind wanted) {
            return CanvasHost::wrongKind(content, wanted, error).text();
        };
        QCOMPARE(told("{\"jobs\":[", FileKind::Job), QString("a.json:3: reason"));
        QCOMPARE(told("{", FileKind::Job), QString("a.json:3: reason"));
        QCOMPARE(told("{\"jobs\":[", FileKind::Board),
                 QString("a.json: this is a job file, not a board"));
    }
};

CTS_TEST(TestFileKind);
#include "test_file_kind.moc"
