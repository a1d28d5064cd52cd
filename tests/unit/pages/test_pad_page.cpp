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

class TestPadPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void connections()
    {
        const char* const changed = SIGNAL(textChanged(const QString&));
        const char* const edited = SIGNAL(editingFinished());
        PageCases::connected(
            {{"m_pDrilNxLE", changed, SLOT(on_m_pDrilNxLE_editingFinished(const QString&))},
             {"m_pDrilNyLE", changed, SLOT(on_m_pDrilNyLE_editingFinished(const QString&))},
             {"m_pDrilXsclLE", changed, SLOT(on_m_pDrilXsclLE_editingFinished(const QString&))},
             {"m_pDrilYsclLE", changed, SLOT(on_m_pDrilYsclLE_editingFinished(const QString&))},
             {"m_pDrilDxLE", edited, SLOT(on_m_pDrilDxLE_editingFinished())},
             {"m_pDrilDyLE", edited, SLOT(on_m_pDrilDyLE_editingFinished())}});
    }

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
