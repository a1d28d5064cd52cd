// The documents list what the code has: every message, every entry of the record.

#include "Main.h"
#include "plugin/MessageCodes.h"

#include <QFile>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

namespace {

QStringList textLinesOf(const QString& file)
{
    QFile source(QStringLiteral(SOURCE_DIR "/") + file);
    if (!source.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qFatal("%s cannot be read", qPrintable(source.fileName()));
    }
    return QString::fromUtf8(source.readAll()).split('\n');
}

/// The cells of the table rows below `heading` (of the whole file without one), not the header's.
QList<QStringList> rowsOf(const QString& file, const QString& heading = {})
{
    QList<QStringList> rows;
    bool inside = heading.isEmpty();
    for (const QString& line : textLinesOf(file)) {
        inside = line.startsWith("## ") ? line == heading : inside;
        const bool isRow =
            line.startsWith("| ") && !line.startsWith("| Code |") && !line.startsWith("| Key |");
        if (inside && isRow) {
            QStringList cells = line.mid(1).chopped(1).split(" | ");
            for (QString& cell : cells) {
                cell = cell.remove('`').trimmed();
            }
            rows.append(cells);
        }
    }
    return rows;
}

QStringList messages(const QVector<int>& codes, const char* (*nameOf)(int))
{
    QStringList list;
    for (const int code : codes) {
        list.append(QStringLiteral("%1 %2").arg(code).arg(nameOf(code)));
    }
    list.sort();
    return list;
}

QStringList messages(const QList<QStringList>& rows)
{
    QStringList list;
    for (const QStringList& row : rows) {
        list.append(row.value(0) + ' ' + row.value(1));
    }
    list.sort();
    return list;
}

}  // namespace

class TestDocuments : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void protocol()
    {
        QCOMPARE(messages(rowsOf("docs/protocol.md", "## What the tool strip sends")),
                 messages(Sent::all(), Sent::nameOf));
        QCOMPARE(messages(rowsOf("docs/protocol.md", "## What the tool strip accepts")),
                 messages(Accepted::all(), Accepted::nameOf));
    }

    void record()
    {
        QStringList expected;
        for (const QString& line : textLinesOf("tests/contract/record.txt")) {
            if (!line.startsWith('#') && !line.isEmpty()) {
                expected.append(line.simplified());
            }
        }
        QStringList documented;
        for (const QStringList& row : rowsOf("docs/record.md")) {
            QVERIFY2(row.size() == 5 && !row[3].isEmpty() && !row[4].isEmpty(),
                     qPrintable(row.join('|')));
            documented.append((row[0] + ' ' + row[1] + ' ' + row[2]).simplified());
        }
        documented.sort();
        expected.sort();
        QCOMPARE(documented, expected);
    }
};

CTS_TEST(TestDocuments);
#include "test_documents.moc"
