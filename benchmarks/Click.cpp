// Figures for a click on a tool, until the canvas has its message.

#include "Connected.h"
#include "Groups.h"
#include "Panel.h"
#include "Runner.h"
#include "floors/PlainActions.h"
#include "floors/PlainStrip.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QAction>
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

void clickStrip(benchmark::State& state)
{
    CanvasFloor canvas;
    const Connected connected(canvas);
    Panel panel;
    auto* const strip = new Canvas_Tool_Strip(&panel);
    panel.setLayout(strip);
    panel.showPainted();
    QAbstractButton* const buttons[] = {
        qobject_cast<QAbstractButton*>(strip->itemAt(int(tools[0]))->widget()),
        qobject_cast<QAbstractButton*>(strip->itemAt(int(tools[1]))->widget())};
    clickInTurn(state, canvas, [&](long index) { buttons[index]->click(); });
}

void clickPlain(benchmark::State& state)
{
    CanvasFloor canvas;
    Panel panel;
    auto* const strip = new PlainStrip(&panel, canvas);
    panel.setLayout(strip);
    panel.showPainted();
    QAbstractButton* const buttons[] = {strip->buttons()[int(tools[0])],
                                        strip->buttons()[int(tools[1])]};
    clickInTurn(state, canvas, [&](long index) { buttons[index]->click(); });
}

void triggerAction(benchmark::State& state)
{
    CanvasFloor canvas;
    PlainActions window(canvas);
    window.resize(1600, 100);
    window.show();
    QApplication::processEvents();
    QAction* const actions[] = {window.action(int(tools[0])), window.action(int(tools[1]))};
    clickInTurn(state, canvas, [&](long index) { actions[index]->trigger(); });
}

}  // namespace

void addClickFigures(Runner& runner)
{
    runner.addPair("click", "twenty in turn", clickStrip, clickPlain);
    runner.addPair("click-actions", "twenty in turn", clickStrip, triggerAction);
}
