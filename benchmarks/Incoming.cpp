// Figure for messages from a sibling module, handed to the exported entry point.

#include "DialogWindow.h"
#include "Groups.h"
#include "Runner.h"
#include "floors/PlainSwitch.h"
#include "plugin/PluginEntry.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <deque>

namespace {

namespace Accepted = MessageCodes::Accepted;

/// Every code that is accepted, and one that is not, as a sibling would send it.
std::vector<PluginMetaData> allMessages()
{
    static const std::map<std::string, std::string> attributes = {{".net", "GND"}, {".smd", ""}};
    static const std::map<int, std::string> symbols = {{1, "r10"}};
    static const std::string job = "a job with a longer name";

    std::vector<PluginMetaData> messages;
    for (const int code : Accepted::all()) {
        messages.push_back(messageFromCanvas(code));
        PluginMetaData& message = messages.back();
        if (message.code == Accepted::AttributesPicked) {
            message.extra = ExtraWord::pointingAt(attributes);
        } else if (message.code == Accepted::SymbolsPicked) {
            message.extra = ExtraWord::pointingAt(symbols);
        } else if (message.code == Accepted::JobName) {
            message.extra = ExtraWord::pointingAt(job);
        } else if (message.code == Accepted::JobAndStep || message.code == Accepted::JobOpened) {
            message.payload = {{PayloadKeys::jobName, QString::fromStdString(job)},
                               {PayloadKeys::step, QStringLiteral("step")},
                               {PayloadKeys::stepName, QStringLiteral("step")}};
        }
    }
    messages.push_back(messageFromCanvas(20009999));
    return messages;
}

/// Each signal of the sender has one receiver, so that its data travels.
template <class Sender, class... Sent>
void listen(Sender* sender, Sent... sent)
{
    static long heard = 0;
    (QObject::connect(sender, sent, sender, [] { ++heard; }), ...);
}

void* listeningStrip(QWidget* panel, const QMap<QString, QVariant>& /*entries*/,
                     CanvasFloor& /*canvas*/)
{
    using Strip = Canvas_Tool_Strip;
    auto* const strip = new Strip(panel);
    panel->setLayout(strip);
    listen(strip, &Strip::send_Attribute_Info, &Strip::Current_Unit_Changed,
           &Strip::refresh_user_list, &Strip::language_changed, &Strip::send_Symbol_Info,
           &Strip::send_job_info);
    return strip;
}

void* listeningSwitch(QWidget* panel, const QMap<QString, QVariant>& entries, CanvasFloor& canvas)
{
    using Plain = PlainSwitch;
    auto* const plain = new Plain(panel, entries, canvas);
    listen(plain, &Plain::attributesPicked, &Plain::unitChanged, &Plain::userSymbolsChanged,
           &Plain::languageChanged, &Plain::symbolsPicked, &Plain::jobOpened);
    return plain;
}

/// Each message goes to a receiver of its own, so that none finds what another has opened. Queued
/// events are handled in between, untimed.
template <class Make>
void deliver(benchmark::State& state, Make make, void (*entry)(void*, PluginMetaData))
{
    // What the module's record holds when Add Feature is clicked.
    const QMap<QString, QVariant> entries = DialogWindow().canvas.last().payload;
    CanvasFloor canvas;
    const Connected connected(canvas);
    const std::vector<PluginMetaData> messages = allMessages();
    std::deque<QWidget> panels(messages.size());
    std::vector<void*> receivers;
    for (QWidget& panel : panels) {
        receivers.push_back(make(&panel, entries, canvas));
        showPainted(panel);
    }
    const auto deliverAll = [&] {
        for (size_t i = 0; i < messages.size(); ++i) {
            entry(receivers[i], messages[i]);
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

}  // namespace

void addIncomingFigures(Runner& runner)
{
    runner.add(
        {"incoming", "incoming message: all in turn", 1.20},
        [](benchmark::State& state) { deliver(state, listeningStrip, recMsgFromManager); },
        [](benchmark::State& state) { deliver(state, listeningSwitch, PlainSwitch::receive); });
}
