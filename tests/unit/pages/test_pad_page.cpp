// The page of pads: counts, steps and factors of an array.

#include "Main.h"
#include "PageCases.h"
#include "PageSteps.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <QFrame>
#include <QLabel>

namespace Sent = MessageCodes::Sent;

using namespace PageSteps;

namespace {

/// A count or factor is checked at each change of its text.
Cases numbers(const QString& field, const QString& key, const QStringList& legal,
              const QStringList& illegal)
{
    const Steps holdsSeven = pad + SetText(field, "7");
    Cases cases;
    for (const QString& text : legal) {
        cases.append(Case()
                         .given(holdsSeven)
                         .when(SetText(field, text))
                         .then(Expect::record(key, text), Expect::sent(Sent::Record),
                               Expect::text(field, text)));
    }
    for (const QString& text : illegal) {
        cases.append(
            Case()
                .given(holdsSeven)
                .when(SetText(field, text))
                .then(Expect::record(key, "7"), Expect::text(field, "7"), Expect::hostBox()));
    }
    return cases;
}

/// The steps from one pad to the next.
Cases pitches(const QString& field, const QString& key)
{
    const auto entered = [&](Unit unit, const QString& text) {
        return Case().in(unit).given(pad + Enter(field, "127")).when(Enter(field, text));
    };
    const auto accepted = [&](Unit unit, const QString& text, const QString& stored) {
        return entered(unit, text)
            .then(Expect::record(key, stored), Expect::sent(Sent::Record),
                  Expect::text(field, text));
    };
    const auto emptied = [&](Unit unit) {
        return entered(unit, "").then(Expect::record(key, "0"), Expect::sent(Sent::Record),
                                      Expect::text(field, "0"));
    };
    // The field falls back to "0" while the record keeps the last accepted step.
    const auto refused = [&](Unit unit, const QString& text) {
        const bool isMetric = unit == Unit::Metric;
        return entered(unit, text)
            .then(Expect::record(key, isMetric ? "127" : "3225.8"), Expect::text(field, "0"),
                  Expect::box(BoxTexts::coordinate(isMetric ? 2540000 : 100000)));
    };
    return {
        accepted(Unit::Mil, "10", "254"),
        accepted(Unit::Mil, "1.5", "38.1"),
        accepted(Unit::Mil, "-10", "-254"),
        accepted(Unit::Mil, "0", "0"),
        emptied(Unit::Mil),
        accepted(Unit::Mil, "100000", "2.54e+06"),
        accepted(Unit::Mil, "-100000", "-2.54e+06"),
        refused(Unit::Mil, "100000.5"),
        refused(Unit::Mil, "100001"),
        refused(Unit::Mil, "-100001"),
        refused(Unit::Mil, "inf"),
        refused(Unit::Mil, "-inf"),
        refused(Unit::Mil, "nan"),
        refused(Unit::Mil, "1e6"),
        accepted(Unit::Metric, "254", "254"),
        accepted(Unit::Metric, "1.50", "1.50"),
        accepted(Unit::Metric, "2540000", "2540000"),
        accepted(Unit::Metric, "-2540000", "-2540000"),
        refused(Unit::Metric, "2540001"),
        refused(Unit::Metric, "-2540000.5"),
        emptied(Unit::Metric),
    };
}

}  // namespace

class TestPadPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void counts_data()
    {
        const QStringList legal = {"0", "1", "50", "50.0", "", "abc", "-0"};
        const QStringList illegal = {"51", "50.01", "-1", "1e9", "inf", "nan"};
        addCases(numbers("m_pDrilNxLE", RecordKeys::padNx, legal, illegal));
    }
    void counts() { runCase(); }

    void factors_data()
    {
        const QStringList legal = {"0", "-100", "100", "-0.5", "", "abc", "1e2"};
        const QStringList illegal = {"100.1", "-100.1", "1e3", "inf", "-inf", "nan"};
        addCases(numbers("m_pDrilYsclLE", RecordKeys::padYscl, legal, illegal));
    }
    void factors() { runCase(); }

    void steps_data() { addCases(pitches("m_pDrilDxLE", RecordKeys::padDx)); }
    void steps() { runCase(); }

    void theStepsOwnZeroIsNoEntry()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pPadTB");
        fixture.type("m_pDrilDxLE", "0");
        fixture.leave(By::Tab);
        QCOMPARE(fixture.recorder.codes(), QVector<int>());
        fixture.type("m_pDrilDxLE", "");
        fixture.leave(By::Tab);
        QCOMPARE(fixture.text("m_pDrilDxLE"), QString("0"));
        QCOMPARE(fixture.recorder.codes(), QVector<int>{Sent::Record});
        Expect::holds(fixture, {Expect::record(RecordKeys::padDx, "0")});
    }

    void coordinateBoxIsAWarning()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pPadTB");
        fixture.enter("m_pDrilDxLE", FieldBounds::of("m_pDrilDxLE").justAbove());
        const auto boxes = fixture.boxes.take();
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes[0].icon, QMessageBox::Warning);
        QCOMPARE(boxes[0].buttons.size(), 1);
    }

    void units()
    {
        PageCases::switchUnitTenTimes(
            pad, {{"m_pDrilDxLE", "10"}, {"m_pDrilDyLE", "-0.5"}},
            {{"m_pDrilDxUnitLB", "mil", "my"}, {"m_pDrilDyUnitLB", "mil", "my"}});
    }

    void texts()
    {
        const DialogFixture fixture;
        const struct {
            const char* label;
            const char* text;
        } labels[] = {{"m_pDrilNxLB", "Nx   : "},   {"m_pDrilDxLB", "Dx   : "},
                      {"m_pDrilXsclLB", "Xscl : "}, {"m_pDrilNyLB", "Ny   : "},
                      {"m_pDrilDyLB", "Dy   : "},   {"m_pDrilYsclLB", "Yscl : "}};
        for (const auto& expected : labels) {
            QCOMPARE(fixture.find<QLabel>(expected.label).text(), QString(expected.text));
        }
        const auto& divider = fixture.find<QFrame>("m_pPadColumnsFrame");
        QCOMPARE(divider.frameShape(), QFrame::VLine);
        QCOMPARE(divider.frameShadow(), QFrame::Sunken);
    }

    void columns()
    {
        const DialogFixture fixture;
        fixture.perform(pad);
        const auto place = [&](const char* name) {
            return fixture.find(name).mapTo(fixture.dialog, QPoint());
        };
        const struct {
            const char* left;
            const char* right;
        } rows[] = {{"m_pDrilNxLE", "m_pDrilNyLE"},
                    {"m_pDrilDxLE", "m_pDrilDyLE"},
                    {"m_pDrilXsclLE", "m_pDrilYsclLE"}};
        int y = -1;
        for (const auto& row : rows) {
            QVERIFY(place(row.left).x() < place("m_pPadColumnsFrame").x());
            QVERIFY(place(row.right).x() > place("m_pPadColumnsFrame").x());
            QCOMPARE(place(row.left).y(), place(row.right).y());
            QVERIFY(place(row.left).y() > y);
            y = place(row.left).y();
        }
    }

    void language() { PageCases::retranslate("m_pPadPage", pad); }
};

CTS_TEST(TestPadPage);
#include "test_pad_page.moc"
