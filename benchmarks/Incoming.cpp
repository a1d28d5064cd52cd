// Figures of a message of a sibling module, handed to the exported entry point.

#include "Canvas.h"
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

namespace {

namespace Accepted = MessageCodes::Accepted;

using Entry = void (*)(void* instance, PluginMetaData message);

constexpr int unknownCode = 20009999;
constexpr int codes[] = {
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

/// Hands the message over again and again; all queued events are handled meanwhile, untimed.
void deliver(benchmark::State& state, Entry entry, void* instance, int code)
{
    const PluginMetaData prepared = message(code);
    entry(instance, prepared);  // opens what is opened once
    QApplication::processEvents();
    benchmark::DoNotOptimize(entry);
    for (auto _ : state) {
        entry(instance, prepared);
    }
    QApplication::processEvents();
}

/// Each signal of the sender has one receiver, so that its data travels.
template <class Sender, class... Sent>
void listen(Sender* sender, long& heard, Sent... sent)
{
    (QObject::connect(sender, sent, sender, [&heard] { ++heard; }), ...);
}

void deliverToStrip(benchmark::State& state, int code)
{
    using Strip = Canvas_Tool_Strip;
    openBenchmarkJob();
    long heard = 0;
    Canvas canvas;
    const Connected connected(canvas);
    Panel panel;
    auto* const strip = new Strip(&panel);
    listen(strip, heard, &Strip::send_Attribute_Info, &Strip::Current_Unit_Changed,
           &Strip::refresh_user_list, &Strip::language_changed, &Strip::send_Symbol_Info,
           &Strip::send_job_info);
    panel.setLayout(strip);
    panel.showPainted();
    deliver(state, recMsgFromManager, strip, code);
}

void deliverToSwitch(benchmark::State& state, int code)
{
    using Plain = PlainSwitch;
    // What the module's record holds when Add Feature is clicked.
    const DialogWindow window;
    long heard = 0;
    Canvas canvas;
    Panel panel;
    Plain plain(&panel, canvas);
    listen(&plain, heard, &Plain::attributesPicked, &Plain::unitChanged, &Plain::userSymbolsChanged,
           &Plain::languageChanged, &Plain::symbolsPicked, &Plain::jobOpened);
    panel.setLayout(plain.strip());
    panel.showPainted();
    PlainRecord record(window.canvas.last().payload, " ", &panel, canvas);
    auto* const dialog = new QWidget(&panel, Qt::Window);
    auto* const symbol = new QLineEdit(dialog);
    dialog->show();
    plain.setDialog(dialog, symbol, &record);
    deliver(state, Plain::receive, &plain, code);
}

}  // namespace

void addIncomingFigures(Runner& runner)
{
    for (const int code : codes) {
        runner.addPair(
            "incoming", code == unknownCode ? "any other code" : std::to_string(code),
            [=](benchmark::State& state) { deliverToStrip(state, code); },
            [=](benchmark::State& state) { deliverToSwitch(state, code); });
    }
}
