// How times grow with the amount that comes in at once.

#include "Connected.h"
#include "DialogWindow.h"
#include "Groups.h"
#include "Panel.h"
#include "Runner.h"
#include "addfeature/AddFeature.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/PluginEntry.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QCheckBox>
#include <QToolButton>

#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

using Attributes = std::vector<std::pair<std::string, std::string>>;

/// Ordered by name, as a map hands them over.
Attributes attributes(long count)
{
    Attributes list;
    for (long i = 0; i < count; ++i) {
        list.emplace_back(".attribute of the board " + std::to_string(count + i),
                          "value " + std::to_string(i));
    }
    return list;
}

template <class T>
PluginMetaData message(int code, const T& object)
{
    PluginMetaData built(QStringLiteral("Canvas_Viewer.dll"),
                         QStringLiteral("Canvas_Tool_Strip.dll"));
    built.code = code;
    built.extra = ExtraWord::pointingAt(object);
    return built;
}

/// A strip that has opened its dialog, as by a click on Add Feature.
struct OpenedDialog {
    OpenedDialog() : connected(canvas), strip(new Canvas_Tool_Strip(&panel))
    {
        openBenchmarkJob();
        panel.setLayout(strip);
        panel.showPainted();
        strip->On_AddFeature_Clicked();
        dialog = panel.findChild<AddFeature*>();
        QApplication::processEvents();
    }

    CanvasFloor canvas;
    Connected connected;
    Panel panel;
    Canvas_Tool_Strip* strip;
    AddFeature* dialog;
};

void sendAttributes(benchmark::State& state)
{
    const OpenedDialog window;
    window.dialog->findChild<QCheckBox*>(QStringLiteral("m_pAttributesCB"))->setChecked(true);
    const Attributes list = attributes(state.range(0));
    for (auto _ : state) {
        window.dialog->get_attribute_list(list);
    }
}

void receiveAttributes(benchmark::State& state)
{
    const OpenedDialog window;
    size_t heard = 0;
    QObject::connect(window.dialog, &AddFeature::send_attributeinfo_list, window.dialog,
                     [&heard](const Attributes& list) { heard += list.size(); });
    const Attributes list = attributes(state.range(0));
    const std::map<std::string, std::string> picked(list.begin(), list.end());
    const PluginMetaData prepared = message(MessageCodes::Accepted::AttributesPicked, picked);
    for (auto _ : state) {
        recMsgFromManager(window.strip, prepared);
    }
    if (heard != picked.size() * size_t(state.iterations())) {
        state.SkipWithError("not every attribute was handed on");
    }
}

void receiveSymbols(benchmark::State& state)
{
    const OpenedDialog window;
    std::map<int, std::string> symbols;
    for (int i = 0; i < int(state.range(0)); ++i) {
        symbols.emplace(i, "r" + std::to_string(1 + i % 1000));
    }
    const PluginMetaData prepared = message(MessageCodes::Accepted::SymbolsPicked, symbols);
    const long before = window.canvas.count();
    for (auto _ : state) {
        recMsgFromManager(window.strip, prepared);
    }
    if (window.canvas.count() - before != state.range(0) * long(state.iterations())) {
        state.SkipWithError("not every symbol was sent");
    }
}

void sendWithSpecialSymbols(benchmark::State& state)
{
    const DialogWindow window;
    openBenchmarkJob(int(state.range(0)));
    for (auto _ : state) {
        window.dialog->getChangeCurrentTool();
    }
    openBenchmarkJob();
}

/// All strips live at once; each is shown and clicked.
void useStrips(benchmark::State& state)
{
    CanvasFloor canvas;
    const Connected connected(canvas);
    for (auto _ : state) {
        std::deque<Panel> panels(size_t(state.range(0)));
        for (Panel& panel : panels) {
            auto* const strip = new Canvas_Tool_Strip(&panel);
            panel.setLayout(strip);
            panel.showPainted();
            qobject_cast<QToolButton*>(strip->itemAt(int(Tool::MoveFeature))->widget())->click();
        }
    }
}

}  // namespace

void addGrowthFigures(Runner& runner)
{
    const bool quick = runner.effort().quick;
    const long most = quick ? 100 : 100000;
    runner.addGrowth("grow-51", 10, most, sendAttributes);
    runner.addGrowth("grow-20001807", 10, most, receiveAttributes);
    runner.addGrowth("grow-20001811", 10, most, receiveSymbols);
    runner.addGrowth("grow-special", 10, most, sendWithSpecialSymbols);
    runner.addGrowth("grow-strips", 1, quick ? 10 : 100, useStrips);
}
