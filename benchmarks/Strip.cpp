// Figures for making and showing a tool strip.

#include "Canvas.h"
#include "Groups.h"
#include "Panel.h"
#include "Runner.h"
#include "floors/PlainStrip.h"
#include "toolbar/Canvas_Tool_Strip.h"

namespace {

/// Deletes a strip that was never placed, and its buttons, which have no parent yet.
void discard(QLayout* strip)
{
    while (QLayoutItem* const item = strip->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    delete strip;
}

template <class MakeStrip>
void constructDestroy(benchmark::State& state, MakeStrip makeStrip)
{
    for (auto _ : state) {
        QWidget panel;
        discard(makeStrip(&panel));
    }
}

template <class MakeStrip>
void constructShow(benchmark::State& state, MakeStrip makeStrip)
{
    for (auto _ : state) {
        Panel panel;
        panel.setLayout(makeStrip(&panel));
        panel.showPainted();
    }
}

}  // namespace

void addStripFigures(Runner& runner)
{
    static CanvasFloor canvas;
    const auto project = [](QWidget* panel) -> QLayout* { return new Canvas_Tool_Strip(panel); };
    const auto floor = [](QWidget* panel) -> QLayout* { return new PlainStrip(panel, canvas); };
    runner.addPair(
        "strip", {}, [=](benchmark::State& state) { constructDestroy(state, project); },
        [=](benchmark::State& state) { constructDestroy(state, floor); });
    runner.addPair(
        "strip-shown", {}, [=](benchmark::State& state) { constructShow(state, project); },
        [=](benchmark::State& state) { constructShow(state, floor); });
}
