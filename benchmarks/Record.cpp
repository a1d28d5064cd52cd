// Figures for one change of the record and its message.

#include "DialogWindow.h"
#include "Groups.h"
#include "Runner.h"
#include "addfeature/AddFeature.h"
#include "floors/PlainRecord.h"
#include "plugin/RecordKeys.h"
#include "plugin/RecordValues.h"

#include <QComboBox>
#include <QLineEdit>
#include <QLoggingCategory>

namespace {

using RecordKeys::polarity;

void dropLine(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/) {}

void setRecordLog(bool on)
{
    QLoggingCategory::setFilterRules(QStringLiteral("canvastoolstrip.*=%1\ndefault.warning=false")
                                         .arg(QLatin1String(on ? "true" : "false")));
}

/// While this lives, log lines are made, and dropped by the handler.
class LogOn {
public:
    LogOn() : m_handler(qInstallMessageHandler(dropLine)) { setRecordLog(true); }
    ~LogOn()
    {
        setRecordLog(false);
        qInstallMessageHandler(m_handler);
    }
    LogOn(const LogOn&) = delete;
    LogOn& operator=(const LogOn&) = delete;

private:
    QtMessageHandler m_handler;
};

// One record takes some microseconds, or less: too little to compare.
constexpr int recordsAtOnce = 10;

template <class Change>
void changeAndSend(benchmark::State& state, const CanvasFloor& canvas, Change change)
{
    const long before = canvas.count();
    for (auto _ : state) {
        for (int i = 0; i < recordsAtOnce; ++i) {
            change();
        }
    }
    if (canvas.count() - before != recordsAtOnce * long(state.iterations())) {
        state.SkipWithError("a change sent no record, or more than one");
    }
}

void sendRecord(benchmark::State& state, bool canvasKeeps)
{
    DialogWindow window(canvasKeeps);
    changeAndSend(state, window.canvas,
                  [&] { window.dialog->on_m_pPolarityCMB_ComboBox_Changed(); });
}

void sendPlain(benchmark::State& state, bool canvasKeeps, bool logs)
{
    // The entries of the module's own record: the same keys and values.
    const DialogWindow window;
    CanvasFloor canvas(canvasKeeps);
    PlainRecord record(window.canvas.last().payload, "job", nullptr, canvas);
    const QLineEdit symbol(QStringLiteral("r10"));
    QComboBox polarities;
    polarities.addItems({QStringLiteral("Positive"), QStringLiteral("Negative")});
    const QString values[] = {Polarity::positive, Polarity::negative};
    changeAndSend(state, canvas, [&] {
        record.insert(polarity, values[polarities.currentIndex()]);
        record.send(symbol.text(), logs);
    });
}

}  // namespace

void addRecordFigures(Runner& runner)
{
    for (const bool keeps : {true, false}) {
        runner.addPair(
            "record",
            keeps ? "ten in turn, canvas keeps the last one" : "ten in turn, canvas keeps none",
            [=](benchmark::State& state) { sendRecord(state, keeps); },
            [=](benchmark::State& state) { sendPlain(state, keeps, false); });
    }
    runner.addPair(
        "record-log", "ten in turn",
        [](benchmark::State& state) {
            const LogOn logOn;
            sendRecord(state, true);
        },
        [](benchmark::State& state) {
            const LogOn logOn;
            sendPlain(state, true, true);
        });
}
