#include "BoxCatcher.h"
#include "Main.h"

#include <UiApiStandIn.h>
#include <ui_api.h>

#include <QMessageBox>
#include <QTest>

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

/// Runs `action` and answers every message box that it opens.
QVector<BoxCatcher::Box> boxesOf(const std::function<void()>& action)
{
    BoxCatcher boxes;
    action();
    return boxes.take();
}

}  // namespace

class TestUiApi : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void unitIsKept();
    void eqVisible();
    void overridesReplaceTheOperations();

    void refusedNumber();
    void refusedSymbol();
    void boxBelongsToTheContextsWindow();
};

void TestUiApi::init()
{
    setDisplayUnit(DisplayUnit::Mil);
    CanvasHost::setEQVisible(true);
    uiApiOverrides() = CanvasHost::UiApiOverrides();
}

void TestUiApi::unitIsKept()
{
    for (const DisplayUnit unit :
         {DisplayUnit::Micrometre, DisplayUnit::Inch, DisplayUnit::Millimetre, DisplayUnit::Mil}) {
        setDisplayUnit(unit);
        QVERIFY(CanvasHost::displayUnit() == unit);
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

void TestUiApi::refusedNumber()
{
    // Counts, scales and angles have no unit.
    for (const DisplayUnit unit : {DisplayUnit::Mil, DisplayUnit::Micrometre}) {
        setDisplayUnit(unit);
        const auto boxes = boxesOf([] { QVERIFY(!isNumValueLegal(notANumber, -7, 51, nullptr)); });
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes[0].icon, QMessageBox::Warning);
        QCOMPARE(boxes[0].title, QString("Information"));
        QCOMPARE(boxes[0].buttons.size(), 1);
        QCOMPARE(boxes[0].text, QString("The value must lie between -7 and 51."));
        QVERIFY(!boxes[0].parent);
    }
}

void TestUiApi::refusedSymbol()
{
    for (const bool metric : {false, true}) {
        setDisplayUnit(metric ? DisplayUnit::Millimetre : DisplayUnit::Inch);
        const auto boxes =
            boxesOf([] { QVERIFY(!isSymbolValueLegal("r1270001", 0, 50000, nullptr)); });
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes[0].title, QString("Information"));
        QCOMPARE(boxes[0].text,
                 QString("The value must lie between 0 and %1.").arg(metric ? "1270000" : "50000"));
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
        QCOMPARE(boxes.size(), 2);
        QCOMPARE(boxes[0].parent, row.parent);
        QCOMPARE(boxes[1].parent, row.parent);
    }
}

CTS_TEST(TestUiApi);
#include "Main.h"
#include "test_ui_api.moc"
