// Figures for a message from a sibling module, handed to the exported entry point.

#include "Connected.h"
#include "DialogWindow.h"
#include "Groups.h"
#include "Panel.h"
#include "Runner.h"
#include "floors/PlainSwitch.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/PayloadKeys.h"
#include "plugin/PluginEntry.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QLineEdit>

#include <deque>
#include <vector>

namespace {

namespace Accepted = MessageCodes::Accepted;

using Entry = void (*)(void* instance, PluginMetaData message);

constexpr int unknownCode = 20009999;
const std::vector<int> allCodes = {
    Accepted::ReleaseAll,         Accepted::AreaZoom,
    Accepted::FeatureSelection,   Accepted::RectangleSelection,
    Accepted::PolygonSelection,   Accepted::AddFeatureActive,
    Accepted::SelectPolyline,     Accepted::SelectLayerNet,
    Accepted::SelectBoardNet,     Accepted::CheckAndMeasure,
    Accepted::JobAndStep,         Accepted::Measure,
    Accepted::AttributesPicked,   Accepted::SymbolsPicked,
    Accepted::UserSymbolsChanged, Accepted::JobName,
    Accepted::UnitChanged,        Accepted::LanguageChanged,
    Accepted::JobOpened,          Accepted::CloseDialogs,
    Accepted::AddFeature,         Accepted::DeleteFeature,
    Accepted::MoveFeature,        unknownCode,
};

/// A message with what its code expects, as a sibling would send it.
PluginMetaData message(int code)
{
    static const std::map<std::string, std::string> attributes = {{".net", "GND"}, {".smd", ""}};
    static const std::map<int, std::string> symbols = {{1, "r10"}};
    static const std::string job = "a job with a longer name";

    PluginMetaData built(QStringLiteral("Canvas_Viewer.dll"),
                         QStringLiteral("Canvas_Tool_Strip.dll"));
    built.code = code;
    if (code == Accepted::AttributesPicked) {
        built.extra = ExtraWord::pointingAt(attributes);
    } else if (code == Accepted::SymbolsPicked) {
        built.extra = ExtraWord::pointingAt(symbols);
    } else if (code == Accepted::JobName) {
        built.extra = ExtraWord::pointingAt(job);
    } else if (code == Accepted::JobAndStep || code == Accepted::JobOpened) {
        built.payload = {{PayloadKeys::jobName, QString::fromStdString(job)},
                         {PayloadKeys::step, QStringLiteral("step")},
                         {PayloadKeys::stepName, QStringLiteral("step")}};
    }
    return built;
}

/// A message on its way to a module.
struct Delivery {
    void* instance;
    PluginMetaData message;
};

/// Hands over the messages again and again; queued events are handled in between, untimed.
void deliver(benchmark::State& state, Entry entry, const std::vector<Delivery>& deliveries)
{
    const auto deliverAll = [&] {
        for (const Delivery& delivery : deliveries) {
            entry(delivery.instance, delivery.message);
        }
    };
    deliverAll();  // opens what opens only once
    QApplication::processEvents();
    benchmark::DoNotOptimize(entry);
    for (auto _ : state) {
        deliverAll();
    }
    QApplication::processEvents();
}

/// Each signal of the sender has one receiver, so that its data travels.
template <class Sender, class... Sent>
void listen(Sender* sender, long& heard, Sent... sent)
{
    (QObject::connect(sender, sent, sender, [&heard] { ++heard; }), ...);
}

/// Each message goes to a strip of its own, so that none finds what another has opened.
void deliverToStrips(benchmark::State& state, const std::vector<int>& codes)
{
    using Strip = Canvas_Tool_Strip;
    openBenchmarkJob();
    long heard = 0;
    CanvasFloor canvas;
    const Connected connected(canvas);
    std::deque<Panel> panels(codes.size());
    std::vector<Delivery> deliveries;
    for (size_t i = 0; i < codes.size(); ++i) {
        auto* const strip = new Strip(&panels[i]);
        listen(strip, heard, &Strip::send_Attribute_Info, &Strip::Current_Unit_Changed,
               &Strip::refresh_user_list, &Strip::language_changed, &Strip::send_Symbol_Info,
               &Strip::send_job_info);
        panels[i].setLayout(strip);
        panels[i].showPainted();
        deliveries.push_back({strip, message(codes[i])});
    }
    deliver(state, recMsgFromManager, deliveries);
}

/// A plain switch with what Add Feature opens.
struct PlainReceiver {
    PlainReceiver(const QMap<QString, QVariant>& entries, CanvasFloor& canvas, long& heard)
        : plain(&panel, canvas), record(entries, " ", &panel, canvas)
    {
        using Plain = PlainSwitch;
        listen(&plain, heard, &Plain::attributesPicked, &Plain::unitChanged,
               &Plain::userSymbolsChanged, &Plain::languageChanged, &Plain::symbolsPicked,
               &Plain::jobOpened);
        panel.setLayout(plain.strip());
        panel.showPainted();
        auto* const dialog = new QWidget(&panel, Qt::Window);
        auto* const symbol = new QLineEdit(dialog);
        dialog->show();
        plain.setDialog(dialog, symbol, &record);
    }

    Panel panel;
    PlainSwitch plain;
    PlainRecord record;
};

void deliverToSwitches(benchmark::State& state, const std::vector<int>& codes)
{
    // What the module's record holds when Add Feature is clicked.
    const DialogWindow window;
    const QMap<QString, QVariant> entries = window.canvas.last().payload;
    long heard = 0;
    CanvasFloor canvas;
    std::deque<PlainReceiver> receivers;
    std::vector<Delivery> deliveries;
    for (const int code : codes) {
        receivers.emplace_back(entries, canvas, heard);
        deliveries.push_back({&receivers.back().plain, message(code)});
    }
    deliver(state, PlainSwitch::receive, deliveries);
}

void addPair(Runner& runner, const std::string& part, const std::vector<int>& codes)
{
    runner.addPair(
        "incoming", part, [=](benchmark::State& state) { deliverToStrips(state, codes); },
        [=](benchmark::State& state) { deliverToSwitches(state, codes); });
}

}  // namespace

void addIncomingFigures(Runner& runner)
{
    addPair(runner, "all in turn", allCodes);
    if (runner.effort().only.empty()) {
        return;  // most single ones are too short for a ratio that is stable on every machine
    }
    for (const int code : allCodes) {
        addPair(runner, code == unknownCode ? "any other code" : std::to_string(code), {code});
    }
}
