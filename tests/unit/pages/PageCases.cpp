#include "PageCases.h"

#include "PageFixture.h"
#include "addfeature/AddFeature.h"

#include <QComboBox>
#include <QtTest>

#include <algorithm>

Q_DECLARE_METATYPE(PageCases::Case)
Q_DECLARE_METATYPE(PageCases::GreyedItems)
Q_DECLARE_METATYPE(PageCases::Refusal)

namespace PageCases {

namespace {

/// Tells "5" and 5 apart, which a comparison of two variants does not.
QString described(const QVariant& value)
{
    return QStringLiteral("%1 \"%2\"").arg(QLatin1String(value.typeName()), value.toString());
}

QStringList described(const QVariantMap& record)
{
    QStringList lines;
    for (auto entry = record.cbegin(); entry != record.cend(); ++entry) {
        lines.append(entry.key() + ": " + described(entry.value()));
    }
    return lines;
}

QString fieldOf(const QString& step)
{
    return step.section(QRegularExpression("[:<=~]"), 0, 0);
}

/// The fields of the steps with their texts, written as "name~text".
QStringList texts(const PageFixture& fixture, const QStringList& steps)
{
    QStringList texts;
    for (const QString& step : steps) {
        texts.append(fieldOf(step) + "~" + fixture.text(fieldOf(step)));
    }
    return texts;
}

void compareBoxes(const QStringList& actual, const QStringList& expected)
{
    QCOMPARE(actual.size(), expected.size());
    for (int i = 0; i < actual.size(); ++i) {
        if (expected[i] != "*") {
            QCOMPARE(actual[i], expected[i]);
        }
    }
}

}  // namespace

void addRows(const QList<Case>& cases)
{
    QTest::addColumn<Case>("row");
    for (const Case& row : cases) {
        const QString name = row.name.isEmpty() ? row.action : row.name;
        QTest::newRow(qPrintable(name + (row.metric ? ", metric" : ""))) << row;
    }
}

void run()
{
    QFETCH(Case, row);
    PageFixture fixture(row.metric);
    fixture.perform(row.before);
    fixture.forget();
    QVariantMap record = fixture.record();
    fixture.forget();

    fixture.perform(row.action);
    QCOMPARE(fixture.codes(), row.codes);
    compareBoxes(fixture.boxes(), row.boxes);
    if (!row.shown.isNull()) {
        QCOMPARE(fixture.text(fieldOf(row.action)), row.shown);
    }
    for (const QString& state : row.states) {
        QVERIFY2(fixture.hasState(state), qPrintable("expected: " + state));
    }
    // What the row does not name stays as it was.
    for (auto entry = row.entries.cbegin(); entry != row.entries.cend(); ++entry) {
        record.insert(entry.key(), entry.value());
    }
    compare(fixture.record(), record);
}

void compare(const QVariantMap& actual, const Entries& expected)
{
    const QStringList actualLines = described(actual);
    const QStringList expectedLines = described(expected);
    for (int i = 0; i < qMin(actualLines.size(), expectedLines.size()); ++i) {
        QCOMPARE(actualLines[i], expectedLines[i]);
    }
    QCOMPARE(actualLines.size(), expectedLines.size());
}

void compareStart(const Entries& entries, bool metric)
{
    PageFixture fixture(metric);
    QCOMPARE(fixture.codes(), QList<int>());
    const QVariantMap record = fixture.record();
    QVariantMap found;
    for (const QString& key : entries.keys()) {
        QVERIFY2(record.contains(key), qPrintable(key));
        found.insert(key, record[key]);
    }
    compare(found, entries);
}

void compareConnections(const QList<Connection>& connections)
{
    PageFixture fixture;
    for (const Connection& connection : connections) {
        // Of one that was never made there is nothing to take back.
        QVERIFY2(QObject::disconnect(fixture.widget(connection.sender), connection.signal,
                                     &fixture.dialog(), connection.slot),
                 connection.slot);
    }
}

QString lengthBox(int bound)
{
    return QStringLiteral("Information|The current text box can only enter a value from 0 to%1")
        .arg(bound);
}

QString coordinateBox(int bound)
{
    return QStringLiteral("Information|The current value out of range:%1 to %2")
        .arg(-bound)
        .arg(bound);
}

namespace {

struct LengthText {
    int bound;  // 0: for fields of every bound
    bool metric;
    const char* typed;
    const char* stored;  // null: refused
};
const LengthText lengthTexts[] = {
    {50000, false, "50000", "1.27e+06"},
    {50000, false, "49999", "1.26997e+06"},
    {50000, false, "50000.1", nullptr},
    {50000, false, "50001", nullptr},
    {50000, true, "1270000", "1270000"},
    {50000, true, "1269999", "1269999"},
    {50000, true, "1270000.1", nullptr},
    {50000, true, "1270001", nullptr},
    {10000, false, "10000", "254000"},
    {10000, false, "9999.5", "253987"},
    {10000, false, "10000.5", nullptr},
    {10000, true, "254000", "254000"},
    {10000, true, "253999.5", "253999.5"},
    {10000, true, "254001", nullptr},
    {0, false, "0", "0"},
    {0, false, "10", "254"},
    {0, false, "12.5", "317.5"},
    {0, false, "1e3", "25400"},
    {0, false, " 10 ", "254"},
    {0, false, "-0.001", nullptr},
    {0, false, "-1", nullptr},
    {0, false, "", nullptr},
    {0, false, "   ", nullptr},
    {0, false, "abc", nullptr},
    {0, false, "1 0", nullptr},
    {0, false, "1,5", nullptr},
    {0, false, "nan", nullptr},
    {0, false, "inf", nullptr},
    {0, false, "-inf", nullptr},
    {0, false, "1e400", nullptr},
    {0, true, "0", "0"},
    {0, true, "254", "254"},
    {0, true, "12.50", "12.50"},
    {0, true, "1e3", "1e3"},
    {0, true, "-0.001", nullptr},
    {0, true, "", nullptr},
    {0, true, "   ", nullptr},
    {0, true, "abc", nullptr},
    {0, true, "nan", nullptr},
    {0, true, "inf", nullptr},
};

Case lengthCase(const LengthField& field, const LengthText& text)
{
    Case row;
    row.name = QStringLiteral("%1 \"%2\"").arg(field.field, QLatin1String(text.typed));
    row.before = field.before;
    row.action = field.field + "<" + QLatin1String(text.typed);
    row.metric = text.metric;
    if (text.stored) {
        row.entries = {{field.key, QString(QLatin1String(text.stored))}};
        row.codes = field.codesWhenAccepted;
        row.shown = QString(QLatin1String(text.typed));
    } else {
        row.entries = {{field.key, QStringLiteral("0")}};
        row.codes = field.codesWhenRefused;
        row.shown = QStringLiteral("0");
        const int metricBound = field.bound / 10 * 254;
        row.boxes = QStringList(lengthBox(text.metric ? metricBound : field.bound));
    }
    return row;
}

}  // namespace

QList<Case> lengthCases(const QList<LengthField>& fields)
{
    QList<Case> cases;
    for (const LengthField& field : fields) {
        for (const LengthText& text : lengthTexts) {
            if (text.bound == 0 || text.bound == field.bound) {
                cases.append(lengthCase(field, text));
            }
        }
    }
    return cases;
}

void addGreyedRows(const QList<GreyedItems>& rows)
{
    QTest::addColumn<GreyedItems>("row");
    for (const GreyedItems& row : rows) {
        QTest::newRow(qPrintable(row.combo)) << row;
    }
}

void tryToReachGreyedItem()
{
    QFETCH(GreyedItems, row);
    PageFixture fixture;
    fixture.perform(row.before);
    const auto choose = [&](int item) {
        fixture.perform(QStringLiteral("%1=%2").arg(row.combo).arg(item));
    };

    // The ways lead to the last free item: they work, and they end there.
    fixture.press(row.combo, Qt::Key_Down, 10);
    QCOMPARE(fixture.index(row.combo), row.lastFree);
    for (const int key : {Qt::Key_End, Qt::Key_PageDown, Qt::Key_Right}) {
        choose(0);
        fixture.press(row.combo, key, 10);
        QVERIFY2(fixture.index(row.combo) <= row.lastFree, qPrintable(QString::number(key)));
    }
    choose(0);
    fixture.turnWheel(row.combo, 10);
    QCOMPARE(fixture.index(row.combo), row.lastFree);
    choose(0);
    fixture.chooseByMouse(row.combo, row.lastFree);
    QCOMPARE(fixture.index(row.combo), row.lastFree);

    for (int item = row.lastFree + 1; item < row.count; ++item) {
        choose(0);
        fixture.chooseByMouse(row.combo, item);
        QCOMPARE(fixture.index(row.combo), 0);
        fixture.chooseInList(row.combo, item);
        QVERIFY(fixture.index(row.combo) <= row.lastFree);
        fixture.chooseByTypingAhead(row.combo, item);
        QVERIFY(fixture.index(row.combo) <= row.lastFree);
        choose(item);
        QCOMPARE(fixture.index(row.combo), item);
    }
    QCOMPARE(fixture.find<QComboBox>(row.combo).count(), row.count);
}

void addRefusalRows(const QList<Refusal>& rows)
{
    QTest::addColumn<Refusal>("row");
    QTest::addColumn<QString>("way");
    for (const Refusal& row : rows) {
        for (const char* way : {"Enter", "Tab", "mouse"}) {
            QTest::addRow("%s, %s", qPrintable(row.field), way) << row << QString(way);
        }
    }
}

void refuseOnce()
{
    QFETCH(Refusal, row);
    QFETCH(QString, way);
    PageFixture fixture;
    fixture.perform(row.before);
    fixture.forget();

    fixture.type(row.field, row.typed);
    fixture.leave(row.field, way, row.neighbour);
    QCOMPARE(fixture.boxes().size(), 1);
    QCOMPARE(fixture.text(row.field), row.shown);
}

void switchUnitTenTimes(const QStringList& before, const QStringList& fields,
                        const QStringList& units)
{
    PageFixture fixture;
    fixture.perform(before);
    fixture.perform(fields);
    fixture.forget();
    const QStringList record = described(fixture.record());
    fixture.forget();

    for (int i = 0; i < 10; ++i) {
        const bool metric = i % 2 == 0;
        fixture.changeUnit(metric);
        const QStringList once = texts(fixture, fields);
        // A notice that repeats the unit converts nothing.
        fixture.changeUnit(metric);
        QCOMPARE(texts(fixture, fields), once);
        for (int field = 0; field < fields.size(); ++field) {
            QVERIFY2((once[field] == fields[field]) != metric, qPrintable(once[field]));
        }
        for (const QString& unit : units) {
            const QString name = unit.section('=', 0, 0);
            QCOMPARE(name + "=" + fixture.labelText(name),
                     name + "=" + unit.section('=', 1).section('|', metric, metric));
        }
    }
    QCOMPARE(fixture.codes(), QList<int>());
    QCOMPARE(described(fixture.record()), record);
    QCOMPARE(fixture.boxes(), QStringList());
}

void retranslate(const QString& page, const QStringList& before)
{
    PageFixture fixture;
    fixture.perform(before);
    fixture.forget();
    const QStringList record = described(fixture.record());
    const QList<int> indices = fixture.indices(page);
    const QStringList greyed = fixture.greyedItems(page);
    QStringList texts = fixture.visibleTexts(page);
    QVERIFY(!texts.isEmpty());
    fixture.forget();

    fixture.changeLanguage();
    QCOMPARE(fixture.codes(), QList<int>());
    QCOMPARE(described(fixture.record()), record);
    QCOMPARE(fixture.indices(page), indices);
    QCOMPARE(fixture.greyedItems(page), greyed);
    std::transform(texts.begin(), texts.end(), texts.begin(), PageFixture::translated);
    QCOMPARE(fixture.visibleTexts(page), texts);
}

}  // namespace PageCases
