#include "Main.h"

#include <UiApiStandIn.h>
#include <ui_api.h>

#include <QMessageBox>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <stdexcept>

using namespace ZENTRA::UIAPI;
using CanvasHost::DisplayUnit;
using CanvasHost::setDisplayUnit;
using CanvasHost::uiApiOverrides;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

struct Box {
    QMessageBox::Icon icon;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    QWidget* parent;
};

/// Runs `action` and answers every modal message box that it opens.
std::vector<Box> boxesOf(const std::function<void()>& action)
{
    std::vector<Box> boxes;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            boxes.push_back({box->icon(), box->windowTitle(), box->text(), box->standardButtons(),
                             box->parentWidget()});
            box->button(QMessageBox::Ok)->click();
        }
    });
    timer.start(1);
    action();
    return boxes;
}

}  // namespace

class TestUiApi : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void units_data();
    void units();
    void eqVisible();
    void overridesReplaceTheOperations();

    void numberBounds_data();
    void numberBounds();
    void symbolBounds_data();
    void symbolBounds();
    void boxBelongsToTheContextsWindow();
};

void TestUiApi::init()
{
    setDisplayUnit(DisplayUnit::Mil);
    CanvasHost::setEQVisible(true);
    uiApiOverrides() = CanvasHost::UiApiOverrides();
}

void TestUiApi::units_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<bool>("metric");
    QTest::newRow("mil") << int(DisplayUnit::Mil) << false;
    QTest::newRow("inch") << int(DisplayUnit::Inch) << false;
    QTest::newRow("micrometre") << int(DisplayUnit::Micrometre) << true;
    QTest::newRow("millimetre") << int(DisplayUnit::Millimetre) << true;
}

void TestUiApi::units()
{
    QFETCH(int, unit);
    QFETCH(bool, metric);
    setDisplayUnit(DisplayUnit(unit));
    QWidget context;

    for (QWidget* const owner : {&context, static_cast<QWidget*>(nullptr)}) {
        QCOMPARE(int(CanvasHost::displayUnit()), unit);
        QCOMPARE(getUnitString(owner), QString(metric ? "MM" : "INCH"));
        QCOMPARE(getUnit(owner), metric ? 1 : 0);
        QCOMPARE(getUnitData(owner, 10), metric ? 254.0 : 10.0);
        QCOMPARE(getUnitJudgeDouble(owner, 50000), metric ? 1270000.0 : 50000.0);
        QCOMPARE(getUnitJudgeDouble(owner, -100), metric ? -2540.0 : -100.0);
        ZENTRA::API::show_param shown;
        shown.metric = !metric;
        getShowPara(owner, shown);
        QCOMPARE(shown.metric, metric);
    }
}

void TestUiApi::eqVisible()
{
    QVERIFY(getEQVisible());
    CanvasHost::setEQVisible(false);
    QVERIFY(!getEQVisible());
}

void TestUiApi::overridesReplaceTheOperations()
{
    int calls = 0;
    auto& overrides = uiApiOverrides();
    overrides.getEQVisible = [&] { return ++calls > 1000; };
    overrides.getUnitString = [](void*) -> QString { throw "text"; };
    overrides.getUnit = [](void*) -> int { throw std::runtime_error("unit"); };
    overrides.getUnitData = [&](void*, double value) { return ++calls, -value; };
    overrides.getUnitJudgeDouble = [&](void*, double mils) { return ++calls, mils + 1; };
    overrides.isNumValueLegal = [&](double, double, double, void*) { return ++calls > 0; };
    overrides.isSymbolValueLegal = [&](const QString&, double, double, void*) {
        return ++calls > 0;
    };
    overrides.setSymbolUIData = [&](const QString& name, int direction) {
        return ++calls, name + QString::number(direction);
    };
    overrides.getShowPara = [&](void*, ZENTRA::API::show_param& out) {
        ++calls;
        out.metric = true;
    };

    QVERIFY(!getEQVisible());
    bool threwText = false;
    try {
        getUnitString(nullptr);
    } catch (const char*) {
        threwText = true;
    }
    QVERIFY(threwText);
    QVERIFY_EXCEPTION_THROWN(getUnit(nullptr), std::runtime_error);
    QCOMPARE(getUnitData(nullptr, 3), -3.0);
    QCOMPARE(getUnitJudgeDouble(nullptr, 3), 4.0);
    const auto boxes = boxesOf([] {
        QVERIFY(isNumValueLegal(9, 0, 1, nullptr));
        QVERIFY(isSymbolValueLegal("r9", 0, 1, nullptr));
    });
    QVERIFY(boxes.empty());
    QCOMPARE(setSymbolUIData("r10", 1), QString("r101"));
    ZENTRA::API::show_param shown;
    getShowPara(nullptr, shown);
    QVERIFY(shown.metric);
    QCOMPARE(calls, 7);
}

void TestUiApi::numberBounds_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<bool>("legal");

    const double bounds[][2] = {{0, 50}, {-100, 100}, {0, 360}};
    for (const auto& [low, high] : bounds) {
        const double step = 1e-6;
        QTest::addRow("%g to %g: at the minimum", low, high) << low << low << high << true;
        QTest::addRow("%g to %g: at the maximum", low, high) << high << low << high << true;
        QTest::addRow("%g to %g: inside", low, high) << high / 2 << low << high << true;
        QTest::addRow("%g to %g: just below", low, high) << low - step << low << high << false;
        QTest::addRow("%g to %g: just above", low, high) << high + step << low << high << false;
        QTest::addRow("%g to %g: nan", low, high) << notANumber << low << high << false;
        QTest::addRow("%g to %g: infinity", low, high) << infinity << low << high << false;
        QTest::addRow("%g to %g: -infinity", low, high) << -infinity << low << high << false;
    }
}

void TestUiApi::numberBounds()
{
    QFETCH(double, value);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(bool, legal);

    // Counts, scales and angles have no unit.
    for (const DisplayUnit unit : {DisplayUnit::Mil, DisplayUnit::Micrometre}) {
        setDisplayUnit(unit);
        bool result = !legal;
        const auto boxes =
            boxesOf([&] { result = isNumValueLegal(value, minimum, maximum, nullptr); });
        QCOMPARE(result, legal);
        QCOMPARE(boxes.size(), size_t(legal ? 0 : 1));
        if (!legal) {
            QCOMPARE(boxes[0].icon, QMessageBox::Warning);
            QCOMPARE(boxes[0].title, QString("Information"));
            QCOMPARE(boxes[0].buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
            QVERIFY(boxes[0].text.contains(QString::number(minimum)));
            QVERIFY(boxes[0].text.contains(QString::number(maximum)));
            QVERIFY(!boxes[0].parent);
        }
    }
}

void TestUiApi::symbolBounds_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("legalInMil");
    QTest::addColumn<bool>("legalInMetric");
    QTest::addColumn<double>("minimum");

    const struct {
        const char* name;
        bool legalInMil;
        bool legalInMetric;
        double minimum;
    } rows[] = {
        {"", true, true, 0},
        {"r", true, true, 0},
        {"s", true, true, 0},
        {"r0", true, true, 0},
        {"r0", false, false, 0.5},
        {"r10", true, true, 0},
        {"r10", true, false, 1},
        {"r25.4", true, true, 1},
        {"r50000", true, true, 0},
        {"r50000.1", false, true, 0},
        {"r60000", false, true, 0},
        {"s60000", false, true, 0},
        {"r1270000", false, true, 0},
        {"r1270001", false, false, 0},
        {"r1270000.1", false, false, 0},
        {"rect20x40", true, true, 0},
        {"rect20x60000", false, true, 0},
        {"rect1270001x20", false, false, 0},
        {"octagon20x40x1270001", false, false, 0},
        {"ring_r60x30", true, true, 0},
        {"ring_r1270001x30", false, false, 0},
        {"r10_45", true, true, 0},
        {"r10_9999999", true, true, 0},
        {"r60000_45", false, true, 0},
        {"r10_4x", true, true, 0},
        {"r9999999_4x", true, true, 0},
        {"r10x9999999", true, true, 0},
        {"logo9999999", true, true, 0},
        {"fiducial", true, true, 0},
        {"R9999999", true, true, 0},
        {"9999999", true, true, 0},
        {"nan", true, true, 0},
    };
    for (const auto& row : rows) {
        QTest::addRow("'%s' from %g", row.name, row.minimum)
            << row.name << row.legalInMil << row.legalInMetric << row.minimum;
    }
    QTest::newRow("no number any more") << 'r' + QString(400, '9') << false << false << 0.0;
}

void TestUiApi::symbolBounds()
{
    QFETCH(QString, name);
    QFETCH(bool, legalInMil);
    QFETCH(bool, legalInMetric);
    QFETCH(double, minimum);

    for (const DisplayUnit unit :
         {DisplayUnit::Mil, DisplayUnit::Inch, DisplayUnit::Micrometre, DisplayUnit::Millimetre}) {
        setDisplayUnit(unit);
        const bool metric = unit == DisplayUnit::Micrometre || unit == DisplayUnit::Millimetre;
        const bool legal = metric ? legalInMetric : legalInMil;
        bool result = !legal;
        const auto boxes =
            boxesOf([&] { result = isSymbolValueLegal(name, minimum, 50000, nullptr); });
        QCOMPARE(result, legal);
        QCOMPARE(boxes.size(), size_t(legal ? 0 : 1));
        if (!legal) {
            QCOMPARE(boxes[0].title, QString("Information"));
            QVERIFY(boxes[0].text.contains(metric ? "1270000" : "50000"));
        }
    }
}

void TestUiApi::boxBelongsToTheContextsWindow()
{
    QWidget window;
    QWidget* const inner = new QWidget(&window);
    auto gone = std::make_unique<QWidget>();
    QWidget* const dangling = gone.get();
    gone.reset();
    double noWidget = 0;

    const struct {
        void* context;
        QWidget* parent;
    } rows[] = {{inner, &window}, {&window, &window}, {dangling, nullptr}, {&noWidget, nullptr}};
    for (const auto& row : rows) {
        const auto boxes = boxesOf([&] {
            QVERIFY(!isNumValueLegal(2, 0, 1, row.context));
            QVERIFY(!isSymbolValueLegal("r2", 0, 1, row.context));
        });
        QCOMPARE(boxes.size(), size_t(2));
        QCOMPARE(boxes[0].parent, row.parent);
        QCOMPARE(boxes[1].parent, row.parent);
    }
}

CTS_TEST(TestUiApi);
#include "Main.h"
#include "test_ui_api.moc"
