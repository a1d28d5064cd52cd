// How often a send calls the host.

#include "DialogWindow.h"
#include "Groups.h"
#include "Runner.h"
#include "addfeature/AddFeature.h"
#include "plugin/MessageCodes.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QAbstractButton>
#include <QLineEdit>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>

namespace {

/// Answers in the host's place while it lives, and counts each function's calls.
class CountingHost {
public:
    CountingHost();
    ~CountingHost()
    {
        CanvasHost::camApiOverrides() = {};
        CanvasHost::uiApiOverrides() = {};
    }
    CountingHost(const CountingHost&) = delete;
    CountingHost& operator=(const CountingHost&) = delete;

    /// The calls of the function that was called most.
    int most() const
    {
        int calls = 0;
        for (const auto& function : m_calls) {
            calls = std::max(calls, function.second);
        }
        return calls;
    }

private:
    std::map<std::string, int> m_calls;
};

CountingHost::CountingHost()
{
    auto& cam = CanvasHost::camApiOverrides();
    cam.identify_symbol = [this](auto&, auto&, int&, int&, bool) {
        return ++m_calls["identify_symbol"] > 0;
    };
    cam.get_special_symbol_names = [this](auto&, auto&) { ++m_calls["get_special_symbol_names"]; };
    cam.get_fonts = [this](auto&, auto&) { ++m_calls["get_fonts"]; };
    auto& ui = CanvasHost::uiApiOverrides();
    ui.getEQVisible = [this] { return ++m_calls["getEQVisible"] > 0; };
    ui.getUnitString = [this](void*) {
        ++m_calls["getUnitString"];
        return QStringLiteral("MM");
    };
    ui.getUnit = [this](void*) { return std::min(++m_calls["getUnit"], 1); };
    ui.getUnitData = [this](void*, double value) {
        ++m_calls["getUnitData"];
        return value;
    };
    ui.getUnitJudgeDouble = [this](void*, double mils) {
        ++m_calls["getUnitJudgeDouble"];
        return mils;
    };
    ui.isNumValueLegal = [this](double, double, double, void*) {
        return ++m_calls["isNumValueLegal"] > 0;
    };
    ui.isSymbolValueLegal = [this](auto&, double, double, void*) {
        return ++m_calls["isSymbolValueLegal"] > 0;
    };
    ui.setSymbolUIData = [this](const QString& name, int) {
        ++m_calls["setSymbolUIData"];
        return name;
    };
    ui.getShowPara = [this](void*, auto&) { ++m_calls["getShowPara"]; };
}

/// A way to send one record.
struct Way {
    const char* what;
    std::function<void(AddFeature& dialog)> send;
};

void clickType(AddFeature& dialog, const char* name)
{
    dialog.findChild<QAbstractButton*>(QLatin1String(name))->click();
}

const std::vector<Way>& ways()
{
    static const std::vector<Way> all = {
        {"sent again", [](AddFeature& dialog) { dialog.getChangeCurrentTool(); }},
        {"choice", [](AddFeature& dialog) { dialog.on_m_pPolarityCMB_ComboBox_Changed(); }},
        {"rotation", [](AddFeature& dialog) { dialog.on_m_pAngleValueSB_editingFinished(); }},
        {"line", [](AddFeature& dialog) { clickType(dialog, "m_pLineTB"); }},
        {"surface", [](AddFeature& dialog) { clickType(dialog, "m_pSurfaceTB"); }},
        {"arc", [](AddFeature& dialog) { clickType(dialog, "m_pArcTB"); }},
        {"text", [](AddFeature& dialog) { clickType(dialog, "m_pTextTB"); }},
        {"pad", [](AddFeature& dialog) { clickType(dialog, "m_pPadTB"); }},
        {"count",
         [](AddFeature& dialog) {
             dialog.findChild<QLineEdit*>(QStringLiteral("m_pDrilNxLE"))->setText("12");
         }},
        {"pitch", [](AddFeature& dialog) { dialog.on_m_pDrilDxLE_editingFinished(); }},
        {"symbol entered", [](AddFeature& dialog) { dialog.Enter_Symbol_Text(); }},
        {"symbol, Return", [](AddFeature& dialog) { dialog.on_m_pSymbolTextLE_returnPressed(); }},
        {"symbol, left", [](AddFeature& dialog) { dialog.on_m_pSymbolTextLE_editingFinished(); }},
    };
    return all;
}

}  // namespace

void addHostCallFigures(Runner& runner)
{
    for (const Way& way : ways()) {
        runner.addCheck("host-calls", way.what, [&way] {
            const DialogWindow window;
            CountingHost host;
            const long before = window.canvas.count();
            way.send(*window.dialog);
            if (window.canvas.count() == before ||
                window.canvas.last().code != MessageCodes::Sent::Record) {
                std::fprintf(stderr, "host-calls/%s: no record was sent\n", way.what);
                std::exit(EXIT_FAILURE);
            }
            return double(host.most());
        });
    }
}
