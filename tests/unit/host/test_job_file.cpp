// A job file that is cut off, anywhere, is refused with its line.

#include "ErrorOf.h"
#include "Main.h"

#include <CamApiStandIn.h>

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

class TestJobFile : public QObject {
    Q_OBJECT

    QTemporaryDir m_directory;

    QString write(const QByteArray& text) const
    {
        const QString name = m_directory.filePath("jobs.json");
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
            qFatal("%s: %s", qPrintable(name), qPrintable(file.errorString()));
        }
        return name;
    }

private Q_SLOTS:
    void everyTruncationIsAnErrorWithItsLine()
    {
        QFile sample(SAMPLE_FILE);
        QVERIFY(sample.open(QIODevice::ReadOnly));
        const QByteArray whole = sample.readAll().trimmed();
        const QString file = write(whole);
        CanvasHost::loadJobs(file);
        const size_t jobs = CanvasHost::jobs().size();
        const QRegularExpression place('^' + QRegularExpression::escape(file) + ":([0-9]+): .");
        for (int size = whole.size() - 1; size >= 0; --size) {
            QVERIFY(QFile::resize(file, size));
            const QString error = errorOf([&] { CanvasHost::loadJobs(file); });
            QVERIFY2(!error.isEmpty(), qPrintable(QString::number(size)));
            const QRegularExpressionMatch match = place.match(error);
            QVERIFY2(match.hasMatch(), qPrintable(error));
            QVERIFY2(match.captured(1).toInt() <= whole.left(size).count('\n') + 1,
                     qPrintable(error));
            QCOMPARE(CanvasHost::jobs().size(), jobs);  // what was loaded before stays
        }
    }

    void unknownKeysAreNamed()
    {
        const QString file = write("{ \"format\": 1,\n  \"jobs\": [\n    { \"stops\": [] } ] }");
        QCOMPARE(errorOf([&] { CanvasHost::loadJobs(file); }),
                 file + ":3: \"stops\" does not belong to an entry of \"jobs\"");
    }
};

CTS_TEST(TestJobFile);
#include "test_job_file.moc"
