// How times grow with the amount that comes in at once.

#include "DialogWindow.h"
#include "Groups.h"
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

namespace {

namespace Accepted = MessageCodes::Accepted;
using Attributes = std::vector<std::pair<std::string, std::string>>;

/// Ordered by name, as a map hands them over.
Attributes attributes(int count)
{
    Attributes list;
    for (int i = 0; i < count; ++i) {
        list.emplace_back(".attribute of the board " + std::to_string(count + i),
                          "value " + std::to_string(i));
    }
    return list;
}

void sendAttributes(benchmark::State& state, int count)
{
    const DialogWindow window;
    window.dialog->findChild<QCheckBox*>(QStringLiteral("m_pAttributesCB"))->setChecked(true);
    const Attributes list = attributes(count);
    for (auto _ : state) {
        window.dialog->get_attribute_list(list);
    }
}

void receiveAttributes(benchmark::State& state, int count)
{
    const DialogWindow window;
    size_t heard = 0;
    QObject::connect(window.dialog, &AddFeature::send_attributeinfo_list, window.dialog,
                     [&heard](const Attributes& list) { heard += list.size(); });
    const Attributes list = attributes(count);
    const std::map<std::string, std::string> picked(list.begin(), list.end());
    const auto message =
        messageFromCanvas(Accepted::AttributesPicked, ExtraWord::pointingAt(picked));
    for (auto _ : state) {
        recMsgFromManager(window.strip, message);
    }
    if (heard != picked.size() * size_t(state.iterations())) {
        state.SkipWithError("not every attribute was handed on");
    }
}

void receiveSymbols(benchmark::State& state, int count)
{
    const DialogWindow window;
    std::map<int, std::string> symbols;
    for (int i = 0; i < count; ++i) {
        symbols.emplace(i, "r" + std::to_string(1 + i % 1000));
    }
    const auto message = messageFromCanvas(Accepted::SymbolsPicked, ExtraWord::pointingAt(symbols));
    const long before = window.canvas.count();
    for (auto _ : state) {
        recMsgFromManager(window.strip, message);
    }
    if (window.canvas.count() - before != count * long(state.iterations())) {
        state.SkipWithError("not every symbol was sent");
    }
}

void sendWithSpecialSymbols(benchmark::State& state, int count)
{
    const DialogWindow window;
    openBenchmarkJob(count);
    for (auto _ : state) {
        window.dialog->getChangeCurrentTool();
    }
    openBenchmarkJob();
}

/// All strips live at once; each is shown and clicked.
void useStrips(benchmark::State& state, int count)
{
    CanvasFloor canvas;
    const Connected connected(canvas);
    for (auto _ : state) {
        std::deque<QWidget> panels(static_cast<size_t>(count));
        for (QWidget& panel : panels) {
            auto* const strip = new Canvas_Tool_Strip(&panel);
            panel.setLayout(strip);
            showPainted(panel);
            qobject_cast<QToolButton*>(strip->itemAt(int(Tool::MoveFeature))->widget())->click();
        }
    }
}

}  // namespace

void addGrowthFigures(Runner& runner)
{
    const int most = runner.effort().quick ? 100 : 100000;
    const int least = most / 100;
    runner.addGrowth({"grow-51", "attributes in one 51", 1.1}, least, most, sendAttributes);
    runner.addGrowth({"grow-20001807", "attributes in one 20001807", 1.1}, least, most,
                     receiveAttributes);
    runner.addGrowth({"grow-20001811", "symbols in one 20001811", 1.1}, least, most,
                     receiveSymbols);
    runner.addGrowth({"grow-special", "special symbols of the job at send", 1.1}, least, most,
                     sendWithSpecialSymbols);
    runner.addGrowth({"grow-strips", "strips in one process", 1.1}, 1,
                     runner.effort().quick ? 10 : 100, useStrips);
}
