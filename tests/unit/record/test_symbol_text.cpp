// Names of symbols, without a field.

#include "DemoJobs.h"
#include "Main.h"
#include "addfeature/record/HostUnits.h"
#include "addfeature/record/SymbolText.h"

#include <UiApiStandIn.h>

#include <QRegularExpression>

#include <stdexcept>

using CanvasHost::DisplayUnit;
using CanvasHost::uiApiOverrides;

namespace {

void workIn(DisplayUnit unit)
{
    CanvasHost::setDisplayUnit(unit);
}

}  // namespace

class TestSymbolText : public QObject {
    Q_OBJECT

    HostUnits m_units{nullptr};

private Q_SLOTS:
    void initTestCase() { openDemoJobs(); }
    void init()
    {
        uiApiOverrides() = {};
        workIn(DisplayUnit::Mil);
    }
    void cleanup() { init(); }

    void suffix_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("degrees");  // -1: no suffix
        QTest::addColumn<QString>("rest");
        QTest::newRow("degrees") << "r10_45" << 45 << "r10";
        QTest::newRow("zero") << "r10_0" << 0 << "r10";
        QTest::newRow("behind the last") << "fiducial_cross_90" << 90 << "fiducial_cross";
        QTest::newRow("no digits") << "r10_4x" << -1 << "r10";
        QTest::newRow("nothing") << "r10_" << -1 << "r10";
        QTest::newRow("a sign") << "r10_-5" << -1 << "r10";
        QTest::newRow("a blank") << "r10_ 5" << -1 << "r10";
        QTest::newRow("more than an integer") << "r10_99999999999" << -1 << "r10";
    }

    void suffix()
    {
        QFETCH(QString, name);
        QFETCH(int, degrees);
        QFETCH(QString, rest);
        QCOMPARE(SymbolText::suffixOf(name).value_or(-1), degrees);
        QCOMPARE(SymbolText::withoutSuffix(name), rest);
    }

    /// The rotation's handler reads what follows the first "_", and only of a suffixed name.
    void addedDegrees()
    {
        SymbolText symbol(m_units);
        QCOMPARE(symbol.addedDegrees("r10_45"), 0);
        symbol.setSuffixed(true);
        QCOMPARE(symbol.addedDegrees("r10_45"), 45);
        QCOMPARE(symbol.addedDegrees("r10_30_45"), 30);
        QCOMPARE(symbol.addedDegrees("fiducial_cross_90"), 0);
        QCOMPARE(symbol.addedDegrees("r10"), 0);
        symbol.setSuffixed(false);
        QCOMPARE(symbol.addedDegrees("r10_45"), 0);
    }

    void pattern_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QStringList>("accepted");
        QTest::addColumn<QStringList>("rejected");
        QTest::newRow("line") << int(FeatureType::Line) << QStringList{"", "r", "s", "r10", "s2.5"}
                              << QStringList{"r10_45", "q", "r1.", "rs", "R10"};
        QTest::newRow("pad") << int(FeatureType::Pad)
                             << QStringList{"", "r10_45", "rect20x40", "logo", "a.+-_"}
                             << QStringList{"R10", "r 10", "r10*"};
        QTest::newRow("arc") << int(FeatureType::Arc) << QStringList{"", "r", "r10", "r2.5"}
                             << QStringList{"s10", "r10_45", "r1."};
    }

    void pattern()
    {
        QFETCH(int, type);
        QFETCH(QStringList, accepted);
        QFETCH(QStringList, rejected);
        const QRegularExpression whole(QRegularExpression::anchoredPattern(
            SymbolText::patternFor(static_cast<FeatureType>(type))));
        for (const QString& name : accepted) {
            QVERIFY2(whole.match(name).hasMatch(), qPrintable(name));
        }
        for (const QString& name : rejected) {
            QVERIFY2(!whole.match(name).hasMatch(), qPrintable(name));
        }
    }

    void typesWithoutASymbol()
    {
        QCOMPARE(SymbolText::patternFor(FeatureType::Surface), nullptr);
        QCOMPARE(SymbolText::patternFor(FeatureType::Text), nullptr);
    }

    void kinds()
    {
        QVERIFY(SymbolText::lacksSize("r") && SymbolText::lacksSize("s"));
        QVERIFY(!SymbolText::lacksSize("r1") && !SymbolText::lacksSize("") &&
                !SymbolText::lacksSize("rs"));
        QVERIFY(SymbolText::isRound("r10") && SymbolText::isRound("r2.5"));
        for (const char* const name : {"r", "s10", "r10_45", "rect1x2", "", "xr10", "r10x"}) {
            QVERIFY2(!SymbolText::isRound(name), name);
        }
        QVERIFY(SymbolText::isStandard("r10", false) && !SymbolText::isStandard("foo", false));
        QVERIFY(SymbolText::isSpecial("fiducial_cross", "job"));
        QVERIFY(!SymbolText::isSpecial("FIDUCIAL_CROSS", "job"));
        QVERIFY(!SymbolText::isSpecial("fiducial_cross", "no such job"));
    }

    void storedAndShown()
    {
        const SymbolText symbol(m_units);
        QCOMPARE(symbol.stored("r10"), QString("r10"));
        QCOMPARE(symbol.shown("r10"), QString("r10"));
        workIn(DisplayUnit::Micrometre);
        QCOMPARE(symbol.stored("r254"), QString("r10"));
        QCOMPARE(symbol.shown("r10"), QString("r254"));
    }

    /// What an entry or a pick of the name has written.
    void storedForms()
    {
        SymbolText symbol(m_units);
        workIn(DisplayUnit::Micrometre);
        QVERIFY(symbol.isStoredForm("r254", "r254"));
        QVERIFY(symbol.isStoredForm("r10", "r254"));
        QVERIFY(!symbol.isStoredForm("r20", "r254"));
        QVERIFY(!symbol.isStoredForm("r10", "r254_45"));
        symbol.setSuffixed(true);
        QVERIFY(symbol.isStoredForm("r10", "r254_45"));
        QVERIFY(!symbol.isStoredForm("r20", "r254_45"));
    }

    void keptTexts()
    {
        SymbolText symbol(m_units);
        symbol.keep("r10");
        QCOMPARE(symbol.inUnit(true, "another"), QString("r254"));
        QCOMPARE(symbol.inUnit(false, "another"), QString("r10"));
        workIn(DisplayUnit::Micrometre);
        symbol.keep("r508");  // typed anew: what was kept before is gone
        QCOMPARE(symbol.inUnit(false, "another"), QString("r20"));
        QCOMPARE(symbol.inUnit(true, "another"), QString("r508"));
    }

    void nothingKept()
    {
        SymbolText symbol(m_units);
        QCOMPARE(symbol.inUnit(true, "r10"), QString("r254"));
        symbol.keep("");
        QCOMPARE(symbol.inUnit(true, ""), QString());
        QCOMPARE(symbol.inUnit(false, ""), QString());
    }

    /// A failing host leaves none of the texts that were kept: the field's own is converted.
    void keptTextsAfterAFailure()
    {
        SymbolText symbol(m_units);
        symbol.keep("r10");
        QCOMPARE(symbol.inUnit(true, "r10"), QString("r254"));  // kept as well
        uiApiOverrides().getUnit = [](void*) -> int { throw std::runtime_error("no unit"); };
        QVERIFY_EXCEPTION_THROWN(symbol.keep("r2540"), std::runtime_error);
        QCOMPARE(symbol.inUnit(false, "r2540"), QString("r100"));
        QVERIFY_EXCEPTION_THROWN(symbol.keep("r1000"), std::runtime_error);
        QCOMPARE(symbol.inUnit(true, "r1000"), QString("r25400"));
    }

    void aSuffixIsNotConverted()
    {
        SymbolText symbol(m_units);
        symbol.setSuffixed(true);
        symbol.keep("fiducial_cross_45");
        QCOMPARE(symbol.inUnit(true, ""), QString("fiducial_cross_45"));
        symbol.keep("r10_45");
        QCOMPARE(symbol.inUnit(true, ""), QString("r254_45"));
        symbol.keep("ring_r60x30");  // picked since: its "r60x30" is no suffix
        QCOMPARE(symbol.inUnit(true, ""), QString("ring_r1524x762"));
    }
};

CTS_TEST(TestSymbolText);
#include "test_symbol_text.moc"
