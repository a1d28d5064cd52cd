#include "Case.h"

#include <QtTest>

QString Case::name() const
{
    const QString name = m_name.isEmpty() ? m_when.words : m_name;
    return m_unit == Unit::Metric ? name + ", metric" : name;
}

void Case::run() const
{
    DialogFixture fixture(m_unit);
    fixture.perform(m_given);
    fixture.recorder.clear();
    fixture.boxes.take();
    Expect::Expected expected;
    expected.record = fixture.record();
    for (const Expect::Expectation& expectation : m_then) {
        expectation(expected);
    }

    m_when.act(fixture);
    QCOMPARE(fixture.recorder.codes(), expected.codes);
    Expect::sameBoxes(fixture.boxes.takeTexts(), expected.boxes);
    Expect::states(fixture, expected.states);
    Expect::sameRecord(fixture.lastRecord(), expected.record);
}

void addCases(const Cases& cases)
{
    QTest::addColumn<Case>("row");
    for (const Case& row : cases) {
        QTest::newRow(qPrintable(row.name())) << row;
    }
}

void runCase()
{
    QFETCH(Case, row);
    row.run();
}
