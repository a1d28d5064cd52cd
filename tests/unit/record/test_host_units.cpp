// The three answers to "is it metric?", each from its own source.

#include "Main.h"
#include "addfeature/record/HostUnits.h"

#include <UiApiStandIn.h>

using CanvasHost::uiApiOverrides;

class TestHostUnits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { uiApiOverrides() = {}; }

    void whatItWasTold()
    {
        HostUnits units(nullptr);
        uiApiOverrides().getUnit = [](void*) { return 1; };
        QVERIFY(!units.wasToldMetric());
        units.tell(true);
        QVERIFY(units.wasToldMetric());
        units.tell(false);
        QVERIFY(!units.wasToldMetric());
    }

    /// With the host's widget, at each call.
    void whatTheHostWorksInNow()
    {
        QWidget widget;
        HostUnits units(&widget);
        units.tell(true);
        void* asked = nullptr;
        int unit = 0;
        uiApiOverrides().getUnit = [&](void* context) { return asked = context, unit; };
        QVERIFY(!units.isMetricNow());
        QCOMPARE(asked, static_cast<void*>(&widget));
        for (const int metric : {1, -7}) {
            unit = metric;
            QVERIFY(units.isMetricNow());
        }
    }

    void whatTheHostShows()
    {
        QWidget widget;
        const HostUnits units(&widget);
        void* asked = nullptr;
        for (const bool isMetric : {true, false}) {
            uiApiOverrides().getShowPara = [&](void* context, ZENTRA::API::show_param& out) {
                asked = context;
                out.metric = isMetric;
            };
            QCOMPARE(units.showsMetric(), isMetric);
        }
        QCOMPARE(asked, static_cast<void*>(&widget));
    }

    void bounds()
    {
        QWidget widget;
        const HostUnits units(&widget);
        uiApiOverrides().getUnitJudgeDouble = [&](void* context, double mils) {
            return context == &widget ? mils * 2 : 0;
        };
        QCOMPARE(units.shownBound(50000), 100000.0);
    }

    void symbols()
    {
        uiApiOverrides().setSymbolUIData = [](const QString& name, int direction) {
            return name + QString::number(direction);
        };
        QCOMPARE(HostUnits::storedSymbol("r"), QString("r0"));
        QCOMPARE(HostUnits::metricSymbol("r"), QString("r1"));
    }
};

CTS_TEST(TestHostUnits);
#include "test_host_units.moc"
