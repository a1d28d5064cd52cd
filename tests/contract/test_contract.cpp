// What siblings and hosts rely on, compared with the lists next to this file in both directions:
// nothing missing, nothing extra, nothing changed.

#include "ContractList.h"
#include "DemoJobs.h"
#include "Main.h"
#include "Recorder.h"
#include "addfeature/AddFeature.h"
#include "dimensions/Dimensious.h"
#include "plugin/MessageCodes.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QMetaMethod>

namespace Sent = MessageCodes::Sent;

namespace {

/// The indented lines that follow the line `heading`.
QStringList listed(const QString& heading)
{
    QStringList found;
    bool inside = false;
    for (const QString& line : linesOf("slots.txt")) {
        if (!line.startsWith(' ')) {
            inside = line == heading;
        } else if (inside) {
            const QString kind = line.trimmed().section(' ', 0, 0);
            const QByteArray signature = line.trimmed().section(' ', 1).toLatin1();
            found.append(kind + ' ' +
                         QString::fromLatin1(QMetaObject::normalizedSignature(signature)));
        }
    }
    return found;
}

QStringList methodsOf(const QMetaObject& object)
{
    QStringList found;
    for (int i = object.methodOffset(); i < object.methodCount(); ++i) {
        const QMetaMethod method = object.method(i);
        const QString kind = method.methodType() == QMetaMethod::Signal ? "signal " : "slot ";
        found.append(kind + QString::fromLatin1(method.methodSignature()));
    }
    return found;
}

QStringList recordLines(const QVariantMap& record)
{
    QStringList lines;
    for (auto entry = record.begin(); entry != record.end(); ++entry) {
        const QString type = entry->userType() == QMetaType::QString ? "text"
                             : entry->userType() == QMetaType::Int   ? "integer"
                                                                     : entry->typeName();
        lines.append((entry.key() + ' ' + type + ' ' + entry->toString()).simplified());
    }
    return lines;
}

}  // namespace

Q_DECLARE_METATYPE(const QMetaObject*)

class TestContract : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void signalsAndSlots_data()
    {
        QTest::addColumn<const QMetaObject*>("object");
        QTest::newRow("Canvas_Tool_Strip") << &Canvas_Tool_Strip::staticMetaObject;
        QTest::newRow("AddFeature") << &AddFeature::staticMetaObject;
        QTest::newRow("Dimensious") << &Dimensious::staticMetaObject;
    }

    void signalsAndSlots()
    {
        QFETCH(const QMetaObject*, object);
        const QStringList expected = listed(object->className());
        QVERIFY(!expected.isEmpty());
        QCOMPARE(methodsOf(*object), expected);
    }

    void record()
    {
        openDemoJobs();
        Recorder recorder;
        QWidget window;
        AddFeature dialog(&window, "job", "step", &window);
        dialog.getChangeCurrentTool();
        QCOMPARE(recorder.codes(), QVector<int>{Sent::Record});

        QStringList expected;
        for (const QString& line : linesOf("record.txt")) {
            expected.append(line.simplified());
        }
        QCOMPARE(recordLines(recorder.last(Sent::Record).message.payload), expected);
        QCOMPARE(expected.size(), 45);
    }
};

CTS_TEST(TestContract);
#include "test_contract.moc"
