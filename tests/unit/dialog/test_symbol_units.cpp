// What the symbol field shows when the unit changes.

#include "DialogFixture.h"
#include "Main.h"

#include <UiApiStandIn.h>

class TestSymbolUnits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void changeAndBack_data()
    {
        QTest::addColumn<Unit>("first");
        QTest::addColumn<Unit>("second");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("isLeft");
        QTest::addColumn<QString>("other");
        QTest::newRow("mil round") << Unit::Mil << Unit::Metric << "r10" << true << "r254";
        QTest::newRow("mil, not left yet") << Unit::Mil << Unit::Metric << "r10" << false << "r254";
        QTest::newRow("mil rectangle")
            << Unit::Mil << Unit::Metric << "rect20x40.5" << true << "rect508x1028.7";
        QTest::newRow("mil suffix") << Unit::Mil << Unit::Metric << "r10_45" << true << "r254_45";
        QTest::newRow("mil ring suffix")
            << Unit::Mil << Unit::Metric << "ring_r60x30_90" << true << "ring_r1524x762_90";
        QTest::newRow("mil special")
            << Unit::Mil << Unit::Metric << "fiducial_cross" << true << "fiducial_cross";
        QTest::newRow("mil special suffix")
            << Unit::Mil << Unit::Metric << "fiducial_cross_45" << true << "fiducial_cross_45";
        QTest::newRow("mil user symbol") << Unit::Mil << Unit::Metric << "logo" << true << "logo";
        QTest::newRow("mil empty") << Unit::Mil << Unit::Metric << "" << true << "";
        QTest::newRow("metric round") << Unit::Metric << Unit::Mil << "r254" << true << "r10";
        QTest::newRow("metric suffix")
            << Unit::Metric << Unit::Mil << "r254_45" << true << "r10_45";
        QTest::newRow("metric special")
            << Unit::Metric << Unit::Mil << "fiducial_cross" << true << "fiducial_cross";
        QTest::newRow("metric empty") << Unit::Metric << Unit::Mil << "" << true << "";
    }

    void changeAndBack()
    {
        QFETCH(Unit, first);
        QFETCH(Unit, second);
        QFETCH(QString, typed);
        QFETCH(bool, isLeft);
        QFETCH(QString, other);
        DialogFixture fixture(first);
        fixture.chooseType("m_pPadTB");
        fixture.type("m_pSymbolTextLE", typed);
        if (isLeft) {
            fixture.leave(By::Tab);
        }
        const QVariantMap before = fixture.record();
        fixture.recorder.clear();
        for (int round = 0; round < 10; ++round) {
            fixture.setUnit(second);
            QCOMPARE(fixture.symbol().text(), other);
            fixture.setUnit(first);
            QCOMPARE(fixture.symbol().text(), typed);
        }
        QVERIFY(fixture.recorder.messages().isEmpty());
        QCOMPARE(fixture.record(), before);
    }

    void anAwkwardSizeComesBack()
    {
        DialogFixture fixture(Unit::Metric);
        fixture.type("m_pSymbolTextLE", "r10");
        fixture.setUnit(Unit::Mil);
        QVERIFY(fixture.symbol().text().startsWith("r0.393"));
        fixture.setUnit(Unit::Metric);
        QCOMPARE(fixture.symbol().text(), QString("r10"));
    }

    void typingAnewReplacesWhatWasKept()
    {
        DialogFixture fixture;
        fixture.type("m_pSymbolTextLE", "r10");
        fixture.setUnit(Unit::Metric);
        fixture.type("m_pSymbolTextLE", "r508");
        fixture.setUnit(Unit::Mil);
        QCOMPARE(fixture.symbol().text(), QString("r20"));
        fixture.setUnit(Unit::Metric);
        QCOMPARE(fixture.symbol().text(), QString("r508"));
    }

    void twoNoticesOfOneUnit()
    {
        DialogFixture fixture;
        fixture.type("m_pSymbolTextLE", "r10");
        fixture.setUnit(Unit::Metric);
        fixture.setUnit(Unit::Metric);
        QCOMPARE(fixture.symbol().text(), QString("r254"));
        fixture.setUnit(Unit::Mil);
        fixture.setUnit(Unit::Mil);
        QCOMPARE(fixture.symbol().text(), QString("r10"));
    }

    void suffixFlagDecides()
    {
        // In a name that is not a standard symbol, only the part before the suffix is converted.
        DialogFixture fixture;
        fixture.chooseType("m_pPadTB");
        fixture.enter("m_pSymbolTextLE", "fiducial_cross_45");
        fixture.setUnit(Unit::Metric);
        QCOMPARE(fixture.symbol().text(), QString("fiducial_cross_45"));
        fixture.enter("m_pSymbolTextLE", "r254");  // clears the flag
        fixture.setUnit(Unit::Mil);
        QCOMPARE(fixture.symbol().text(), QString("r10"));
    }

    void emitsUnitChangedOnceAndLast()
    {
        DialogFixture fixture;
        fixture.type("m_pSymbolTextLE", "r10");
        QStringList texts;
        connect(fixture.dialog, &AddFeature::unit_changed, this,
                [&] { texts.append(fixture.symbol().text()); });
        fixture.setUnit(Unit::Metric);
        QCOMPARE(texts, QStringList{"r254"});
    }

    void theFieldIsFollowedAgainAfterwards()
    {
        DialogFixture fixture;
        fixture.type("m_pSymbolTextLE", "r10");
        fixture.setUnit(Unit::Metric);
        fixture.symbol().setText("r1270");  // kept as the metric text
        fixture.setUnit(Unit::Mil);
        QCOMPARE(fixture.symbol().text(), QString("r50"));
    }

    /// The suffix of an earlier entry does not apply to a symbol picked since.
    void aPickedNameIsConvertedWhole()
    {
        DialogFixture fixture;
        fixture.chooseType("m_pPadTB");
        fixture.enter("m_pSymbolTextLE", "r10_45");
        fixture.dialog->get_ChangeSymbol_Info({{1, "ring_r60x30"}});
        fixture.setUnit(Unit::Metric);
        QCOMPARE(fixture.symbol().text(), QString("ring_r1524x762"));
    }

    /// What a unit change writes was not typed: the handler of typed text does nothing.
    void aUnitChangeIsNoTyping()
    {
        DialogFixture fixture;
        fixture.type("m_pSymbolTextLE", "r10");
        int asked = 0;
        CanvasHost::uiApiOverrides().getUnit = [&asked](void*) { return ++asked, 1; };
        fixture.dialog->change_current_units(true);
        QCOMPARE(fixture.symbol().text(), QString("r254"));
        QCOMPARE(asked, 0);
        QTest::keyClicks(&fixture.symbol(), "0");
        QVERIFY(asked > 0);
    }

    void afterAFailureTheFieldItselfIsConverted()
    {
        DialogFixture fixture;
        fixture.type("m_pSymbolTextLE", "r2");
        CanvasHost::uiApiOverrides().getUnit = [](void*) -> int {
            throw std::runtime_error("no unit");
        };
        QTest::keyClicks(&fixture.symbol(), "0");
        QCOMPARE(fixture.boxes.take().size(), 1);
        CanvasHost::uiApiOverrides() = {};
        fixture.setUnit(Unit::Metric);
        QCOMPARE(fixture.symbol().text(), QString("r508"));
    }
};

CTS_TEST(TestSymbolUnits);
#include "test_symbol_units.moc"
