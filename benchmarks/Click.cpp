// Figures for a click on a tool, until the canvas has its message.

#include "Connected.h"
#include "Groups.h"
#include "Panel.h"
#include "Runner.h"
#include "floors/PlainStrip.h"
#include "floors/PlainTools.h"
#include "plugin/ModuleNames.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QToolBar>
#include <QToolButton>

namespace {

// Clicked in turn, so that each click changes what is checked.
constexpr Tool tools[] = {Tool::MoveFeature, Tool::CopyFeature};

// One click takes less than a microsecond: too little to compare.
constexpr int clicksAtOnce = 20;

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

void clickButtons(benchmark::State& state, const CanvasFloor& canvas, QLayout* strip, Panel& panel)
{
    panel.setLayout(strip);
    panel.showPainted();
    QAbstractButton* const buttons[] = {
        qobject_cast<QAbstractButton*>(strip->itemAt(int(tools[0]))->widget()),
        qobject_cast<QAbstractButton*>(strip->itemAt(int(tools[1]))->widget())};
    clickInTurn(state, canvas, [&](long index) { buttons[index]->click(); });
}

void clickStrip(benchmark::State& state)
{
    CanvasFloor canvas;
    const Connected connected(canvas);
    Panel panel;
    clickButtons(state, canvas, new Canvas_Tool_Strip(&panel), panel);
}

void clickPlain(benchmark::State& state)
{
    CanvasFloor canvas;
    Panel panel;
    clickButtons(state, canvas, new PlainStrip(&panel, canvas), panel);
}

/// Floor: the usual way to build a tool bar, one action per tool in an exclusive group. Triggering
/// one sends its code.
void triggerAction(benchmark::State& state)
{
    CanvasFloor canvas;
    Receiver& receiver = canvas;
    QMainWindow window;
    auto* const bar = window.addToolBar(QString());
    auto* const group = new QActionGroup(&window);
    group->setExclusive(true);
    for (const PlainTool& tool : plainTools()) {
        QAction* const action =
            bar->addAction(QCoreApplication::translate("PlainActions", tool.tip, tool.note));
        action->setCheckable(true);
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, &window, [&receiver, code = tool.code] {
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

void addClickFigures(Runner& runner)
{
    runner.addPair("click", "twenty in turn", clickStrip, clickPlain);
    runner.addPair("click-actions", "twenty in turn", clickStrip, triggerAction);
}
