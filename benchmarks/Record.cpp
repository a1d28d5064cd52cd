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

// One record takes some microseconds, or less: too little to compare.
constexpr int recordsAtOnce = 10;

struct Circumstances {
    bool canvasKeeps;
    bool logs;
};

void setRecordLog(bool on)
{
    QLoggingCategory::setFilterRules(QStringLiteral("canvastoolstrip.*=%1\ndefault.warning=false")
                                         .arg(QLatin1String(on ? "true" : "false")));
    // Lines are made, and dropped.
    qInstallMessageHandler(on ? [](QtMsgType, const QMessageLogContext&, const QString&) {}
                              : QtMessageHandler());
}

template <class Change>
void changeAndSend(benchmark::State& state, const CanvasFloor& canvas, bool logs, Change change)
{
    setRecordLog(logs);
    const long before = canvas.count();
    for (auto _ : state) {
        for (int i = 0; i < recordsAtOnce; ++i) {
            change();
        }
    }
    if (canvas.count() - before != recordsAtOnce * long(state.iterations())) {
        state.SkipWithError("a change sent no record, or more than one");
    }
    setRecordLog(false);
}

void sendRecord(benchmark::State& state, Circumstances given)
{
    DialogWindow window(given.canvasKeeps);
    changeAndSend(state, window.canvas, given.logs,
                  [&] { window.dialog->on_m_pPolarityCMB_ComboBox_Changed(); });
}

void sendPlain(benchmark::State& state, Circumstances given)
{
    // The entries of the module's own record: the same keys and values.
    const DialogWindow window;
    CanvasFloor canvas(given.canvasKeeps);
    PlainRecord record(window.canvas.last().payload, canvas);
    const QLineEdit symbol(QStringLiteral("r10"));
    QComboBox polarities;
    polarities.addItems({QStringLiteral("Positive"), QStringLiteral("Negative")});
    const QString values[] = {Polarity::positive, Polarity::negative};
    changeAndSend(state, canvas, given.logs, [&] {
        record.insert(RecordKeys::polarity, values[polarities.currentIndex()]);
        record.send(symbol.text(), given.logs);
    });
}

}  // namespace

void addRecordFigures(Runner& runner)
{
    const auto add = [&](const Figure& figure, Circumstances given) {
        runner.add(
            figure, [=](benchmark::State& state) { sendRecord(state, given); },
            [=](benchmark::State& state) { sendPlain(state, given); });
    };
    add({"record", "record sent, log category off: ten in turn, canvas keeps the last one", 1.15},
        {true, false});
    add({"record", "record sent, log category off: ten in turn, canvas keeps none", 1.15,
         "the guard of typed entries is asked"},
        {false, false});
    add({"record-log", "record sent, log category on, null handler: ten in turn", 0.80,
         "a line for each entry, as in the floor"},
        {true, true});
}
