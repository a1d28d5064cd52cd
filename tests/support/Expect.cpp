#include "Expect.h"

#include "DialogFixture.h"

#include <QAbstractButton>
#include <QtTest>

namespace Expect {
namespace {

const QString anyHostBox = QStringLiteral("*");

/// Distinguishes "5" and 5, which a comparison of two variants does not.
QStringList described(const QVariantMap& record)
{
    QStringList lines;
    for (auto entry = record.cbegin(); entry != record.cend(); ++entry) {
        lines.append(QStringLiteral("%1: %2 \"%3\"")
                         .arg(entry.key(), QLatin1String(entry->typeName()), entry->toString()));
    }
    return lines;
}

Expectation state(const QString& words, const std::function<bool(const DialogFixture&)>& holds)
{
    return [=](Expected& expected) { expected.states.append({words, holds}); };
}

bool isChecked(const DialogFixture& fixture, const QString& button)
{
    return fixture.find<QAbstractButton>(button).isChecked();
}

}  // namespace

Expectation record(const QString& key, const QVariant& value)
{
    return [=](Expected& expected) { expected.record.insert(key, value); };
}

Expectation box(const QString& title, const QString& text)
{
    return [=](Expected& expected) { expected.boxes.append(title + '|' + text); };
}

Expectation hostBox()
{
    return [](Expected& expected) { expected.boxes.append(anyHostBox); };
}

Expectation lengthBox(int bound)
{
    return box(
        "Information",
        QStringLiteral("The current text box can only enter a value from 0 to%1").arg(bound));
}

Expectation coordinateBox(int bound)
{
    return box("Information", QStringLiteral("The current value out of range:%1 to %2")
                                  .arg(QString::number(-bound), QString::number(bound)));
}

Expectation text(const QString& field, const QString& text)
{
    return state(QStringLiteral("%1 shows \"%2\"").arg(field, text),
                 [=](const DialogFixture& fixture) { return fixture.text(field) == text; });
}

Expectation chosen(const QString& combo, const QString& item)
{
    return state(QStringLiteral("%1 shows \"%2\"").arg(combo, item),
                 [=](const DialogFixture& fixture) { return fixture.chosen(combo) == item; });
}

Expectation shown(const QString& control)
{
    return state(control + " is shown",
                 [=](const DialogFixture& fixture) { return fixture.isShown(control); });
}

Expectation hidden(const QString& control)
{
    return state(control + " is hidden",
                 [=](const DialogFixture& fixture) { return !fixture.isShown(control); });
}

Expectation enabled(const QString& control)
{
    return state(control + " is enabled",
                 [=](const DialogFixture& fixture) { return fixture.find(control).isEnabled(); });
}

Expectation disabled(const QString& control)
{
    return state(control + " is disabled",
                 [=](const DialogFixture& fixture) { return !fixture.find(control).isEnabled(); });
}

Expectation checked(const QString& button)
{
    return state(button + " is checked",
                 [=](const DialogFixture& fixture) { return isChecked(fixture, button); });
}

Expectation unchecked(const QString& button)
{
    return state(button + " is not checked",
                 [=](const DialogFixture& fixture) { return !isChecked(fixture, button); });
}

void sameRecord(const QVariantMap& actual, const QVariantMap& expected)
{
    const QStringList actualLines = described(actual);
    const QStringList expectedLines = described(expected);
    for (int i = 0; i < qMin(actualLines.size(), expectedLines.size()); ++i) {
        QCOMPARE(actualLines[i], expectedLines[i]);
    }
    QCOMPARE(actualLines.size(), expectedLines.size());
}

void sameBoxes(const QStringList& actual, const QStringList& expected)
{
    QCOMPARE(actual.size(), expected.size());
    for (int i = 0; i < actual.size(); ++i) {
        if (expected[i] != anyHostBox) {
            QCOMPARE(actual[i], expected[i]);
        }
    }
}

void states(const DialogFixture& fixture, const QList<State>& expected)
{
    for (const State& state : expected) {
        QVERIFY2(state.holds(fixture), qPrintable("expected: " + state.words));
    }
}

void holds(DialogFixture& fixture, const Expectations& expectations)
{
    Expected expected;
    for (const Expectation& expectation : expectations) {
        expectation(expected);
    }
    states(fixture, expected.states);
    for (const QVariantMap& record : {fixture.record(), fixture.lastRecord()}) {
        QVariantMap named;
        for (const QString& key : expected.record.keys()) {
            QVERIFY2(record.contains(key), qPrintable(key));
            named.insert(key, record[key]);
        }
        sameRecord(named, expected.record);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

}  // namespace Expect
