// Figures for making and showing a tool strip, and for a click on a tool until the canvas has its
// message.

#include "Connected.h"
#include "Groups.h"
#include "Runner.h"
#include "floors/PlainStrip.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QToolBar>

namespace {

// Clicked in turn, so that each click changes what is checked.
constexpr Tool tools[] = {Tool::MoveFeature, Tool::CopyFeature};

// One click takes less than a microsecond: too little to compare.
constexpr int clicksAtOnce = 20;

using MakeStrip = QLayout* (*)(QWidget* panel, CanvasFloor& canvas);

QLayout* makeStrip(QWidget* panel, CanvasFloor& /*canvas*/)
{
    return new Canvas_Tool_Strip(panel);
}

QLayout* makePlain(QWidget* panel, CanvasFloor& canvas)
{
    return new PlainStrip(panel, canvas);
}

/// The strip is never placed, and most of its buttons have no parent yet.
void constructDestroy(benchmark::State& state, MakeStrip make)
{
    CanvasFloor canvas;
    for (auto _ : state) {
        QWidget panel;
        QLayout* const strip = make(&panel, canvas);
        while (QLayoutItem* const item = strip->takeAt(0)) {
            delete item->widget();
            delete item;
        }
        delete strip;
    }
}

void constructShow(benchmark::State& state, MakeStrip make)
{
    CanvasFloor canvas;
    for (auto _ : state) {
        QWidget panel;
        panel.setLayout(make(&panel, canvas));
        showPainted(panel);
    }
}

/// Runs `click(0)` and `click(1)` in turn; each must send one message.
template <class Click>
void clickInTurn(benchmark::State& state, const CanvasFloor& canvas, Click click)
{
    long clicks = 0;
    const long before = canvas.count();
    for (auto _ : state) {
        for (int i = 0; i < clicksAtOnce; ++i) {
            click(clicks++ % 2);
        }
    }
    if (canvas.count() - before != clicks) {
        state.SkipWithError("a click sent no message, or more than one");
    }
    QApplication::processEvents();
}

void clickButtons(benchmark::State& state, MakeStrip make)
{
    CanvasFloor canvas;
    const Connected connected(canvas);
    QWidget panel;
    QLayout* const strip = make(&panel, canvas);
    panel.setLayout(strip);
    showPainted(panel);
    QAbstractButton* const buttons[] = {
        qobject_cast<QAbstractButton*>(strip->itemAt(int(tools[0]))->widget()),
        qobject_cast<QAbstractButton*>(strip->itemAt(int(tools[1]))->widget())};
    clickInTurn(state, canvas, [&](long index) { buttons[index]->click(); });
}

/// Floor: the usual way to build a tool bar, one action per tool in an exclusive group. Triggering
/// one sends its code.
void triggerActions(benchmark::State& state)
{
    CanvasFloor canvas;
    Receiver& receiver = canvas;
    QMainWindow window;
    auto* const bar = window.addToolBar(QString());
    auto* const group = new QActionGroup(&window);
    for (const ToolTable::Row& tool : ToolTable::rows()) {
        QAction* const action = bar->addAction(
            QCoreApplication::translate("PlainActions", tool.tip.text, tool.tip.note));
        action->setCheckable(true);
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, &window, [&receiver, code = tool.onCode] {
            PluginMetaData message(ModuleNames::toolStrip, ModuleNames::viewer);
            message.code = code;
            receiver.receive(std::move(message));
        });
    }
    window.resize(1600, 100);
    window.show();
    QApplication::processEvents();
    QAction* const actions[] = {group->actions()[int(tools[0])], group->actions()[int(tools[1])]};
    clickInTurn(state, canvas, [&](long index) { actions[index]->trigger(); });
}

}  // namespace

void addStripFigures(Runner& runner)
{
    const auto side = [](void (*body)(benchmark::State&, MakeStrip), MakeStrip make) {
        return [=](benchmark::State& state) { body(state, make); };
    };
    constexpr const char* why = "connections by signature";
    runner.add({"strip", "strip: construct, destroy", 1.05, why}, side(constructDestroy, makeStrip),
               side(constructDestroy, makePlain));
    runner.add({"strip-shown", "strip: construct, place, show, first paint", 1.05, why},
               side(constructShow, makeStrip), side(constructShow, makePlain));
    runner.add({"click", "click to message received: twenty in turn", 1.10},
               side(clickButtons, makeStrip), side(clickButtons, makePlain));
    runner.add({"click-actions", "click, against an exclusive action group: twenty in turn", 0.50},
               side(clickButtons, makeStrip), triggerActions);
}
